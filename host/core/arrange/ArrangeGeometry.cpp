#include "host/core/arrange/ArrangeGeometry.h"

#include <algorithm>
#include <numeric>

namespace Korvex::Meridane::Designer {

QPointF alignedOffset(const QRectF& rect, const QRectF& reference, AlignEdge edge)
{
    switch (edge) {
    case AlignEdge::Left:
        return {reference.left() - rect.left(), 0};
    case AlignEdge::Center:
        return {reference.center().x() - rect.center().x(), 0};
    case AlignEdge::Right:
        return {reference.right() - rect.right(), 0};
    case AlignEdge::Top:
        return {0, reference.top() - rect.top()};
    case AlignEdge::Middle:
        return {0, reference.center().y() - rect.center().y()};
    case AlignEdge::Bottom:
        return {0, reference.bottom() - rect.bottom()};
    }
    return {};
}

QList<QPointF> distributedOffsets(const QList<QRectF>& rects, Qt::Orientation orientation, SpacingKind kind)
{
    const bool across = orientation == Qt::Horizontal;
    const auto begin = [&](qsizetype i) { return across ? rects.at(i).left() : rects.at(i).top(); };
    const auto length = [&](qsizetype i) { return across ? rects.at(i).width() : rects.at(i).height(); };
    const auto center = [&](qsizetype i) { return begin(i) + 0.5 * length(i); };
    QList<QPointF> offsets(rects.size());
    if (rects.size() < 3)
        return offsets;
    QList<qsizetype> order(rects.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) { return center(a) < center(b); });
    const qsizetype first = order.constFirst();
    const qsizetype last = order.constLast();
    const double steps = double(rects.size() - 1);
    double between = 0;
    for (qsizetype i = 1; i + 1 < order.size(); ++i)
        between += length(order.at(i));
    const double gap = (begin(last) - begin(first) - length(first) - between) / steps;
    const double step = (center(last) - center(first)) / steps;
    double next = begin(first) + length(first) + gap;
    for (qsizetype i = 1; i + 1 < order.size(); ++i) {
        const qsizetype index = order.at(i);
        const double way =
            kind == SpacingKind::Gaps ? next - begin(index) : center(first) + double(i) * step - center(index);
        offsets[index] = across ? QPointF(way, 0) : QPointF(0, way);
        next += length(index) + gap;
    }
    return offsets;
}

} // namespace Korvex::Meridane::Designer
