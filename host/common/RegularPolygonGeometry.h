#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QPolygonF>

/**
 * Geometry of the regular polygon with one vertex at the top. Its content is the rectangle from (0, 0) around its
 * outline; the border is centred on the outline and its corners are mitred. Lengths are pixels.
 *
 * With n edges of length L the circumradius is R = L / (2 sin(π/n)). A border of width p moves every vertex outwards by
 * (p/2) / cos(π/n), which gives the outer sizes here and, solved for L, the two edge length functions: they are each
 * other's inverse. Fewer than 3 edges or a length not above 0 is no polygon; more than 360 edges count as 360, which
 * nobody can tell from a circle.
 */
namespace Korvex::Meridane::Common {
/** @p width made even by adding 1 to an odd number; 0 when it is not above 0. The outer sizes use this width. */
[[nodiscard]] MERIDANE_COMMON_EXPORT int evenPenWidth(int width);

/** The index, clockwise from the top, of the vertex that lies furthest out sideways (5 of 20 edges, 1 of 3). */
[[nodiscard]] MERIDANE_COMMON_EXPORT int widestVertex(int edges);

/** The radius of the circle through the vertices; 0 when there is no polygon. */
[[nodiscard]] MERIDANE_COMMON_EXPORT double circumradius(int edges, double edgeLength);

/** The vertices, clockwise on screen from the top one, not closed; empty when there is no polygon. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QPolygonF regularPolygon(int edges, double edgeLength);

/** The size of the outline without border; empty when there is no polygon. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QSizeF regularPolygonSize(int edges, double edgeLength);

/** The outer rectangle, border included, in content coordinates; the null rectangle when there is no polygon. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QRectF regularPolygonBoundingRect(int edges, double edgeLength, int borderWidth);

/** The edge length of the polygon whose outer width is @p width. Not limited: it may be negative. 0 for fewer than 3 edges. */
[[nodiscard]] MERIDANE_COMMON_EXPORT double edgeLengthFromWidth(int edges, double width, int borderWidth);

/** The edge length of the polygon whose outer height is @p height. Not limited: it may be negative. 0 for fewer than 3 edges. */
[[nodiscard]] MERIDANE_COMMON_EXPORT double edgeLengthFromHeight(int edges, double height, int borderWidth);
} // namespace Korvex::Meridane::Common
