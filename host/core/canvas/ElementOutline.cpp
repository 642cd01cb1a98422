#include "host/core/canvas/ElementOutline.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include <QGraphicsItem>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

ElementOutline::ElementOutline(const CanvasView* view, const DesignerObject* element)
    : m_view(view)
{
    const GraphicsItem* item = element ? element->graphicsItem() : nullptr;
    if (!item || !item->graphic()->isVisible() || item->graphic()->scene() != view->scene())
        return;
    const QTransform toView = item->graphic()->sceneTransform() * view->viewportTransform();
    const QRectF outer = item->outerRect();
    m_upright = toView.type() <= QTransform::TxScale;
    m_corners = m_upright ? QPolygonF(QRectF(toView.mapRect(outer).toAlignedRect())) : toView.map(QPolygonF(outer));
    const auto isFinite = [](const QPointF& corner) {
        constexpr double Furthest = 1e6;
        return std::abs(corner.x()) < Furthest && std::abs(corner.y()) < Furthest;
    };
    if (!std::all_of(m_corners.cbegin(), m_corners.cend(), isFinite))
        m_corners.clear();
}

void ElementOutline::paint(QPainter* painter) const
{
    if (m_corners.isEmpty())
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing, !m_upright);
    QPen pen(m_view->palette().color(QPalette::Highlight), 1);
    painter->setPen(pen);
    if (m_upright)
        painter->drawRect(m_corners.boundingRect().adjusted(0.5, 0.5, -0.5, -0.5));
    else
        painter->drawPolygon(m_corners);
}

QRegion ElementOutline::region() const
{
    if (m_corners.isEmpty())
        return {};
    const QRect viewport = m_view->viewport()->rect();
    const QRect bounds = m_corners.boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1);
    const QRegion inside = m_upright ? QRegion(bounds.adjusted(3, 3, -3, -3)) : QRegion();
    return (QRegion(bounds) - inside) & viewport;
}

} // namespace Korvex::Meridane::Designer
