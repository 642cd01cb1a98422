#include "host/core/snapping/SnapAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace Korvex::Meridane::Designer {

namespace {

/// So many neighbours are looked at on each side for gaps to repeat.
constexpr std::size_t RowLength = 4;

enum Part
{
    Low,
    Center,
    High
};

/// \a correction in whole pixels.
double rounded(double correction, int part)
{
    return (part == High ? std::floor(correction + 0.5) : std::ceil(correction - 0.5)) + 0.0;
}

void offer(std::optional<SnapChoice>& best, double& bestDistance, double correction, SnapKind kind, int part,
           double reach, bool wholePixels)
{
    const double distance = std::abs(correction);
    const double made = wholePixels ? rounded(correction, part) : correction;
    if (!(distance <= reach) || !(std::abs(made) <= reach))
        return;
    if (!best || distance < bestDistance || (distance == bestDistance && kind < best->kind)) {
        best = SnapChoice{made, kind};
        bestDistance = distance;
    }
}

bool comesBefore(const SnapStop& a, const SnapStop& b)
{
    return std::tie(a.position, a.kind) < std::tie(b.position, b.kind);
}

} // namespace

/// The neighbours on both sides, nearest first.
struct SnapAxis::Row
{
    std::vector<const SnapSpan*> before;
    std::vector<const SnapSpan*> after;

    /// Visits the gaps between neighbours that touch neither each other nor the span that the row is about.
    template <typename Visitor>
    void visitGaps(const Visitor& visit) const
    {
        for (std::size_t i = 1; i < before.size(); ++i)
            visit(*before[i], *before[i - 1]);
        for (std::size_t i = 1; i < after.size(); ++i)
            visit(*after[i - 1], *after[i]);
    }
};

void SnapAxis::addGuide(double position)
{
    constexpr double Nowhere = std::numeric_limits<double>::infinity();
    m_stops.push_back({position, SnapKind::Guide, Nowhere, -Nowhere});
}

void SnapAxis::addElement(const SnapSpan& span)
{
    addStops(span, SnapKind::Element);
    m_byLow.push_back(span);
}

void SnapAxis::addScreen(const SnapSpan& span)
{
    addStops(span, SnapKind::Screen);
}

void SnapAxis::addStops(const SnapSpan& span, SnapKind kind)
{
    for (const double position : {span.low, span.center(), span.high})
        m_stops.push_back({position, kind, span.acrossLow, span.acrossHigh});
}

void SnapAxis::prepare()
{
    std::sort(m_stops.begin(), m_stops.end(), comesBefore);
    // What stands at one place is one stop that reaches over all of it.
    std::vector<SnapStop> merged;
    for (const SnapStop& stop : m_stops) {
        if (merged.empty() || merged.back().position != stop.position || merged.back().kind != stop.kind) {
            merged.push_back(stop);
            continue;
        }
        merged.back().from = std::min(merged.back().from, stop.from);
        merged.back().to = std::max(merged.back().to, stop.to);
    }
    m_stops = std::move(merged);
    const auto whole = [](const SnapSpan& span) {
        return std::tie(span.low, span.high, span.acrossLow, span.acrossHigh);
    };
    std::sort(m_byLow.begin(), m_byLow.end(),
              [&](const SnapSpan& a, const SnapSpan& b) { return whole(a) < whole(b); });
    m_byHigh = m_byLow;
    std::stable_sort(m_byHigh.begin(), m_byHigh.end(),
                     [](const SnapSpan& a, const SnapSpan& b) { return a.high < b.high; });
}

