// The part of CanvasView that takes the mouse and the keyboard: which gesture a press begins, and how it ends.

#include "host/core/canvas/CanvasView.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasKeys.h"
#include "host/core/canvas/CanvasRuler.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/GuideGesture.h"
#include "host/core/canvas/HandleCursor.h"
#include "host/core/canvas/MoveGesture.h"
#include "host/core/canvas/PanGesture.h"
#include "host/core/canvas/PlaceGesture.h"
#include "host/core/canvas/PointGesture.h"
#include "host/core/canvas/ResizeGesture.h"
#include "host/core/canvas/RotateGesture.h"
#include "host/core/canvas/RubberBandGesture.h"
#include "host/core/canvas/SelectionHandles.h"
#include "host/core/canvas/SelectionResizeGesture.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"

#include <QGraphicsItem>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

void CanvasView::setPlacementClass(const QString& className)
{
    m_placementClass = className;
    updateCursor(nullptr);
}

QVector<PropertyChange> CanvasView::pendingChanges() const
{
    return m_gesture ? m_gesture->pendingChanges() : QVector<PropertyChange>();
}

void CanvasView::cancelGesture()
{
    if (const auto gesture = endGesture())
        gesture->cancel();
    updateHandles();
}

bool CanvasView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (m_keys->overridesShortcut(static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyRelease:
        followModifier(static_cast<QKeyEvent*>(event), false);
        break;
    case QEvent::KeyPress:
        followModifier(static_cast<QKeyEvent*>(event), true);
        // Before Qt takes Tab for moving the focus.
        if (m_keys->press(static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::WindowDeactivate:
    case QEvent::UngrabMouse:
        cancelGesture();
        break;
    default:
        break;
    }
    return QGraphicsView::event(event);
}

bool CanvasView::viewportEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::UngrabMouse:
        cancelGesture();
        break;
    case QEvent::Leave:
        leaveHandle();
        setOutlined(nullptr);
        m_topRuler->hidePointer();
        m_leftRuler->hidePointer();
        break;
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        const DesignerObject* object = m_hovered;
        if (!object && canvasScene() && !m_gesture)
            object = canvasScene()->elementAt(mapToScene(help->pos()));
        if (const GraphicsItem* item = object ? object->graphicsItem() : nullptr)
            QToolTip::showText(help->globalPos(), m_hovered ? item->graphic()->toolTip() : item->nameToolTip(),
                               viewport());
        else
            QToolTip::hideText();
        return true;
    }
    default:
        break;
    }
    return QGraphicsView::viewportEvent(event);
}

void CanvasView::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (m_gesture) {
        // Another button while one is held down.
        if (event->button() == Qt::RightButton)
            cancelGesture();
        return;
    }
    if (!canvasScene())
        return;
    const CanvasPointer pointer = pointerAt(event->position(), event->modifiers());
    m_lastViewPos = event->position();
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_spaceHeld)) {
        startGesture(std::make_unique<PanGesture>(this, pointer), event->button());
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::LeftButton) {
        startGesture(gestureForPress(pointer), event->button());
    } else if (event->button() == Qt::RightButton) {
        // What the context menu is about.
        DesignerObject* element = canvasScene()->elementAt(pointer.scenePos);
        if (!element)
            canvasScene()->setSelectedObjects({});
        else if (!element->graphicsItem()->graphic()->isSelected())
            canvasScene()->setSelectedObjects({element});
    }
}

void CanvasView::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    const CanvasPointer pointer = pointerAt(event->position(), event->modifiers());
    m_lastViewPos = event->position();
    Q_EMIT pointerMoved(pointer.scenePos);
    m_topRuler->showPointer(pointer.viewPos);
    m_leftRuler->showPointer(pointer.viewPos);
    if (m_gesture && !event->buttons().testFlag(m_gestureButton))
        cancelGesture(); // the release went to somebody else
    if (m_gesture)
        moveGesture(pointer);
    else
        hover(pointer.scenePos, pointer.viewPos);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_gesture || event->button() != m_gestureButton)
        return;
    const CanvasPointer pointer = pointerAt(event->position(), event->modifiers());
    if (const auto gesture = endGesture())
        gesture->finish(pointer);
    updateSceneRect();
    updateHandles();
    hover(pointer.scenePos, pointer.viewPos);
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const bool isOnHandle =
        canvasScene() && SelectionHandles(this).hit(mapToScene(event->pos())).kind != HandleHit::Kind::None;
    const int guide = m_gesture || isOnHandle || !m_placementClass.isEmpty() ? -1 : guideAt(event->position());
    if (event->button() == Qt::LeftButton && guide >= 0) {
        event->accept();
        Q_EMIT guideActivated(guide);
        return;
    }
    // The second of two quick presses on a group goes into it; apart from that it is a press like any other.
    const bool onElements = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier && !m_gesture
                            && !m_spaceHeld && m_placementClass.isEmpty() && canvasScene();
    const CanvasPointer pointer = pointerAt(event->position(), event->modifiers());
    if (onElements && SelectionHandles(this).hit(pointer.scenePos).kind == HandleHit::Kind::None) {
        if (DesignerObject* inside = canvasScene()->elementInGroupAt(pointer.scenePos))
            canvasScene()->setSelectedObjects({inside});
    }
    mousePressEvent(event);
}

