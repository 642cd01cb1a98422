#include "host/core/properties/RealProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

RealProperty::RealProperty(DesignerObject* parent, const QString& id, const QString& name, double value)
    : TypedProperty(parent, id, name, value)
{}

RealProperty::~RealProperty() = default;

QString RealProperty::className() const
{
    return QStringLiteral("RealProperty");
}

QStringList RealProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("RealProperty");
}

QString RealProperty::convertToQml(int indent) const
{
    return DesignerObject::getTabs(indent) + id() + QStringLiteral(": ") + ValueConversion::toQmlString(value(), 4);
}

double RealProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toReal(valueString, ok);
}

QString RealProperty::write(const double& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
