#include "host/core/canvas/HandleCursor.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/SelectionHandles.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/FrameResize.h"

#include <QGraphicsItem>
#include <QtMath>

#include <cmath>

namespace Korvex::Meridane::Designer {

QCursor handleCursor(const CanvasView* view, const HandleHit& hit)
{
    const GraphicsItem* item = hit.object ? hit.object->graphicsItem() : nullptr;
    if (hit.kind != HandleHit::Kind::Frame || !item || !Common::isFrameHandle(hit.number))
        return SelectionHandles::cursor(hit);
    const QTransform toView = item->graphic()->sceneTransform() * view->viewportTransform();
    if (toView.type() <= QTransform::TxScale)
        return SelectionHandles::cursor(hit);
    // Where the handle leads, as if the frame were a square: a corner's arrow is a diagonal, whatever the sides.
    const QPoint outwards(hit.number % 3 - 1, hit.number / 3 - 1);
    const QPointF way = toView.map(QPointF(outwards)) - toView.map(QPointF(0, 0));
    const double angle = qRadiansToDegrees(std::atan2(way.y(), way.x()));
    constexpr Qt::CursorShape Shapes[] = {Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                                          Qt::SizeBDiagCursor};
    const int eighth = (qRound(angle / 45) % 4 + 4) % 4;
    return Shapes[eighth];
}

} // namespace Korvex::Meridane::Designer
