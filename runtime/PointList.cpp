#include "runtime/PointList.h"

#include <cmath>

namespace Korvex::Meridane::Display {
std::optional<QPolygonF> toPolygon(const QVariantList& points)
{
    QPolygonF polygon;
    polygon.reserve(points.size());
    for (const QVariant& entry : points) {
        const QVariantList pair = entry.toList();
        if (pair.size() != 2) {
            return std::nullopt;
        }
        bool xOk = false;
        bool yOk = false;
        const QPointF point(pair.at(0).toDouble(&xOk), pair.at(1).toDouble(&yOk));
        if (!xOk || !yOk || !std::isfinite(point.x()) || !std::isfinite(point.y())) {
            return std::nullopt;
        }
        polygon.append(point);
    }
    return polygon;
}
} // namespace Korvex::Meridane::Display
