#pragma once

#include <QPolygonF>

namespace Korvex::Meridane::Designer {

/**
 * The regular polygon of \a count points with which an irregular polygon starts: about 136 pixels high, with edges of
 * whole pixels. The first point is the one at the top; the others follow clockwise on the screen. The bounding rectangle
 * begins at (0, 0).
 *
 * Empty for fewer than 3 points and for more than \a most.
 */
[[nodiscard]] QPolygonF regularPolygonPoints(int count, int most);

} // namespace Korvex::Meridane::Designer
