#include "host/core/properties/SizeProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

SizeProperty::SizeProperty(DesignerObject* parent, const QString& id, const QString& name, const QSizeF& value)
    : TypedProperty(parent, id, name, value)
{}

SizeProperty::~SizeProperty() = default;

QString SizeProperty::className() const
{
    return QStringLiteral("SizeProperty");
}

QStringList SizeProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("SizeProperty");
}

QString SizeProperty::convertToQml(int indent) const
{
    return QStringLiteral("%1width: %2\n%1height: %3")
        .arg(DesignerObject::getTabs(indent), ValueConversion::toQmlString(value().width(), 4),
             ValueConversion::toQmlString(value().height(), 4));
}

QSizeF SizeProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toSize(valueString, ok);
}

QString SizeProperty::write(const QSizeF& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
