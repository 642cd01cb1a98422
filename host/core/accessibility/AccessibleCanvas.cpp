#include "host/core/accessibility/AccessibleCanvas.h"

#include "host/core/accessibility/AccessibleElement.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

AccessibleCanvas::AccessibleCanvas(CanvasView* view)
    : QAccessibleWidget(view, QAccessible::Canvas)
{}

CanvasView* AccessibleCanvas::view() const
{
    return static_cast<CanvasView*>(widget());
}

QVector<DesignerObject*> AccessibleCanvas::elements() const
{
    const CanvasScene* scene = view()->canvasScene();
    return AccessibleElement::childrenOf(scene ? scene->screen() : nullptr);
}

int AccessibleCanvas::childCount() const
{
    return int(elements().size());
}

QAccessibleInterface* AccessibleCanvas::child(int index) const
{
    return AccessibleElement::of(elements().value(index));
}

int AccessibleCanvas::indexOfChild(const QAccessibleInterface* child) const
{
    auto* object = child ? qobject_cast<DesignerObject*>(child->object()) : nullptr;
    return object ? int(elements().indexOf(object)) : -1;
}

QAccessibleInterface* AccessibleCanvas::childAt(int x, int y) const
{
    const CanvasScene* scene = view()->canvasScene();
    const QPoint place = view()->viewport()->mapFromGlobal(QPoint(x, y));
    if (!scene || !view()->viewport()->rect().contains(place))
        return nullptr;
    for (DesignerObject* found : scene->elementsAt(view()->mapToScene(place))) {
        while (found && found->parentObject() != scene->screen())
            found = found->parentObject();
        if (found)
            return AccessibleElement::of(found);
    }
    return nullptr;
}

QAccessibleInterface* AccessibleCanvas::focusChild() const
{
    const QList<DesignerObject*>& selection = view()->session()->selection();
    return view()->hasFocus() && selection.size() == 1 ? AccessibleElement::of(selection.constFirst())
                                                       : QAccessibleWidget::focusChild();
}

QString AccessibleCanvas::text(QAccessible::Text kind) const
{
    const CanvasScene* scene = view()->canvasScene();
    if (kind != QAccessible::Description || !scene)
        return QAccessibleWidget::text(kind);
    return LocalizationHelper::coreString(QStringLiteral("Screen %1 with %n element"),
                                          QStringLiteral("Screen %1 with %n elements"), childCount())
        .arg(scene->screen()->getIdName());
}

} // namespace Korvex::Meridane::Designer
