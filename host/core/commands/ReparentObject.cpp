#include "host/core/commands/ReparentObject.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

namespace {

/// Whether \a owner is \a object or stands in it.
bool standsIn(const DesignerObject* owner, const DesignerObject* object)
{
    for (; owner; owner = owner->parentObject()) {
        if (owner == object)
            return true;
    }
    return false;
}

} // namespace

ReparentObject::ReparentObject(DesignerObject* object, DesignerObject* owner, int index, Select select,
                               UndoCommand* parent)
    : UndoCommand(parent)
    , m_object(object)
    , m_before(object ? object->parentObject() : nullptr)
    , m_after(owner)
    , m_indexAfter(index)
    , m_select(select)
{}

ReparentObject::~ReparentObject() = default;

QList<DesignerObject*> ReparentObject::selectedItems() const
{
    if (!m_object || m_select == Select::Never)
        return {};
    const bool isThere = m_object->parentObject() == m_after;
    return isThere == (m_select == Select::AtTheNewPlace) ? QList<DesignerObject*>{m_object} : QList<DesignerObject*>();
}

DesignerObject* ReparentObject::activeItem() const
{
    return m_object;
}

bool ReparentObject::isValid() const
{
    return m_object && m_before && m_after && m_before->childList() && m_after->childList();
}

void ReparentObject::execute()
{
    m_indexBefore = int(m_before->childList()->items().indexOf(m_object.data()));
    m_moved = m_before != m_after && !standsIn(m_after, m_object) && move(m_before, m_after, m_indexAfter);
    if (!m_moved) {
        setRefusal(Common::LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be moved there."))
                       .arg(m_object->getIdName()));
    }
}

void ReparentObject::undoStructure()
{
    (void)move(m_after, m_before, m_indexBefore);
}

void ReparentObject::redoStructure()
{
    (void)move(m_before, m_after, m_indexAfter);
}

bool ReparentObject::structureChanged() const
{
    return m_moved;
}

/// False leaves the object where it is.
bool ReparentObject::move(DesignerObject* from, DesignerObject* to, int index)
{
    const int place = int(from->childList()->items().indexOf(m_object.data()));
    if (!from->removeListItem(from->childList(), m_object))
        return false;
    if (to->addListItem(to->childList(), m_object, index))
        return true;
    from->addListItem(from->childList(), m_object, place);
    return false;
}

} // namespace Korvex::Meridane::Designer
