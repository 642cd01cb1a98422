#include "host/core/commands/ChangeProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

ChangeProperty::ChangeProperty(const QSharedPointer<DesignerProperty>& property, const QString& value, bool wasSelected,
                               UndoCommand* parent)
    : UndoCommand(parent)
    , m_property(property)
    , m_value(value)
    , m_object(property ? property->parentObject() : nullptr)
    , m_wasSelected(wasSelected)
{
    if (property)
        setText(Common::LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(property->name()));
}

ChangeProperty::~ChangeProperty() = default;

QList<DesignerObject*> ChangeProperty::selectedItems() const
{
    QList<DesignerObject*> items = UndoCommand::selectedItems();
    if (m_wasSelected && m_object && !items.contains(m_object))
        items.prepend(m_object);
    return items;
}

bool ChangeProperty::isValid() const
{
    return m_property && m_object;
}

DesignerObject* ChangeProperty::activeItem() const
{
    return m_object;
}

void ChangeProperty::execute()
{
    QString message;
    if (m_object->changePropertyValue(m_property, m_value, &message))
        return;
    setRefusal(message.isEmpty()
                   ? Common::LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be changed to \"%2\"."))
                         .arg(m_property->name(), m_value)
                   : message);
}

} // namespace Korvex::Meridane::Designer
