#include "host/core/canvas/CanvasSelection.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include <QGraphicsItem>
#include <QSet>

namespace Korvex::Meridane::Designer {

void CanvasSelection::letGo(const QList<DesignerObject*>& objects)
{
    const GraphicsItem* item = objects.isEmpty() ? nullptr : objects.constFirst()->graphicsItem();
    auto* scene = item ? qobject_cast<CanvasScene*>(item->graphic()->scene()) : nullptr;
    if (!scene || scene->selectedItems().isEmpty())
        return;
    const QSet<const DesignerObject*> going(objects.cbegin(), objects.cend());
    QList<DesignerObject*> remaining = scene->selectedObjects();
    remaining.removeIf([&going](const DesignerObject* object) {
        while (object && !going.contains(object))
            object = object->parentObject();
        return object != nullptr;
    });
    scene->setSelectedObjects(remaining);
}

} // namespace Korvex::Meridane::Designer
