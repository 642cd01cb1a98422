#include "shapes/Rectangle.h"

#include "shapes/BorderedFrame.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

constexpr unsigned LargestCornerRadius = 100;

/// The radius is 0 to 100 px and at most half the smaller side.
bool cornerRadiusValidator(const DesignerProperty* property, QString& message)
{
    message.clear();
    bool ok = false;
    const int radius = ValueConversion::toInt(property->valueString(), &ok);
    if (!ok || unsigned(radius) > LargestCornerRadius) {
        message = elementText("The corner radius must be between 0 and 100.");
        return false;
    }
    const auto sizeProperty = property->parentObject()->getProperty(QStringLiteral("size"));
    const QSizeF size = ValueConversion::toSize(sizeProperty->valueString());
    const double limit = 0.5 * std::min(size.width(), size.height());
    if (radius <= limit)
        return true;
    message = elementText("The corner radius must be smaller than or equal to %1 px.").arg(int(std::floor(limit)));
    return false;
}

/// A radius of 0 writes no line.
QString cornerRadiusQml(const DesignerProperty* property, int indent)
{
    bool ok = false;
    const double radius = ValueConversion::toReal(property->valueString(), &ok);
    if (!ok || !(radius > 0))
        return {};
    return QStringLiteral("%1cornerRadius: %2")
        .arg(DesignerObject::getTabs(indent), ValueConversion::toQmlString(radius, 2));
}

} // namespace

Rectangle::Rectangle(QObject* parent)
    : VisualElement(parent)
{}

Rectangle::~Rectangle() = default;

QString Rectangle::className() const
{
    return QStringLiteral("Rectangle");
}

QStringList Rectangle::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("Rectangle");
}

QString Rectangle::displayName() const
{
    return elementText("Rectangle");
}

QString Rectangle::qmlName() const
{
    return QStringLiteral("Rectangle2");
}

GraphicsItem* Rectangle::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsRectangle"));
}

bool Rectangle::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("Rectangle"), QStringLiteral("rectangle")))
        return false;
    m_size = ElementProperties::declareSize(this, 10, QSizeF(100, 75));
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, QSizeF(100, 75));
    m_keepRatio = ElementProperties::declareKeepRatio(this, 12);
    m_color = ElementProperties::declareFillColor(this, 13);
    m_border = ElementProperties::declareBorder(this, 14);
    // Shared by all rectangles.
    static const QMap<QString, QVariant> radiusRange{{QStringLiteral("suffix"), elementText(" px")},
                                                     {QStringLiteral("minimum"), 0},
                                                     {QStringLiteral("maximum"), int(LargestCornerRadius)},
                                                     {QStringLiteral("showSlider"), true}};
    m_cornerRadius =
        PropertyDeclaration<IntegerProperty>(this, QLatin1String("cornerRadius"), elementText("Corner Radius"), 0)
            .rank(15)
            .flags(Stored | Exported | Shown | Editable)
            .allowInvalid()
            .parameters(radiusRange)
            .validator(cornerRadiusValidator)
            .qmlCreator(cornerRadiusQml);
    return true;
}

void Rectangle::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() != QLatin1String("boundingSize"))
        return;
    const auto* item = dynamic_cast<const GraphicsRectangle*>(graphicsItem());
    if (!item || item->isChangingSize())
        return;

    const double border = ValueConversion::toBorderInfo(m_border->valueString()).width();
    followBoundingSize(this, property, oldValue, border, border + 1);
}

QList<RuntimeProperty> Rectangle::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), elementText("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("width"), elementText("Width"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("height"), elementText("Height"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("cornerRadius"), elementText("Corner Radius"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderWidth"), elementText("Border Width"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderColor"), elementText("Border Color"), EnumHelper::Color, true);
}

QRectF Rectangle::getBoundingRect() const
{
    return borderedFrame(*m_size, *m_border);
}

} // namespace Korvex::Meridane::Designer
