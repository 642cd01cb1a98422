#include "host/core/snapping/SnapTargets.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// In place, but for the noise of arithmetic, in pixels.
constexpr double Tolerance = 1e-6;
/// The same where only whole pixels are moved: what lies between two has been rounded.
constexpr double RoundingTolerance = 0.5 + Tolerance;

SnapSpan alongX(const QRectF& rect)
{
    return {rect.left(), rect.right(), rect.top(), rect.bottom()};
}

SnapSpan alongY(const QRectF& rect)
{
    return {rect.top(), rect.bottom(), rect.left(), rect.right()};
}

SnapParts partsX(SnapEdges edges)
{
    return {edges.testFlag(SnapEdge::Left), edges.testFlag(SnapEdge::HorizontalCenter),
            edges.testFlag(SnapEdge::Right)};
}

SnapParts partsY(SnapEdges edges)
{
    return {edges.testFlag(SnapEdge::Top), edges.testFlag(SnapEdge::VerticalCenter), edges.testFlag(SnapEdge::Bottom)};
}

void addMarks(SnapMarks& marks, const SnapAxis& axis, const SnapSpan& placed, SnapParts parts, SnapKind kind,
              double acrossCorrection, Qt::Orientation acrossOrientation)
{
    QVector<SnapStop> stops = axis.stopsAt(placed, parts, Tolerance);
    // What has come to a gap or to the grid stands on no line, however near one is.
    if (stops.isEmpty() && kind != SnapKind::Gap && kind != SnapKind::Grid)
        stops = axis.stopsAt(placed, parts, RoundingTolerance);
    for (const SnapStop& stop : std::as_const(stops)) {
        const double from = std::min(stop.from, placed.acrossLow);
        const double to = std::max(stop.to, placed.acrossHigh);
        marks.lines.append({acrossOrientation, stop.position, from, to, stop.kind});
    }
    if (!parts.low && !parts.high)
        return;
    const Qt::Orientation along = acrossOrientation == Qt::Vertical ? Qt::Horizontal : Qt::Vertical;
    // The neighbours were chosen before it moved across.
    SnapSpan asChosen = placed;
    asChosen.acrossLow -= acrossCorrection;
    asChosen.acrossHigh -= acrossCorrection;
    const QVector<SnapGapOnAxis> gaps = axis.equalGaps(asChosen, Tolerance);
    for (const SnapGapOnAxis& gap : gaps) {
        const double low = std::max(gap.before.acrossLow, gap.after.acrossLow);
        const double high = std::min(gap.before.acrossHigh, gap.after.acrossHigh);
        marks.gaps.append({along, gap.before.high, gap.after.low, 0.5 * (low + high)});
    }
}

} // namespace

void SnapTargets::addScreen(const QRectF& rect)
{
    m_x.addScreen(alongX(rect));
    m_y.addScreen(alongY(rect));
}

void SnapTargets::addElement(const QRectF& rect)
{
    m_x.addElement(alongX(rect));
    m_y.addElement(alongY(rect));
}

void SnapTargets::addGuide(Qt::Orientation orientation, double position)
{
    (orientation == Qt::Vertical ? m_x : m_y).addGuide(position);
}

void SnapTargets::setGrid(const QSizeF& spacing)
{
    m_x.setGrid(spacing.width());
    m_y.setGrid(spacing.height());
}

void SnapTargets::prepare()
{
    m_x.prepare();
    m_y.prepare();
}

SnapResult SnapTargets::snap(const SnapRequest& request) const
{
    SnapResult result;
    const auto x = m_x.choose(alongX(request.rect), partsX(request.edges), request.reach, request.wholePixels);
    const auto y = m_y.choose(alongY(request.rect), partsY(request.edges), request.reach, request.wholePixels);
    result.snapsX = x.has_value();
    result.snapsY = y.has_value();
    if (x)
        result.kindX = x->kind;
    if (y)
        result.kindY = y->kind;
    result.correction = {x ? x->correction : 0, y ? y->correction : 0};
    return result;
}

SnapMarks SnapTargets::marks(const QRectF& placed, SnapEdges edges, const SnapResult& result) const
{
    SnapMarks marks;
    if (result.snapsX)
        addMarks(marks, m_x, alongX(placed), partsX(edges), result.kindX, result.correction.y(), Qt::Vertical);
    if (result.snapsY)
        addMarks(marks, m_y, alongY(placed), partsY(edges), result.kindY, result.correction.x(), Qt::Horizontal);
    return marks;
}

} // namespace Korvex::Meridane::Designer
