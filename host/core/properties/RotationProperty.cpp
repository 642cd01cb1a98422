#include "host/core/properties/RotationProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

RotationProperty::RotationProperty(DesignerObject* parent, const QString& id, const QString& name,
                                   const RotationInfo& value)
    : TypedProperty(parent, id, name, value)
{}

RotationProperty::~RotationProperty() = default;

QString RotationProperty::className() const
{
    return QStringLiteral("RotationProperty");
}

QStringList RotationProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("RotationProperty");
}

QString RotationProperty::convertToQml(int indent) const
{
    const QString tabs = DesignerObject::getTabs(indent);
    QString qml = tabs + QStringLiteral("rotation: ") + ValueConversion::toQmlString(value().angle(), 4);
    if (value().fixedPoint() != QLatin1String("Center"))
        qml += QStringLiteral("\n%1fixedPoint: \"%2\"").arg(tabs, value().fixedPoint());
    return qml;
}

RotationInfo RotationProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toRotationInfo(valueString, ok);
}

QString RotationProperty::write(const RotationInfo& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
