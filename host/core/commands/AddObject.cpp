#include "host/core/commands/AddObject.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

AddObject::AddObject(DesignerObject* owner, std::unique_ptr<DesignerObject> object, int index, UndoCommand* parent)
    : UndoCommand(parent)
    , m_owner(owner)
    , m_held(std::move(object))
    , m_object(m_held.get())
    , m_index(index)
{
    if (m_object)
        setText(Common::LocalizationHelper::coreString(QStringLiteral("Add %1")).arg(m_object->displayName()));
}

AddObject::~AddObject() = default;

QList<DesignerObject*> AddObject::selectedItems() const
{
    return m_held ? QList<DesignerObject*>() : QList<DesignerObject*>{m_object};
}

DesignerObject* AddObject::activeItem() const
{
    return m_held ? nullptr : m_object;
}

bool AddObject::isValid() const
{
    return m_owner && m_object && m_owner->childList();
}

void AddObject::execute()
{
    m_added = m_owner->addListItem(m_owner->childList(), m_object, m_index);
    if (m_added) {
        m_held.release(); // NOLINT(bugprone-unused-return-value): the parent owns it now
    } else {
        setRefusal(Common::LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be added here."))
                       .arg(m_object->displayName()));
    }
}

void AddObject::undoStructure()
{
    if (m_owner->removeListItem(m_owner->childList(), m_object))
        m_held.reset(m_object);
}

void AddObject::redoStructure()
{
    if (m_held && m_owner->addListItem(m_owner->childList(), m_object, m_index))
        m_held.release(); // NOLINT(bugprone-unused-return-value): the parent owns it now
}

bool AddObject::structureChanged() const
{
    return m_added;
}

} // namespace Korvex::Meridane::Designer
