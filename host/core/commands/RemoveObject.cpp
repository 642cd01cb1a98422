#include "host/core/commands/RemoveObject.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

RemoveObject::RemoveObject(DesignerObject* object, UndoCommand* parent)
    : UndoCommand(parent)
    , m_owner(object ? object->parentObject() : nullptr)
    , m_object(object)
{
    if (object)
        setText(Common::LocalizationHelper::coreString(QStringLiteral("Remove %1")).arg(object->displayName()));
}

RemoveObject::~RemoveObject() = default;

QList<DesignerObject*> RemoveObject::selectedItems() const
{
    return m_held ? QList<DesignerObject*>() : QList<DesignerObject*>{m_object};
}

DesignerObject* RemoveObject::deletionCandidate() const
{
    return m_object;
}

DesignerObject* RemoveObject::activeItem() const
{
    return m_held ? nullptr : m_object;
}

bool RemoveObject::isValid() const
{
    return m_owner && m_object && m_owner->childList();
}

void RemoveObject::execute()
{
    m_index = int(m_owner->childList()->items().indexOf(m_object));
    m_removed = m_owner->removeListItem(m_owner->childList(), m_object);
    if (m_removed) {
        m_held.reset(m_object);
    } else {
        setRefusal(Common::LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be removed."))
                       .arg(m_object->getIdName()));
    }
}

void RemoveObject::undoStructure()
{
    if (m_held && m_owner->addListItem(m_owner->childList(), m_object, m_index))
        m_held.release(); // NOLINT(bugprone-unused-return-value): the parent owns it now
}

void RemoveObject::redoStructure()
{
    if (m_owner->removeListItem(m_owner->childList(), m_object))
        m_held.reset(m_object);
}

bool RemoveObject::structureChanged() const
{
    return m_removed;
}

} // namespace Korvex::Meridane::Designer
