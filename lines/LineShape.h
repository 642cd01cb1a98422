#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>

namespace Korvex::Meridane::Designer {

/**
 * What makes up a line, and how it follows a change of its outer size. Lengths are pixels; the angle is degrees,
 * clockwise from the x axis. The line starts at (0, 0).
 */
struct LineShape
{
    double length = 100;
    double angle = 0;
    /// A whole number, except while a frame is being dragged.
    double thickness = 2;

    static constexpr double Shortest = 1;
    static constexpr double Longest = 9999;
    static constexpr double Thinnest = 1;
    static constexpr double Thickest = 100;
    /// The largest angle that a line has.
    static constexpr double LastAngle = 359.99;

    /// The bounding rectangle of the outline; null without an outline (see lineOutline()).
    [[nodiscard]] QRectF bounds() const;

    /**
     * The line of the same thickness whose outline is as large as \a box, in the quadrant of this one. A line along an
     * axis counts to the quadrant that follows clockwise, stays along its axis when only its length changes, and comes
     * back to it.
     *
     * A line that would be shorter than 1 or longer than 9999 pixels becomes just that; a box of the very area of the
     * thickness gives its diagonal. Nothing when no such line fits into the box, when its angle would lie above 359.99,
     * or when its length is that of this line.
     */
    [[nodiscard]] std::optional<LineShape> fitted(const QSizeF& box) const;

    /**
     * This line with length and thickness multiplied by \a factor, which is limited so that the thickness stays within
     * 1 and 100 and the length within 1 and 9999. Nothing when that leaves the line as it is.
     */
    [[nodiscard]] std::optional<LineShape> scaled(double factor) const;
};

/// The angle, in degrees from 0 to below 360, of the line from \a start to \a end. Points that are level or plumb to 2
/// decimals give exactly 0, 90, 180 or 270.
[[nodiscard]] double lineAngle(const QPointF& start, const QPointF& end);

} // namespace Korvex::Meridane::Designer
