#pragma once

#include "host/core/objects/Screen.h"
#include "host/core/properties/ObjectListProperty.h"

namespace Korvex::Meridane::Designer {

/// Walks over objects and what is below them, each object before its children.
class ObjectTree
{
public:
    ObjectTree() = delete;

    /// Visits \a object and everything below it. Screens that have not been read are visited, but stay unread.
    template <typename Visitor>
    static void visitRead(const DesignerObject* object, const Visitor& visit)
    {
        visit(object);
        const auto* screen = qobject_cast<const Screen*>(object);
        if (screen && !screen->isContentRead())
            return;
        if (const ObjectListProperty* list = object->childList()) {
            for (const DesignerObject* child : list->items())
                visitRead(child, visit);
        }
    }

    /// "screen/id" for an element, the id for a screen, empty for a project.
    [[nodiscard]] static QString name(const DesignerObject* object)
    {
        for (const DesignerObject* above = object; above; above = above->parentObject()) {
            if (qobject_cast<const Screen*>(above)) {
                return above == object ? object->getIdName()
                                       : above->getIdName() + QLatin1Char('/') + object->getIdName();
            }
        }
        return object->getIdName();
    }
};

} // namespace Korvex::Meridane::Designer