void CanvasView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    event->accept();
    if (m_gesture)
        return;
    constexpr double NotchesToDouble = 4;
    constexpr double AnglePerNotch = 120;
    const double notches = event->angleDelta().y() / AnglePerNotch;
    double wanted = zoom() * std::exp2(notches / NotchesToDouble);
    // Whole factors and whole fractions are met exactly in spite of rounding.
    if (std::abs(wanted - std::round(wanted)) < 1e-6)
        wanted = std::round(wanted);
    zoomAt(wanted, event->position().toPoint());
}

void CanvasView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        m_spaceHeld = true;
        updateCursor(nullptr);
        event->accept();
        return;
    }
    QGraphicsView::keyPressEvent(event);
}

/// What Shift and Ctrl mean for a gesture holds from the moment they are pressed or let go, not from the next move of the
/// mouse.
void CanvasView::followModifier(const QKeyEvent* event, bool down)
{
    const bool isShift = event->key() == Qt::Key_Shift;
    if (!m_gesture || (!isShift && event->key() != Qt::Key_Control) || event->isAutoRepeat())
        return;
    Qt::KeyboardModifiers modifiers = event->modifiers();
    modifiers.setFlag(isShift ? Qt::ShiftModifier : Qt::ControlModifier, down);
    moveGesture(pointerAt(m_lastViewPos, modifiers));
}

void CanvasView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_spaceHeld = false;
        updateCursor(nullptr);
        event->accept();
        return;
    }
    QGraphicsView::keyReleaseEvent(event);
}

void CanvasView::focusOutEvent(QFocusEvent* event)
{
    m_spaceHeld = false;
    cancelGesture();
    QGraphicsView::focusOutEvent(event);
}

void CanvasView::hideEvent(QHideEvent* event)
{
    cancelGesture();
    QGraphicsView::hideEvent(event);
}

void CanvasView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        viewport()->update();
    else if (event->type() == QEvent::EnabledChange || event->type() == QEvent::ActivationChange)
        cancelGesture();
    QGraphicsView::changeEvent(event);
}

CanvasPointer CanvasView::pointerAt(const QPointF& viewPos, Qt::KeyboardModifiers modifiers) const
{
    return {viewportTransform().inverted().map(viewPos), viewPos, modifiers};
}

std::unique_ptr<Gesture> CanvasView::gestureForPress(const CanvasPointer& pointer)
{
    if (!m_placementClass.isEmpty())
        return std::make_unique<PlaceGesture>(this, pointer, m_placementClass);
    const HandleHit hit = SelectionHandles(this).hit(pointer.scenePos);
    switch (hit.kind) {
    case HandleHit::Kind::Point:
        return std::make_unique<PointGesture>(this, pointer, hit.object, hit.number);
    case HandleHit::Kind::Frame:
        return std::make_unique<ResizeGesture>(this, pointer, hit.object, hit.number);
    case HandleHit::Kind::Rotation:
        return std::make_unique<RotateGesture>(this, pointer, hit.object);
    case HandleHit::Kind::Selection:
        return std::make_unique<SelectionResizeGesture>(this, pointer, hit.objects, hit.number);
    case HandleHit::Kind::None:
        break;
    }
    if (const int guide = guideAt(pointer.viewPos); guide >= 0)
        return std::make_unique<GuideGesture>(this, pointer, m_guides->list().at(guide).orientation, guide);
    return selectingGesture(pointer);
}

