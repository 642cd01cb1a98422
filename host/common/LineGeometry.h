#pragma once

#include "host/common/CommonExport.h"

#include <QtGui/QPolygonF>

namespace Korvex::Meridane::Common {
/**
 * The outline of a straight line of @p length pixels that starts at (0, 0), runs @p angle degrees clockwise from the
 * x axis and is @p thickness pixels thick.
 *
 * Six points: the start point (index 0), its side, the side of the end, the end point (index 3), and the two points of
 * the other side. Empty when the thickness is below 1 or the length is not above 0, or when a number is not finite. Lines
 * along an axis are exact.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QPolygonF lineOutline(double length, double angle, double thickness);
} // namespace Korvex::Meridane::Common
