#include "host/core/canvas/CanvasKeys.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Element.h"
#include "host/core/project/Project.h"

#include <QGraphicsItem>
#include <QKeyEvent>
#include <QScopeGuard>

#include <optional>

namespace Korvex::Meridane::Designer {

namespace {

/// The direction of an arrow key, one pixel long.
std::optional<QPointF> arrowDirection(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1, 0);
    case Qt::Key_Right:
        return QPointF(1, 0);
    case Qt::Key_Up:
        return QPointF(0, -1);
    case Qt::Key_Down:
        return QPointF(0, 1);
    default:
        return std::nullopt;
    }
}

/// \a objects without what is locked: that stays where it is.
QList<DesignerObject*> removable(QList<DesignerObject*> objects)
{
    objects.removeIf([](const DesignerObject* object) { return EditorMarks::isLocked(object); });
    return objects;
}

/// The keys that items use together with Alt.
bool isItemKey(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (modifiers == Qt::AltModifier) {
        switch (event->key()) {
        case Qt::Key_B:
        case Qt::Key_I:
        case Qt::Key_S:
        case Qt::Key_U:
        case Qt::Key_O:
        case Qt::Key_Minus:
        case Qt::Key_Equal:
            return true;
        default:
            return false;
        }
    }
    return modifiers == (Qt::AltModifier | Qt::KeypadModifier)
           && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus);
}

} // namespace

CanvasKeys::CanvasKeys(CanvasView* view)
    : m_view(view)
{}

bool CanvasKeys::overridesShortcut(const QKeyEvent* event) const
{
    if (m_view->isGestureRunning())
        return true;
    const CanvasScene* scene = m_view->canvasScene();
    if (!scene)
        return false;
    if (event->matches(QKeySequence::SelectAll))
        return true;
    if (event->key() == Qt::Key_Escape && !m_view->placementClass().isEmpty())
        return true;
    if (scene->selectedItems().isEmpty())
        return false;
    const Qt::KeyboardModifiers plain = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (plain == Qt::NoModifier
        && (arrowDirection(event->key()) || event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace
            || event->key() == Qt::Key_Escape))
        return true;
    return isItemKey(event);
}

bool CanvasKeys::press(QKeyEvent* event)
{
    if (m_view->isGestureRunning()) {
        if (event->key() == Qt::Key_Escape)
            m_view->cancelGesture();
        return true;
    }
    CanvasScene* scene = m_view->canvasScene();
    if (!scene)
        return false;
    if (event->matches(QKeySequence::SelectAll)) {
        scene->setSelectedObjects(scene->selectableElements());
        return true;
    }
    const Qt::KeyboardModifiers plain = event->modifiers() & ~Qt::KeypadModifier;
    if ((plain & ~Qt::ShiftModifier) == Qt::NoModifier && nudge(event))
        return true;
    if (plain == Qt::NoModifier || plain == Qt::ShiftModifier) {
        switch (event->key()) {
        case Qt::Key_Tab:
            return selectNext(event->modifiers().testFlag(Qt::ShiftModifier));
        case Qt::Key_Backtab:
            return selectNext(true);
        default:
            break;
        }
    }
    if (plain == Qt::ShiftModifier && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        return goOut();
    if (plain == Qt::NoModifier) {
        switch (event->key()) {
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            if (scene->selectedItems().isEmpty())
                return false;
            m_view->session()->removeElements(removable(scene->selectedRoots()));
            return true;
        case Qt::Key_Escape:
            return escape();
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return goIn();
        default:
            break;
        }
    }
    return sendToItems(event);
}

bool CanvasKeys::nudge(const QKeyEvent* event)
{
    const auto direction = arrowDirection(event->key());
    CanvasScene* scene = m_view->canvasScene();
    if (!direction || scene->selectedItems().isEmpty())
        return false;
    const QList<DesignerObject*> moving = scene->movableRoots();
    if (!event->isAutoRepeat())
        ++m_presses;
    const double distance = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    m_view->session()->moveElements(moving, *direction * distance,
                                    QStringLiteral("nudge %1 %2").arg(event->key()).arg(m_presses));
    return true;
}

bool CanvasKeys::selectNext(bool backwards)
{
    CanvasScene* scene = m_view->canvasScene();
    const QList<DesignerObject*> selected = scene->selectedObjects();
    // In a group that has been gone into, through what is in it.
    const DesignerObject* owner = selected.isEmpty() ? nullptr : selected.constFirst()->parentObject();
    const QList<DesignerObject*> elements = scene->selectableElements(owner);
    if (elements.isEmpty())
        return false;
    const qsizetype count = elements.size();
    qsizetype next = backwards ? count - 1 : 0;
    if (!selected.isEmpty()) {
        const qsizetype present = elements.indexOf(backwards ? selected.first() : selected.last());
        if (present >= 0)
            next = (present + (backwards ? count - 1 : 1)) % count;
    }
    scene->setSelectedObjects({elements.at(next)});
    m_view->ensureVisible(elements.at(next)->graphicsItem()->graphic(), 20, 20);
    return true;
}

bool CanvasKeys::escape()
{
    if (!m_view->placementClass().isEmpty()) {
        m_view->setPlacementClass({});
        Q_EMIT m_view->placementFinished();
        return true;
    }
    if (m_view->canvasScene()->selectedItems().isEmpty())
        return false;
    if (!goOut())
        m_view->canvasScene()->setSelectedObjects({});
    return true;
}

/// Selects the front-most element of the group that is selected alone.
bool CanvasKeys::goIn()
{
    CanvasScene* scene = m_view->canvasScene();
    const QList<DesignerObject*> selected = scene->selectedObjects();
    if (selected.size() != 1 || !selected.constFirst()->childList())
        return false;
    const QList<DesignerObject*> elements = scene->selectableElements(selected.constFirst());
    if (elements.isEmpty())
        return false;
    scene->setSelectedObjects({elements.constLast()});
    return true;
}

/// Selects the group around what is selected.
bool CanvasKeys::goOut()
{
    CanvasScene* scene = m_view->canvasScene();
    const QList<DesignerObject*> selected = scene->selectedObjects();
    DesignerObject* group = selected.isEmpty() ? nullptr : selected.constFirst()->parentObject();
    if (!group || !qobject_cast<Element*>(group))
        return false;
    scene->setSelectedObjects({group});
    return true;
}

bool CanvasKeys::sendToItems(QKeyEvent* event)
{
    CanvasScene* scene = m_view->canvasScene();
    bool used = false;
    // What the items make of one key press is one step.
    Project* project = m_view->session()->project();
    project->setUserModificationKey(QStringLiteral("key press %1").arg(++m_keysSent));
    const auto done = qScopeGuard([project] { project->setUserModificationKey({}); });
    const QList<DesignerObject*> selected = scene->selectedObjects();
    for (const DesignerObject* object : selected) {
        const GraphicsItem* item = object->graphicsItem();
        if (!item || item->graphic()->scene() != scene)
            continue;
        event->accept();
        scene->sendEvent(item->graphic(), event);
        used |= event->isAccepted();
    }
    return used;
}

} // namespace Korvex::Meridane::Designer
