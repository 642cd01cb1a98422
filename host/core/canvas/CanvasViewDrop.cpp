// The part of CanvasView that takes elements dragged in from the palette.

#include "host/core/canvas/CanvasView.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasKeys.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GestureSnapping.h"
#include "host/core/canvas/PlaceGesture.h"

#include <QDragEnterEvent>
#include <QMimeData>

#include <cmath>

namespace Korvex::Meridane::Designer {

void CanvasView::dragEnterEvent(QDragEnterEvent* event)
{
    if (acceptsDrop(event))
        event->acceptProposedAction();
}

void CanvasView::dragMoveEvent(QDragMoveEvent* event)
{
    if (!acceptsDrop(event))
        return;
    event->acceptProposedAction();
    (void)dropPlace(event); // shows what it would snap to
}

void CanvasView::dragLeaveEvent(QDragLeaveEvent*)
{
    m_dropSnapping.reset();
    updateHandles();
}

void CanvasView::dropEvent(QDropEvent* event)
{
    if (!acceptsDrop(event))
        return;
    const QPointF place = dropPlace(event);
    m_dropSnapping.reset();
    updateHandles();
    event->acceptProposedAction();
    setFocus(Qt::MouseFocusReason);
    PlaceGesture::place(this, QString::fromUtf8(event->mimeData()->data(elementMimeType())), place, {});
}

/// Where the top left corner of what is dragged in comes to stand: whole pixels, snapped where the view snaps.
QPointF CanvasView::dropPlace(const QDropEvent* event)
{
    const CanvasPointer pointer = pointerAt(event->position(), event->modifiers());
    const QPointF there(std::round(pointer.scenePos.x()), std::round(pointer.scenePos.y()));
    if (!m_dropSnapping)
        m_dropSnapping = std::make_unique<GestureSnapping>(this);
    m_dropSnapping->hide();
    updateHandles();
    return m_dropSnapping->isActive(pointer) ? m_dropSnapping->snapPoint(there, true) : there;
}

bool CanvasView::acceptsDrop(const QDropEvent* event) const
{
    return canvasScene() && !m_gesture && event->mimeData()->hasFormat(elementMimeType());
}

} // namespace Korvex::Meridane::Designer
