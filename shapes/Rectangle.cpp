#include "shapes/Rectangle.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/BorderProperty.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/PaintHelper.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;
using Common::LocalizationHelper;
using Common::PaintHelper;

namespace {

constexpr unsigned LargestCornerRadius = 100;

QString text(const char* source)
{
    return LocalizationHelper::visualDesignerString(QString::fromUtf8(source));
}

/// The radius is 0 to 100 px and at most half the smaller side.
bool cornerRadiusValidator(const DesignerProperty* property, QString& message)
{
    message.clear();
    bool ok = false;
    const int radius = ValueConversion::toInt(property->valueString(), &ok);
    if (!ok || unsigned(radius) > LargestCornerRadius) {
        message = text("The corner radius must be between 0 and 100.");
        return false;
    }
    const auto sizeProperty = property->parentObject()->getProperty(QStringLiteral("size"));
    const QSizeF size = ValueConversion::toSize(sizeProperty->valueString());
    const double limit = 0.5 * std::min(size.width(), size.height());
    if (radius <= limit)
        return true;
    message = text("The corner radius must be smaller than or equal to %1 px.").arg(int(std::floor(limit)));
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
    return text("Rectangle");
}

QString Rectangle::qmlName() const
{
    return QStringLiteral("Rectangle2");
}

GraphicsItem* Rectangle::createGraphicsItem()
{
    GraphicsItem* item = DesignerFactory::instance()->createGraphicsItem(QStringLiteral("GraphicsRectangle"), this);
    if (!item)
        return nullptr;
    item->graphic()->setFlag(QGraphicsItem::ItemIsSelectable, true);
    item->graphic()->setFlag(QGraphicsItem::ItemIsMovable, true);
    item->setResizable(true);
    item->setRotatable(true);
    return item;
}

bool Rectangle::initializeProperties()
{
    if (!VisualElement::initializeProperties())
        return false;
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Screen"));
    info.setFilterType(QStringLiteral("Rectangle"));
    info.setBase(QStringLiteral("rectangle"));
    info.setName(QStringLiteral("rectangle"));
    if (!setIdInfo(info))
        return false;

    // Shared by all rectangles.
    static const QMap<QString, QVariant> atLeastOnePixel{{QStringLiteral("minimumValue"), QSizeF(1, 1)}};
    static const QMap<QString, QVariant> keepRatioTip{
        {QStringLiteral("tooltip"), text("Maintain aspect ratio when resizing by mouse or through the editor")}};
    static const QMap<QString, QVariant> radiusRange{{QStringLiteral("suffix"), text(" px")},
                                                     {QStringLiteral("minimum"), 0},
                                                     {QStringLiteral("maximum"), int(LargestCornerRadius)},
                                                     {QStringLiteral("showSlider"), true}};
    m_size = PropertyDeclaration<SizeProperty>(this, QLatin1String("size"), text("Size"), QSizeF(100, 75))
                 .rank(10)
                 .flags(Stored | Exported)
                 .allowInvalid()
                 .editor(QLatin1String("SizeEditor"), atLeastOnePixel);
    m_boundingSize =
        PropertyDeclaration<SizeProperty>(this, QLatin1String("boundingSize"), text("Size"), QSizeF(100, 75))
            .rank(11)
            .flags(Shown | Editable)
            .allowInvalid()
            .editor(QLatin1String("SizeEditor"), atLeastOnePixel);
    m_keepRatio =
        PropertyDeclaration<RealProperty>(this, QLatin1String("keepRatio"), text("Maintain Aspect Ratio"), 0.0)
            .rank(12)
            .flags(Shown | Editable)
            .allowInvalid()
            .editor(QLatin1String("KeepRatioEditor"), keepRatioTip);
    m_color = PropertyDeclaration<ColorProperty>(this, QLatin1String("color"), text("Color"), QColor(248, 151, 29, 255))
                  .rank(13)
                  .allowInvalid();
    m_border =
        PropertyDeclaration<BorderProperty>(this, QLatin1String("border"), text("Border"), BorderInfo(0, Qt::black))
            .rank(14)
            .allowInvalid();
    m_cornerRadius = PropertyDeclaration<IntegerProperty>(this, QLatin1String("cornerRadius"), text("Corner Radius"), 0)
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

    bool ratioOk = false;
    const double ratio = ValueConversion::toReal(m_keepRatio->valueString(), &ratioOk);
    const double border = ValueConversion::toBorderInfo(m_border->valueString()).width();
    const auto outer =
        reactToBoundingSize(ValueConversion::toSize(oldValue), ValueConversion::toSize(property->valueString()),
                            border + 1, ratioOk ? ratio : 0);
    if (!outer) {
        qDebug("Should not reach here");
        return;
    }
    changePropertyValue(m_size, ValueConversion::toString(*outer - QSizeF(border, border)));
}

QList<RuntimeProperty> Rectangle::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), text("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("width"), text("Width"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("height"), text("Height"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("cornerRadius"), text("Corner Radius"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderWidth"), text("Border Width"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderColor"), text("Border Color"), EnumHelper::Color, true);
}

QRectF Rectangle::getBoundingRect() const
{
    bool sizeOk = false;
    bool borderOk = false;
    const QSizeF size = ValueConversion::toSize(m_size->valueString(), &sizeOk);
    const BorderInfo border = ValueConversion::toBorderInfo(m_border->valueString(), &borderOk);
    if (!sizeOk || !borderOk)
        return {};
    return PaintHelper::getBoundingRect(size.width(), size.height(), border.width());
}

} // namespace Korvex::Meridane::Designer
