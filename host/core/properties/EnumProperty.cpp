#include "host/core/properties/EnumProperty.h"

#include "host/core/objects/DesignerObject.h"

namespace Korvex::Meridane::Designer {

EnumProperty::EnumProperty(DesignerObject* parent, const QString& id, const QString& name, const EnumInfo& value)
    : TypedProperty(parent, id, name, value)
{}

EnumProperty::~EnumProperty() = default;

QString EnumProperty::className() const
{
    return QStringLiteral("EnumProperty");
}

QStringList EnumProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("EnumProperty");
}

QString EnumProperty::convertToQml(int indent) const
{
    return DesignerObject::getTabs(indent) + id() + QStringLiteral(": ") + QString::number(value().value());
}

EnumInfo EnumProperty::parse(const QString& valueString, bool* ok) const
{
    const QMetaEnum& metaEnum = value().metaEnum();
    const int number = metaEnum.isValid() ? metaEnum.keyToValue(valueString.toLatin1().constData(), ok) : 0;
    // Only the bare key is a value string: a scoped one or a list of flags would not be written back as it stands.
    *ok = metaEnum.isValid() && *ok && EnumInfo(metaEnum, number).key() == valueString;
    return EnumInfo(metaEnum, number);
}

QString EnumProperty::write(const EnumInfo& value) const
{
    return value.key();
}

} // namespace Korvex::Meridane::Designer
