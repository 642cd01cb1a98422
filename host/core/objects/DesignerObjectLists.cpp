// The part of DesignerObject that changes lists of objects: who holds whom, and the ids that come and go with it.

#include "host/core/objects/DesignerObject.h"

#include "host/core/objects/IdRegistry.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

namespace Korvex::Meridane::Designer {

namespace {

/// Visits \a object and everything below it that lives in the same scope.
template <typename Visitor>
void visitScope(DesignerObject* object, const Visitor& visit)
{
    visit(object);
    if (object->ownIdScope())
        return;
    if (const ObjectListProperty* list = object->childList()) {
        for (DesignerObject* child : list->items())
            visitScope(child, visit);
    }
}

} // namespace

bool DesignerObject::addListItem(ObjectListProperty* list, DesignerObject* object, int index)
{
    if (!list || !object || list->parentObject() != this)
        return false;
    const bool isHeld = object->parentObject() == this && list->m_items.contains(object);
    if (isHeld || !beforeListItemAdded(list, object))
        return false;
    const int last = int(list->m_items.size());
    object->setParent(this);
    list->m_items.insert(index < 0 || index > last ? last : index, object);
    if (IdRegistry* scope = object->idScope()) {
        visitScope(object, [scope](DesignerObject* entering) {
            if (entering->m_idName.isEmpty() || !scope->insert(entering->m_idName, entering)) {
                const QString& base = entering->m_idInfo.base();
                const QString old = entering->m_idName;
                entering->m_idName = scope->freeId(base.isEmpty() ? QStringLiteral("element") : base);
                scope->insert(entering->m_idName, entering);
                Q_EMIT entering->idNameChanged(old);
            }
        });
    }
    afterListItemAdded(list, object);
    afterListPropertyChanged();
    Q_EMIT childrenChanged();
    if (Project* project = Project::parentProject(this))
        Q_EMIT project->objectAdded(object);
    return true;
}

bool DesignerObject::removeListItem(ObjectListProperty* list, DesignerObject* object)
{
    if (!list || !object || list->parentObject() != this || !list->m_items.contains(object)
        || !beforeListItemRemoved(list, object))
        return false;
    if (IdRegistry* scope = object->idScope())
        visitScope(object, [scope](DesignerObject* leaving) { scope->remove(leaving->m_idName); });
    list->m_items.removeOne(object);
    object->setParent(nullptr);
    afterListItemRemoved(list, object);
    afterListPropertyChanged();
    Q_EMIT childrenChanged();
    if (Project* project = Project::parentProject(this))
        Q_EMIT project->objectRemoved(object, this);
    return true;
}

void DesignerObject::moveListItem(ObjectListProperty* list, int from, int to)
{
    const auto count = list->m_items.size();
    if (list->parentObject() != this || from == to || from < 0 || to < 0 || from >= count || to >= count)
        return;
    list->m_items.move(from, to);
    afterListPropertyChanged();
    Q_EMIT childrenChanged();
    if (Project* project = Project::parentProject(this))
        Q_EMIT project->objectReordered(list->m_items.at(to));
}

} // namespace Korvex::Meridane::Designer
