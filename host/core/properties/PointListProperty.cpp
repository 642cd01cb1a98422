#include "host/core/properties/PointListProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

PointListProperty::PointListProperty(DesignerObject* parent, const QString& id, const QString& name,
                                     const QPolygonF& value)
    : TypedProperty(parent, id, name, value)
{}

PointListProperty::~PointListProperty() = default;

QString PointListProperty::className() const
{
    return QStringLiteral("PointListProperty");
}

QStringList PointListProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("PointListProperty");
}

QString PointListProperty::convertToQml(int indent) const
{
    QStringList points;
    points.reserve(value().size());
    for (const QPointF& point : value()) {
        points.append(QStringLiteral("[%1, %2]")
                          .arg(ValueConversion::toQmlString(point.x(), 4), ValueConversion::toQmlString(point.y(), 4)));
    }
    if (points.isEmpty())
        return DesignerObject::getTabs(indent) + QStringLiteral("points: []");
    return QStringLiteral("%1points: [ %2 ]").arg(DesignerObject::getTabs(indent), points.join(QLatin1String(", ")));
}

QPolygonF PointListProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toPolygon(valueString, ok);
}

QString PointListProperty::write(const QPolygonF& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