std::optional<SnapChoice> SnapAxis::choose(const SnapSpan& moving, SnapParts parts, double reach,
                                           bool wholePixels) const
{
    std::optional<SnapChoice> best;
    double distance = 0;
    const auto propose = [&](double correction, SnapKind kind, int part) {
        offer(best, distance, correction, kind, part, reach, wholePixels);
    };
    const auto proposeStops = [&](double place, int part) {
        const auto next =
            std::lower_bound(m_stops.cbegin(), m_stops.cend(), place,
                             [](const SnapStop& stop, double position) { return stop.position < position; });
        if (next != m_stops.cbegin()) {
            // Of those at the place before, the one that wins.
            const auto first =
                std::lower_bound(m_stops.cbegin(), next, std::prev(next)->position,
                                 [](const SnapStop& stop, double position) { return stop.position < position; });
            propose(first->position - place, first->kind, part);
        }
        if (next != m_stops.cend())
            propose(next->position - place, next->kind, part);
    };
    if (parts.low)
        proposeStops(moving.low, Low);
    if (parts.center)
        proposeStops(moving.center(), Center);
    if (parts.high)
        proposeStops(moving.high, High);

    const Row row = rowOf(moving);
    const SnapSpan* left = row.before.empty() ? nullptr : row.before.front();
    const SnapSpan* right = row.after.empty() ? nullptr : row.after.front();
    if (parts.low && parts.high && left && right)
        propose(0.5 * (left->high + right->low) - moving.center(), SnapKind::Gap, Center);
    row.visitGaps([&](const SnapSpan& from, const SnapSpan& to) {
        const double gap = to.low - from.high;
        if (!(gap > 0))
            return;
        if (parts.low && left)
            propose(left->high + gap - moving.low, SnapKind::Gap, Low);
        if (parts.high && right)
            propose(right->low - gap - moving.high, SnapKind::Gap, High);
    });

    if (m_grid > 0 && (parts.low || parts.high)) {
        const double place = parts.low ? moving.low : moving.high;
        propose(m_grid * std::round(place / m_grid) - place, SnapKind::Grid, parts.low ? Low : High);
    }
    return best;
}

QVector<SnapStop> SnapAxis::stopsAt(const SnapSpan& placed, SnapParts parts, double tolerance) const
{
    QVector<SnapStop> found;
    const auto add = [&](bool moves, double place) {
        if (!moves)
            return;
        auto stop = std::lower_bound(m_stops.cbegin(), m_stops.cend(), place - tolerance,
                                     [](const SnapStop& at, double position) { return at.position < position; });
        for (; stop != m_stops.cend() && stop->position <= place + tolerance; ++stop)
            found.append(*stop);
    };
    add(parts.low, placed.low);
    add(parts.center, placed.center());
    add(parts.high, placed.high);
    return found;
}

QVector<SnapGapOnAxis> SnapAxis::equalGaps(const SnapSpan& placed, double tolerance) const
{
    const Row row = rowOf(placed);
    QVector<SnapGapOnAxis> own;
    if (!row.before.empty())
        own.append({*row.before.front(), placed});
    if (!row.after.empty())
        own.append({placed, *row.after.front()});
    QVector<SnapGapOnAxis> all = own;
    row.visitGaps([&](const SnapSpan& from, const SnapSpan& to) { all.append({from, to}); });

    const auto width = [](const SnapGapOnAxis& gap) { return gap.after.low - gap.before.high; };
    const auto isLikeOneOf = [&](const SnapGapOnAxis& gap, const QVector<SnapGapOnAxis>& others) {
        return std::count_if(others.cbegin(), others.cend(), [&](const SnapGapOnAxis& other) {
            return std::abs(width(other) - width(gap)) <= tolerance;
        });
    };
    // A gap beside the span that is found once more is shown, and wherever it is found.
    own.removeIf([&](const SnapGapOnAxis& gap) { return !(width(gap) > tolerance) || isLikeOneOf(gap, all) < 2; });
    all.removeIf([&](const SnapGapOnAxis& gap) { return isLikeOneOf(gap, own) == 0; });
    std::sort(all.begin(), all.end(),
              [](const SnapGapOnAxis& a, const SnapGapOnAxis& b) { return a.before.high < b.before.high; });
    return all;
}

/// The neighbour that ends last before \a span begins, or null.
const SnapSpan* SnapAxis::before(const SnapSpan& span) const
{
    auto at = std::upper_bound(m_byHigh.cbegin(), m_byHigh.cend(), span.low,
                               [](double place, const SnapSpan& other) { return place < other.high; });
    while (at != m_byHigh.cbegin()) {
        --at;
        if (&*at != &span && at->isBeside(span))
            return &*at;
    }
    return nullptr;
}

/// The neighbour that begins first after the end of \a span, or null.
const SnapSpan* SnapAxis::after(const SnapSpan& span) const
{
    auto at = std::lower_bound(m_byLow.cbegin(), m_byLow.cend(), span.high,
                               [](const SnapSpan& other, double place) { return other.low < place; });
    for (; at != m_byLow.cend(); ++at) {
        if (&*at != &span && at->isBeside(span))
            return &*at;
    }
    return nullptr;
}

SnapAxis::Row SnapAxis::rowOf(const SnapSpan& span) const
{
    Row row;
    const SnapSpan* from = &span;
    while (row.before.size() < RowLength && (from = before(*from)))
        row.before.push_back(from);
    from = &span;
    while (row.after.size() < RowLength && (from = after(*from)))
        row.after.push_back(from);
    return row;
}

} // namespace Korvex::Meridane::Designer
