#include "host/core/canvas/CanvasReadout.h"

#include "host/core/canvas/CanvasView.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double Padding = 4;
const QPointF BesideMouse(16, 20);

} // namespace

QRectF CanvasReadout::rect() const
{
    if (m_text.isEmpty())
        return {};
    const QFontMetrics metrics(m_view->font());
    const QSizeF size(metrics.horizontalAdvance(m_text) + 2 * Padding, metrics.height() + Padding);
    const QRectF viewport = m_view->viewport()->rect();
    QPointF place = m_mouse + BesideMouse;
    if (place.y() + size.height() > viewport.bottom())
        place.setY(m_mouse.y() - BesideMouse.y() - size.height());
    place.setX(std::clamp(place.x(), 0.0, std::max(viewport.right() - size.width(), 0.0)));
    place.setY(std::max(place.y(), 0.0));
    return {QPointF(std::round(place.x()), std::round(place.y())), size};
}

void CanvasReadout::paint(QPainter* painter) const
{
    const QRectF label = rect();
    if (label.isEmpty())
        return;
    const QPalette palette = m_view->palette();
    painter->setRenderHint(QPainter::Antialiasing, false);
    QColor edge = palette.color(QPalette::ToolTipText);
    edge.setAlpha(90);
    painter->setPen(edge);
    painter->setBrush(palette.color(QPalette::ToolTipBase));
    painter->drawRect(label.adjusted(0.5, 0.5, -0.5, -0.5));
    painter->setPen(palette.color(QPalette::ToolTipText));
    painter->setFont(m_view->font());
    painter->drawText(label, Qt::AlignCenter, m_text);
}

} // namespace Korvex::Meridane::Designer
