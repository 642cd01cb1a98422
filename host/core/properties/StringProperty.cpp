#include "host/core/properties/StringProperty.h"

#include "host/core/objects/DesignerObject.h"

#include "host/common/TextHelper.h"

namespace Korvex::Meridane::Designer {

using Common::TextHelper;

StringProperty::StringProperty(DesignerObject* parent, const QString& id, const QString& name, const QString& value)
    : TypedProperty(parent, id, name, value)
{}

StringProperty::~StringProperty() = default;

QString StringProperty::className() const
{
    return QStringLiteral("StringProperty");
}

QStringList StringProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("StringProperty");
}

QString StringProperty::convertToQml(int indent) const
{
    return QStringLiteral("%1%2: \"%3\"")
        .arg(DesignerObject::getTabs(indent), id(), TextHelper::toQmlValueString(value()));
}

QString StringProperty::parse(const QString& valueString, bool* ok) const
{
    *ok = true;
    return valueString;
}

QString StringProperty::write(const QString& value) const
{
    return value;
}

} // namespace Korvex::Meridane::Designer
