#include "host/core/commands/ChangeProperties.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

ChangeProperties::ChangeProperties(DesignerObject* object, const QList<Value>& values, UndoCommand* parent)
    : UndoCommand(parent)
    , m_object(object)
    , m_values(values)
{}

ChangeProperties::~ChangeProperties() = default;

bool ChangeProperties::isValid() const
{
    return m_object && !m_values.isEmpty();
}

DesignerObject* ChangeProperties::activeItem() const
{
    return m_object;
}

void ChangeProperties::execute()
{
    QList<Value> refused;
    for (const Value& value : std::as_const(m_values)) {
        if (!m_object->changePropertyValue(value.property, value.text))
            refused.append(value);
    }
    // Each of them with the others in their places: filled, so that only its own change runs its reaction.
    QStringList before;
    for (const Value& value : std::as_const(refused)) {
        before.append(value.property->valueString());
        value.property->fill(value.text);
    }
    for (qsizetype i = 0; i < refused.size(); ++i) {
        refused.at(i).property->fill(before.at(i));
        if (refusal().isEmpty())
            change(refused.at(i));
    }
}

void ChangeProperties::change(const Value& value)
{
    QString message;
    if (m_object->changePropertyValue(value.property, value.text, &message))
        return;
    setRefusal(message.isEmpty()
                   ? Common::LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be changed to \"%2\"."))
                         .arg(value.property->name(), value.text)
                   : message);
}

} // namespace Korvex::Meridane::Designer
