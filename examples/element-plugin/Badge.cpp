#include "examples/element-plugin/Badge.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QGraphicsItem>

namespace Example {

using Korvex::Meridane::Common::EnumHelper;

namespace {

/// The diameter as the lines that a rectangle with round corners has.
QString diameterQml(const DesignerProperty* property, int indent)
{
    const int diameter = ValueConversion::toInt(property->valueString());
    return QStringLiteral("%1width: %2\n%1height: %2\n%1cornerRadius: %3")
        .arg(DesignerObject::getTabs(indent))
        .arg(diameter)
        .arg(diameter / 2);
}

bool diameterValidator(const DesignerProperty* property, QString& message)
{
    bool ok = false;
    const int diameter = ValueConversion::toInt(property->valueString(), &ok);
    if (!ok || diameter < 4 || diameter > 200)
        message = QStringLiteral("The diameter must be between 4 and 200.");
    return message.isEmpty();
}

} // namespace

Badge::Badge(QObject* parent)
    : VisualElement(parent)
{}

QString Badge::className() const
{
    return QStringLiteral("Badge");
}

QStringList Badge::classNames() const
{
    return VisualElement::classNames() << className();
}

QString Badge::displayName() const
{
    return QStringLiteral("Badge");
}

QString Badge::qmlName() const
{
    return QStringLiteral("Rectangle2");
}

GraphicsItem* Badge::createGraphicsItem()
{
    GraphicsItem* item = DesignerFactory::instance()->createGraphicsItem(QStringLiteral("GraphicsBadge"), this);
    if (!item)
        return nullptr;
    item->graphic()->setFlag(QGraphicsItem::ItemIsSelectable);
    item->graphic()->setFlag(QGraphicsItem::ItemIsMovable);
    return item;
}

bool Badge::initializeProperties()
{
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Screen"));
    info.setFilterType(className());
    info.setBase(QStringLiteral("badge"));
    info.setName(QStringLiteral("badge"));
    if (!VisualElement::initializeProperties() || !setIdInfo(info))
        return false;
    m_diameter = PropertyDeclaration<IntegerProperty>(this, QLatin1String("diameter"), QStringLiteral("Diameter"), 24)
                     .rank(10)
                     .parameters({{QStringLiteral("minimum"), 4},
                                  {QStringLiteral("maximum"), 200},
                                  {QStringLiteral("suffix"), QStringLiteral(" px")}})
                     .validator(diameterValidator)
                     .qmlCreator(diameterQml);
    m_color =
        PropertyDeclaration<ColorProperty>(this, QLatin1String("color"), QStringLiteral("Color"), QColor(200, 30, 30))
            .rank(11);
    return true;
}

QList<RuntimeProperty> Badge::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), QStringLiteral("Color"), EnumHelper::Color, true);
}

QRectF Badge::getBoundingRect() const
{
    const int diameter = ValueConversion::toInt(m_diameter->valueString());
    return {0, 0, double(diameter), double(diameter)};
}

} // namespace Example
