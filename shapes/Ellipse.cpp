#include "shapes/Ellipse.h"

#include "shapes/BorderedFrame.h"
#include "shapes/GraphicsEllipse.h"

#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

Ellipse::Ellipse(QObject* parent)
    : VisualElement(parent)
{}

Ellipse::~Ellipse() = default;

QString Ellipse::className() const
{
    return QStringLiteral("Ellipse");
}

QStringList Ellipse::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("Ellipse");
}

QString Ellipse::displayName() const
{
    return elementText("Ellipse");
}

GraphicsItem* Ellipse::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsEllipse"));
}

bool Ellipse::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("Ellipse"), QStringLiteral("ellipse")))
        return false;
    m_size = ElementProperties::declareSize(this, 10, QSizeF(100, 75));
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, QSizeF(100, 75));
    m_keepRatio = ElementProperties::declareKeepRatio(this, 12);
    m_color = ElementProperties::declareFillColor(this, 13);
    m_border = ElementProperties::declareBorder(this, 14);
    return true;
}

void Ellipse::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() != QLatin1String("boundingSize"))
        return;
    const auto* item = dynamic_cast<const GraphicsEllipse*>(graphicsItem());
    if (!item || item->isChangingSize())
        return;
    // A thick border would close over the content of a smaller ellipse.
    const double border = ValueConversion::toBorderInfo(m_border->valueString()).width();
    followBoundingSize(this, property, oldValue, border, border > 1 ? 2 * border : border + 1);
}

QList<RuntimeProperty> Ellipse::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), elementText("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("width"), elementText("Width"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("height"), elementText("Height"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("borderWidth"), elementText("Border Width"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderColor"), elementText("Border Color"), EnumHelper::Color, true);
}

QRectF Ellipse::getBoundingRect() const
{
    return borderedFrame(*m_size, *m_border);
}

} // namespace Korvex::Meridane::Designer