/// A press beside all handles: it selects, and what is selected can be moved.
std::unique_ptr<Gesture> CanvasView::selectingGesture(const CanvasPointer& pointer)
{
    CanvasScene* canvas = canvasScene();
    DesignerObject* element = canvas->elementAt(pointer.scenePos);
    if (!element)
        return std::make_unique<RubberBandGesture>(this, pointer);
    auto click = MoveGesture::Click::Nothing;
    if (pointer.modifiers.testFlag(Qt::ControlModifier)) {
        // Ctrl takes hold of what is selected under the mouse, and a click goes on to what lies beneath.
        const QList<DesignerObject*> there = canvas->elementsAt(pointer.scenePos);
        const QList<DesignerObject*> selection = canvas->selectedObjects();
        const auto selectedThere = std::find_if(there.cbegin(), there.cend(),
                                                [&](DesignerObject* object) { return selection.contains(object); });
        if (selectedThere != there.cend())
            return std::make_unique<MoveGesture>(this, pointer, *selectedThere, MoveGesture::Click::SelectBeneath);
        canvas->setSelectedObjects({element});
        return std::make_unique<MoveGesture>(this, pointer, element, click);
    }
    const bool selected = element->graphicsItem()->graphic()->isSelected();
    const bool adds = pointer.modifiers.testFlag(Qt::ShiftModifier);
    if (selected) {
        click = adds ? MoveGesture::Click::Deselect : MoveGesture::Click::SelectAlone;
    } else {
        QList<DesignerObject*> objects = adds ? canvas->selectedObjects() : QList<DesignerObject*>();
        objects.append(element);
        canvas->setSelectedObjects(objects);
    }
    return std::make_unique<MoveGesture>(this, pointer, element, click);
}

void CanvasView::startGesture(std::unique_ptr<Gesture> gesture, Qt::MouseButton button)
{
    m_gesture = std::move(gesture);
    m_gestureButton = button;
    setOutlined(nullptr);
    if (m_gesture->editsProject())
        m_session->undoStack()->setBlocked(true);
    updateHandles();
}

void CanvasView::moveGesture(const CanvasPointer& pointer)
{
    m_gesture->move(pointer);
    Q_EMIT readoutChanged(m_gesture->readout());
    Q_EMIT gestureMoved();
    updateHandles();
}

/// Ends the running gesture in so far as the view and the undo history wait for it; the caller finishes or cancels it.
std::unique_ptr<Gesture> CanvasView::endGesture()
{
    if (!m_gesture)
        return nullptr;
    if (m_gesture->editsProject())
        m_session->undoStack()->setBlocked(false);
    m_gestureButton = Qt::NoButton;
    std::unique_ptr<Gesture> gesture = std::move(m_gesture);
    updateCursor(nullptr);
    Q_EMIT readoutChanged({});
    Q_EMIT gestureMoved();
    return gesture;
}

/// Shows what a press at the mouse's place would take hold of.
void CanvasView::hover(const QPointF& scenePos, const QPointF& viewPos)
{
    if (!m_placementClass.isEmpty() || m_spaceHeld || !canvasScene()) {
        setOutlined(nullptr);
        return;
    }
    const HandleHit hit = SelectionHandles(this).hit(scenePos);
    if (m_hovered != hit.object)
        leaveHandle();
    m_hovered = hit.object;
    const bool onHandle = hit.kind != HandleHit::Kind::None;
    const int guide = onHandle ? -1 : guideAt(viewPos);
    DesignerObject* element = onHandle || guide >= 0 ? nullptr : canvasScene()->elementAt(scenePos);
    const QGraphicsItem* graphic = element ? element->graphicsItem()->graphic() : nullptr;
    setOutlined(graphic && !graphic->isSelected() ? element : nullptr);
    if (guide >= 0)
        viewport()->setCursor(CanvasGuides::cursor(m_guides->list().at(guide).orientation));
    else if (graphic && graphic->isSelected() && graphic->flags().testFlag(QGraphicsItem::ItemIsMovable))
        viewport()->setCursor(Qt::SizeAllCursor);
    else
        updateCursor(&hit);
}

/// The guide that a press at \a viewPos takes hold of, or -1.
int CanvasView::guideAt(const QPointF& viewPos) const
{
    return m_aids.guidesLocked ? -1 : m_guides->indexAt(viewPos);
}

void CanvasView::beginGuide(Qt::Orientation orientation, const QPointF& viewPos)
{
    if (m_gesture || !canvasScene())
        return;
    setFocus(Qt::MouseFocusReason);
    m_lastViewPos = viewPos;
    // The ruler along the top has the guides that lie along it.
    startGesture(std::make_unique<GuideGesture>(this, pointerAt(viewPos, Qt::NoModifier), orientation, -1),
                 Qt::LeftButton);
}

void CanvasView::leaveHandle()
{
    if (m_hovered && m_hovered->graphicsItem())
        m_hovered->graphicsItem()->showNameToolTip();
    m_hovered.clear();
}

void CanvasView::updateCursor(const HandleHit* hit)
{
    QCursor wanted = Qt::ArrowCursor;
    if (m_spaceHeld)
        wanted = Qt::OpenHandCursor;
    else if (!m_placementClass.isEmpty())
        wanted = Qt::CrossCursor;
    else if (hit)
        wanted = handleCursor(this, *hit);
    if (viewport()->cursor().shape() != wanted.shape())
        viewport()->setCursor(wanted);
}

} // namespace Korvex::Meridane::Designer
