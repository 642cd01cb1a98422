#pragma once

#include "host/core/objects/Screen.h"
#include "host/core/properties/ObjectListProperty.h"

namespace Korvex::Meridane::Designer {

/// Ways through the tree of objects, down to what is below one and up to what it stands in.
class ObjectTree
{
public:
    ObjectTree() = delete;

    /// Visits \a object and everything below it, each object before its children. Screens that have not been read are visited, but stay unread.
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

    /// The screen that \a object stands on, \a object itself for a screen; null for the project and what stands nowhere.
    [[nodiscard]] static Screen* screenOf(DesignerObject* object)
    {
        while (object && !qobject_cast<Screen*>(object))
            object = object->parentObject();
        return qobject_cast<Screen*>(object);
    }
    [[nodiscard]] static const Screen* screenOf(const DesignerObject* object)
    {
        while (object && !qobject_cast<const Screen*>(object))
            object = object->parentObject();
        return qobject_cast<const Screen*>(object);
    }

    /// Whether \a object is \a owner or stands in it.
    [[nodiscard]] static bool isWithin(const DesignerObject* object, const DesignerObject* owner)
    {
        while (object && object != owner)
            object = object->parentObject();
        return object != nullptr;
    }

    /// "screen/id" for an element, the id for a screen, empty for a project.
    [[nodiscard]] static QString name(const DesignerObject* object)
    {
        const Screen* screen = screenOf(object);
        return screen && screen != object ? screen->getIdName() + QLatin1Char('/') + object->getIdName()
                                          : object->getIdName();
    }
};

} // namespace Korvex::Meridane::Designer
