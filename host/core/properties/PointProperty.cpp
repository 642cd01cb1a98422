#include "host/core/properties/PointProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

PointProperty::PointProperty(DesignerObject* parent, const QString& id, const QString& name, const QPointF& value)
    : TypedProperty(parent, id, name, value)
{}

PointProperty::~PointProperty() = default;

QString PointProperty::className() const
{
    return QStringLiteral("PointProperty");
}

QStringList PointProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("PointProperty");
}

QString PointProperty::convertToQml(int indent) const
{
    const QString tabs = DesignerObject::getTabs(indent);
    const QString x = ValueConversion::toQmlString(value().x(), 4);
    const QString y = ValueConversion::toQmlString(value().y(), 4);
    if (id() == QLatin1String("position"))
        return QStringLiteral("%1x: %2\n%1y: %3").arg(tabs, x, y);
    return QStringLiteral("%1%2: Qt.point(%3, %4)").arg(tabs, id(), x, y);
}

QPointF PointProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toPoint(valueString, ok);
}

QString PointProperty::write(const QPointF& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
