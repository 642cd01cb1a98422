#include "host/core/sheet/SelectAgain.h"

#include "host/core/objects/DesignerObject.h"

namespace Korvex::Meridane::Designer {

SelectAgain::SelectAgain(const QList<DesignerObject*>& objects, UndoCommand* parent)
    : UndoCommand(parent)
    , m_objects(objects.begin(), objects.end())
{}

SelectAgain::~SelectAgain() = default;

QList<DesignerObject*> SelectAgain::selectedItems() const
{
    QList<DesignerObject*> objects;
    for (const QPointer<DesignerObject>& object : m_objects) {
        if (object)
            objects.append(object);
    }
    return objects;
}

} // namespace Korvex::Meridane::Designer
