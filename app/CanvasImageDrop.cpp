#include "app/CanvasImageDrop.h"

#include "app/ImageData.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"

#include <QDropEvent>

namespace Korvex::Meridane::Designer {

CanvasImageDrop::CanvasImageDrop(CanvasView* view)
    : QObject(view)
    , m_view(view)
{
    view->viewport()->installEventFilter(this);
}

bool CanvasImageDrop::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        return accepts(static_cast<QDropEvent*>(event));
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        if (!accepts(drop))
            return false;
        m_view->setFocus(Qt::MouseFocusReason);
        Q_EMIT dropped(drop->mimeData(), m_view->viewportTransform().inverted().map(drop->position()));
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool CanvasImageDrop::accepts(QDropEvent* event) const
{
    if (!m_view->canvasScene() || m_view->isGestureRunning() || !ImageData::holdsImages(event->mimeData()))
        return false;
    // A copy, whatever is proposed: the program that files are moved from would delete them.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    return true;
}

} // namespace Korvex::Meridane::Designer
