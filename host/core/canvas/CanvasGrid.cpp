#include "host/core/canvas/CanvasGrid.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

bool CanvasGrid::isDrawn() const
{
    constexpr double SmallestCell = 4; // screen pixels
    const QSizeF spacing = m_view->aids().gridSpacing;
    return m_view->aids().grid && m_view->canvasScene() && spacing.width() > 0 && spacing.height() > 0
           && std::min(spacing.width(), spacing.height()) * m_view->zoom() >= SmallestCell;
}

void CanvasGrid::paint(QPainter* painter, const QRectF& exposed) const
{
    if (!isDrawn())
        return;
    const QRectF screen = m_view->canvasScene()->sceneRect();
    // A little more than is exposed: what is drawn for a line may begin beside its place.
    const double margin = 2 / m_view->zoom();
    const QRectF area = exposed.adjusted(-margin, -margin, margin, margin) & screen;
    if (area.isEmpty())
        return;
    const QTransform toView = m_view->viewportTransform();
    const QRectF onView = toView.mapRect(area);
    const QSizeF spacing = m_view->aids().gridSpacing;
    QList<QLineF> lines;
    const auto first = [](double from, double step) { return std::max(std::ceil(from / step), 1.0) * step; };
    for (double x = first(area.left(), spacing.width()); x <= area.right() && x < screen.right();
         x += spacing.width()) {
        const double at = std::floor(toView.map(QPointF(x, 0)).x()) + 0.5;
        lines.append({at, onView.top(), at, onView.bottom()});
    }
    for (double y = first(area.top(), spacing.height()); y <= area.bottom() && y < screen.bottom();
         y += spacing.height()) {
        const double at = std::floor(toView.map(QPointF(0, y)).y()) + 0.5;
        lines.append({onView.left(), at, onView.right(), at});
    }
    // Between light and dark: it shows on both, and on neither much; the less, the closer its lines are.
    const double cell = std::min(spacing.width(), spacing.height()) * m_view->zoom();
    const int alpha = int(std::clamp(20 + 4 * cell, 36.0, 80.0));
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(QColor(112, 128, 152, alpha), 1));
    painter->drawLines(lines);
}

} // namespace Korvex::Meridane::Designer
