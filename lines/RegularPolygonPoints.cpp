#include "lines/RegularPolygonPoints.h"

#include "host/core/canvas/CanvasNumbers.h"

#include "host/common/RegularPolygonGeometry.h"

#include <QtMath>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int FewestPoints = 3;
constexpr double ReferenceSize = 272; // pixels
constexpr double UsedShare = 0.5;

/// The edge length in whole pixels. A polygon of this diameter is as high as the reference where two vertices face each
/// other; where a vertex faces the middle of an edge it would be lower, and is enlarged to that height.
double edgeLength(int count)
{
    double length = std::sin(M_PI / count) * ReferenceSize;
    if (count % 2 != 0)
        length = 2 * length / (std::cos(M_PI / count) + 1);
    return std::floor(length * UsedShare);
}

} // namespace

QPolygonF regularPolygonPoints(int count, int most)
{
    QPolygonF points;
    if (count < FewestPoints || count > most)
        return points;
    points = Common::regularPolygon(count, edgeLength(count));
    // The sines leave coordinates like 2.8e-14 behind, which would go into files as they are.
    for (QPointF& point : points)
        point = withoutNoise(point);
    return points;
}

} // namespace Korvex::Meridane::Designer
