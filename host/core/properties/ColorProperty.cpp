#include "host/core/properties/ColorProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

ColorProperty::ColorProperty(DesignerObject* parent, const QString& id, const QString& name, const QColor& value)
    : TypedProperty(parent, id, name, value)
{}

ColorProperty::~ColorProperty() = default;

QString ColorProperty::className() const
{
    return QStringLiteral("ColorProperty");
}

QStringList ColorProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("ColorProperty");
}

QString ColorProperty::convertToQml(int indent) const
{
    return QStringLiteral("%1%2: \"%3\"").arg(DesignerObject::getTabs(indent), id(), convertToValueString());
}

QColor ColorProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toColor(valueString, ok);
}

QString ColorProperty::write(const QColor& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
