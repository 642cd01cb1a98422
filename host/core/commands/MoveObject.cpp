#include "host/core/commands/MoveObject.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

MoveObject::MoveObject(DesignerObject* object, int index, UndoCommand* parent)
    : UndoCommand(parent)
    , m_object(object)
    , m_to(index)
{
    setText(Common::LocalizationHelper::coreString(QStringLiteral("Change Order")));
}

MoveObject::~MoveObject() = default;

QList<DesignerObject*> MoveObject::selectedItems() const
{
    return m_object ? QList<DesignerObject*>{m_object} : QList<DesignerObject*>();
}

DesignerObject* MoveObject::activeItem() const
{
    return m_object;
}

bool MoveObject::isValid() const
{
    return m_object && m_object->parentObject() && m_object->parentObject()->childList();
}

void MoveObject::execute()
{
    const auto& siblings = m_object->parentObject()->childList()->items();
    m_from = int(siblings.indexOf(m_object.data()));
    m_to = std::clamp(m_to, 0, int(siblings.size()) - 1);
    move(m_to);
}

void MoveObject::undoStructure()
{
    move(m_from);
}

void MoveObject::redoStructure()
{
    move(m_to);
}

bool MoveObject::structureChanged() const
{
    return m_from >= 0 && m_from != m_to;
}

void MoveObject::move(int to)
{
    DesignerObject* parent = m_object->parentObject();
    ObjectListProperty* list = parent->childList();
    parent->moveListItem(list, int(list->items().indexOf(m_object.data())), to);
}

} // namespace Korvex::Meridane::Designer
