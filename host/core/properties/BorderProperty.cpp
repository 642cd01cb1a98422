#include "host/core/properties/BorderProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

BorderProperty::BorderProperty(DesignerObject* parent, const QString& id, const QString& name, const BorderInfo& value)
    : TypedProperty(parent, id, name, value)
{}

BorderProperty::~BorderProperty() = default;

QString BorderProperty::className() const
{
    return QStringLiteral("BorderProperty");
}

QStringList BorderProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("BorderProperty");
}

QString BorderProperty::convertToQml(int indent) const
{
    return QStringLiteral("%1borderWidth: %2\n%1borderColor: \"%3\"")
        .arg(DesignerObject::getTabs(indent), QString::number(value().width()),
             ValueConversion::toString(value().color()));
}

BorderInfo BorderProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toBorderInfo(valueString, ok);
}

QString BorderProperty::write(const BorderInfo& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
