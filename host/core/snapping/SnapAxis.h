#pragma once

#include "host/core/CoreExport.h"

#include <QVector>

#include <optional>
#include <vector>

namespace Korvex::Meridane::Designer {

/// What something can snap to, in the order in which they win where two are equally near.
enum class SnapKind
{
    Guide,
    Element, ///< an edge or the centre of another element
    Screen, ///< an edge or the centre of the screen
    Gap, ///< a place that makes gaps between neighbours equal
    Grid
};

/// A place on an axis, with the extent of what stands there across the axis; that of a guide is empty.
struct SnapStop
{
    double position = 0;
    SnapKind kind = SnapKind::Element;
    double from = 0;
    double to = 0;
};

/// What a rectangle covers of an axis, and across it.
struct SnapSpan
{
    double low = 0;
    double high = 0;
    double acrossLow = 0;
    double acrossHigh = 0;

    [[nodiscard]] double center() const { return 0.5 * (low + high); }
    /// Whether both stand in one row of the axis: they share more than an edge across it.
    [[nodiscard]] bool isBeside(const SnapSpan& other) const
    {
        return acrossLow < other.acrossHigh && other.acrossLow < acrossHigh;
    }
};

/// Which parts of a moving span move, and so may snap.
struct SnapParts
{
    bool low = false;
    bool center = false;
    bool high = false;
};

/// How far to move to be in place.
struct SnapChoice
{
    double correction = 0;
    SnapKind kind = SnapKind::Grid;
};

/// Two spans of a row, and the gap between them.
struct SnapGapOnAxis
{
    SnapSpan before;
    SnapSpan after;
};

/**
 * The things to snap to along one axis. Filled once and prepared; then each question takes logarithmic time, but for the
 * neighbours in a row, whose search passes what stands between them in other rows.
 */
class MERIDANE_CORE_EXPORT SnapAxis
{
public:
    /// A guide: a stop without an extent.
    void addGuide(double position);
    /// The edges and the centre of an element; it also is a neighbour that gaps are measured to.
    void addElement(const SnapSpan& span);
    /// The edges and the centre of the screen.
    void addScreen(const SnapSpan& span);
    /// Stops at every multiple of \a spacing; 0: none.
    void setGrid(double spacing) { m_grid = spacing; }
    /// To be called after the last addition.
    void prepare();

    /// Where \a moving snaps to: the nearest thing within \a reach (pixels) of one of \a parts, or nothing. The
    /// first of equally near ones by kind, then low before high, then the smaller position.
    ///
    /// \a wholePixels: only whole corrections; a place between two pixels is rounded to the nearer one, halves outwards for edges
    /// (low down, high up) and down for the rest.
    [[nodiscard]] std::optional<SnapChoice> choose(const SnapSpan& moving, SnapParts parts, double reach,
                                                   bool wholePixels) const;

    /// The stops that \a placed stands on with one of \a parts; \a tolerance in pixels. Those of one position and kind
    /// are one. Grid lines are none of them.
    [[nodiscard]] QVector<SnapStop> stopsAt(const SnapSpan& placed, SnapParts parts, double tolerance) const;
    /// The gaps of the row of \a placed that are as wide as one beside it; empty unless there are two of them.
    [[nodiscard]] QVector<SnapGapOnAxis> equalGaps(const SnapSpan& placed, double tolerance) const;

private:
    struct Row;

    void addStops(const SnapSpan& span, SnapKind kind);
    [[nodiscard]] const SnapSpan* before(const SnapSpan& span) const;
    [[nodiscard]] const SnapSpan* after(const SnapSpan& span) const;
    [[nodiscard]] Row rowOf(const SnapSpan& span) const;

    std::vector<SnapStop> m_stops; // by position, then kind
    std::vector<SnapSpan> m_byLow;
    std::vector<SnapSpan> m_byHigh;
    double m_grid = 0;
};

} // namespace Korvex::Meridane::Designer
