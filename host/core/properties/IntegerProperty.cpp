#include "host/core/properties/IntegerProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

IntegerProperty::IntegerProperty(DesignerObject* parent, const QString& id, const QString& name, int value)
    : TypedProperty(parent, id, name, value)
{}

IntegerProperty::~IntegerProperty() = default;

QString IntegerProperty::className() const
{
    return QStringLiteral("IntegerProperty");
}

QStringList IntegerProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("IntegerProperty");
}

QString IntegerProperty::convertToQml(int indent) const
{
    return DesignerObject::getTabs(indent) + id() + QStringLiteral(": ") + QString::number(value());
}

int IntegerProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toInt(valueString, ok);
}

QString IntegerProperty::write(const int& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
