#include "host/core/accessibility/AccessibleElement.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QGraphicsScene>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// What an element that shows a text says; null for the others.
QString shownText(const DesignerObject* element)
{
    const auto property = element->getProperty(QStringLiteral("text"));
    return property ? property->valueString() : QString();
}

QString nameOf(const DesignerObject* element)
{
    const QString text = shownText(element);
    if (text.isEmpty())
        return LocalizationHelper::coreString(QStringLiteral("%1, %2"))
            .arg(element->getIdName(), element->displayName());
    return LocalizationHelper::coreString(QStringLiteral("%1, %2: %3"))
        .arg(element->getIdName(), element->displayName(), text);
}

} // namespace

AccessibleElement::AccessibleElement(DesignerObject* element)
    : QAccessibleObject(element)
{}

AccessibleElement::~AccessibleElement() = default;

QAccessibleInterface* AccessibleElement::of(DesignerObject* element)
{
    return viewOf(element) ? QAccessible::queryAccessibleInterface(element) : nullptr;
}

QVector<DesignerObject*> AccessibleElement::childrenOf(const DesignerObject* owner)
{
    const ObjectListProperty* list = owner ? owner->childList() : nullptr;
    QVector<DesignerObject*> children = list ? list->items() : QVector<DesignerObject*>();
    // What no plug-in serves has no picture.
    children.removeIf([](const DesignerObject* child) { return !child->graphicsItem(); });
    return children;
}

CanvasView* AccessibleElement::viewOf(const DesignerObject* element)
{
    const GraphicsItem* item = element ? element->graphicsItem() : nullptr;
    const QGraphicsScene* scene = item ? item->graphic()->scene() : nullptr;
    if (!scene)
        return nullptr;
    for (QGraphicsView* view : scene->views()) {
        if (auto* canvas = qobject_cast<CanvasView*>(view))
            return canvas;
    }
    return nullptr;
}

DesignerObject* AccessibleElement::element() const
{
    return static_cast<DesignerObject*>(object());
}

bool AccessibleElement::isValid() const
{
    return viewOf(element()) != nullptr;
}

QAccessibleInterface* AccessibleElement::parent() const
{
    CanvasView* view = viewOf(element());
    if (!view)
        return nullptr;
    DesignerObject* owner = element()->parentObject();
    QAccessibleInterface* group = owner && owner->parentObject() ? of(owner) : nullptr;
    return group && group->role() == QAccessible::Grouping ? group : QAccessible::queryAccessibleInterface(view);
}

int AccessibleElement::childCount() const
{
    return isValid() ? int(childrenOf(element()).size()) : 0;
}

QAccessibleInterface* AccessibleElement::child(int index) const
{
    return isValid() ? of(childrenOf(element()).value(index)) : nullptr;
}

int AccessibleElement::indexOfChild(const QAccessibleInterface* child) const
{
    auto* object = child ? qobject_cast<DesignerObject*>(child->object()) : nullptr;
    return object && isValid() ? int(childrenOf(element()).indexOf(object)) : -1;
}

QAccessibleInterface* AccessibleElement::childAt(int x, int y) const
{
    for (int i = childCount() - 1; i >= 0; --i) {
        QAccessibleInterface* found = child(i);
        if (found && !found->state().invisible && found->rect().contains(x, y))
            return found;
    }
    return nullptr;
}

QString AccessibleElement::text(QAccessible::Text kind) const
{
    if (!isValid())
        return {};
    switch (kind) {
    case QAccessible::Name:
        return nameOf(element());
    case QAccessible::Value:
        return shownText(element());
    case QAccessible::Description: {
        const GraphicsItem* item = element()->graphicsItem();
        const QRectF frame = item->graphic()->mapToParent(item->outerRect()).boundingRect();
        return LocalizationHelper::coreString(QStringLiteral("x %1, y %2, %3 × %4"))
            .arg(qRound(frame.x()))
            .arg(qRound(frame.y()))
            .arg(qRound(frame.width()))
            .arg(qRound(frame.height()));
    }
    default:
        return {};
    }
}

QRect AccessibleElement::rect() const
{
    const CanvasView* view = viewOf(element());
    if (!view)
        return {};
    const GraphicsItem* item = element()->graphicsItem();
    const QRect shown = view->mapFromScene(item->graphic()->mapToScene(item->outerRect())).boundingRect();
    return shown.translated(view->viewport()->mapToGlobal(QPoint()));
}

QAccessible::Role AccessibleElement::role() const
{
    const DesignerObject* object = element();
    if (object && object->childList())
        return QAccessible::Grouping;
    return object && object->getProperty(QStringLiteral("text")) ? QAccessible::StaticText : QAccessible::Graphic;
}

QAccessible::State AccessibleElement::state() const
{
    QAccessible::State state;
    const CanvasView* view = viewOf(element());
    if (!view) {
        state.invalid = true;
        return state;
    }
    const QList<DesignerObject*>& selection = view->session()->selection();
    const bool hidden = EditorMarks::isHidden(element());
    const bool locked = EditorMarks::isLocked(element());
    state.selectable = state.multiSelectable = state.extSelectable = !hidden && !locked;
    state.focusable = state.selectable;
    state.selected = selection.contains(element());
    state.focused = view->hasFocus() && selection.size() == 1 && state.selected;
    state.movable = state.sizeable = !locked;
    state.invisible = hidden || !view->isVisible();
    const QRect viewport(view->viewport()->mapToGlobal(QPoint()), view->viewport()->size());
    state.offscreen = !rect().intersects(viewport);
    return state;
}

void* AccessibleElement::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleElement::actionNames() const
{
    return isValid() && state().selectable ? QStringList{selectAction()} : QStringList();
}

QString AccessibleElement::localizedActionName(const QString& name) const
{
    return name == selectAction() ? LocalizationHelper::coreString(QStringLiteral("Select")) : QString();
}

QString AccessibleElement::localizedActionDescription(const QString& name) const
{
    return name == selectAction() ? LocalizationHelper::coreString(QStringLiteral("Selects the element alone"))
                                  : QString();
}

void AccessibleElement::doAction(const QString& name)
{
    CanvasView* view = viewOf(element());
    if (!view || name != selectAction() || !state().selectable)
        return;
    view->setFocus(Qt::OtherFocusReason);
    view->session()->setSelection({element()});
}

QStringList AccessibleElement::keyBindingsForAction(const QString&) const
{
    return {};
}

QString AccessibleElement::selectAction()
{
    return QStringLiteral("select");
}

} // namespace Korvex::Meridane::Designer
