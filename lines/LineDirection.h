#pragma once

#include <QPointF>
#include <QSizeF>

namespace Korvex::Meridane::Designer {

/**
 * In which direction a line of \a thickness runs whose outline has the bounding box \a box (pixels), as the part of the
 * box that its thickness takes up: thickness × (cos θ, sin θ), where θ is the line's angle from the vertical. What is
 * left of the box is the extent of the centre line.
 *
 * θ is the one of 0.01°, 0.02° … 89.99° for which f(θ) = |cos θ (w − t cos θ) − sin θ (h − t sin θ)| is smallest, the
 * first of several: where f is 0, the rest of the box lies in the direction of the line. (−1, −1) when \a thickness
 * exceeds the area of the box, or when a number is not finite; (0, 0) when both are equal to 2 decimals.
 *
 * How much f can change from one angle to another has a bound, by which whole ranges of angles are left out: a search
 * looks at some dozen angles instead of all 8999.
 *
 * \a shortest leaves out the angles that would make the centre line shorter (pixels); (−1, −1) when none is left.
 */
[[nodiscard]] QPointF lineDirection(const QSizeF& box, double thickness, double shortest = 0);

} // namespace Korvex::Meridane::Designer
