#include "host/core/canvas/SnapMarksPainter.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/snapping/SnapTargets.h"
#include "host/core/values/ValueConversion.h"

#include <QPainter>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// Seen on light and dark ground alike, and no colour of the palette.
const QColor MarkColor(226, 27, 120);
constexpr double Overhang = 6; // how far a line reaches beyond what it aligns, in screen pixels
constexpr double Tick = 4; // half the length of a gap's end mark
constexpr int LabelPadding = 3;

QPointF onPixel(const QPointF& point)
{
    return {std::floor(point.x()) + 0.5, std::floor(point.y()) + 0.5};
}

QString textOf(const SnapGap& gap)
{
    return ValueConversion::toQmlString(gap.to - gap.from, 2);
}

QPointF placed(Qt::Orientation orientation, double along, double across)
{
    return orientation == Qt::Horizontal ? QPointF(along, across) : QPointF(across, along);
}

} // namespace

void SnapMarksPainter::paint(const SnapMarks& marks, QPainter* painter) const
{
    if (marks.lines.isEmpty() && marks.gaps.isEmpty())
        return;
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(MarkColor, 1));
    painter->drawLines(linesOf(marks));
    for (const SnapGap& gap : marks.gaps)
        painter->drawLines(linesOf(gap));
    for (const SnapGap& gap : marks.gaps) {
        const QRectF label = labelOf(gap);
        painter->fillRect(label, MarkColor);
        painter->setPen(Qt::white);
        painter->setFont(m_view->font());
        painter->drawText(label, Qt::AlignCenter, textOf(gap));
    }
}

QRegion SnapMarksPainter::region(const SnapMarks& marks) const
{
    QRegion region;
    const QRectF viewport = m_view->viewport()->rect();
    const auto add = [&](const QRectF& rect) { region += (rect & viewport).toAlignedRect(); };
    const auto addLines = [&](const QList<QLineF>& lines) {
        for (const QLineF& line : lines)
            add(QRectF(line.p1(), line.p2()).normalized().adjusted(-1, -1, 1, 1));
    };
    addLines(linesOf(marks));
    for (const SnapGap& gap : marks.gaps) {
        addLines(linesOf(gap));
        add(labelOf(gap).adjusted(-1, -1, 1, 1));
    }
    return region;
}

QList<QLineF> SnapMarksPainter::linesOf(const SnapMarks& marks) const
{
    const QTransform toView = m_view->viewportTransform();
    const QRectF viewport = m_view->viewport()->rect();
    QList<QLineF> lines;
    for (const SnapLine& line : marks.lines) {
        const Qt::Orientation along = line.orientation;
        QPointF from = onPixel(toView.map(placed(along, line.from, line.position)));
        QPointF to = onPixel(toView.map(placed(along, line.to, line.position)));
        if (along == Qt::Horizontal) {
            from.setX(line.kind == SnapKind::Guide ? viewport.left() : from.x() - Overhang);
            to.setX(line.kind == SnapKind::Guide ? viewport.right() : to.x() + Overhang);
        } else {
            from.setY(line.kind == SnapKind::Guide ? viewport.top() : from.y() - Overhang);
            to.setY(line.kind == SnapKind::Guide ? viewport.bottom() : to.y() + Overhang);
        }
        lines.append(QLineF(from, to));
    }
    return lines;
}

/// The gap's line with a mark at each end.
QList<QLineF> SnapMarksPainter::linesOf(const SnapGap& gap) const
{
    const QTransform toView = m_view->viewportTransform();
    const QPointF from = onPixel(toView.map(placed(gap.orientation, gap.from, gap.across)));
    const QPointF to = onPixel(toView.map(placed(gap.orientation, gap.to, gap.across)));
    const QPointF tick = placed(gap.orientation, 0, Tick);
    return {QLineF(from, to), QLineF(from - tick, from + tick), QLineF(to - tick, to + tick)};
}

QRectF SnapMarksPainter::labelOf(const SnapGap& gap) const
{
    const QFontMetrics metrics(m_view->font());
    const QSize size(metrics.horizontalAdvance(textOf(gap)) + 2 * LabelPadding, metrics.height());
    const QPointF middle =
        m_view->viewportTransform().map(placed(gap.orientation, 0.5 * (gap.from + gap.to), gap.across));
    // Beside the line, so that narrow gaps stay visible.
    const QPointF beside = gap.orientation == Qt::Horizontal ? QPointF(0, Tick + 2 + 0.5 * size.height())
                                                             : QPointF(Tick + 2 + 0.5 * size.width(), 0);
    const QPointF center = middle + beside;
    return {std::round(center.x() - 0.5 * size.width()), std::round(center.y() - 0.5 * size.height()),
            double(size.width()), double(size.height())};
}

} // namespace Korvex::Meridane::Designer
