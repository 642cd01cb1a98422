#include "host/common/LineGeometry.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Korvex::Meridane::Common {
QPolygonF lineOutline(double length, double angle, int thickness)
{
    if (thickness < 1 || !(length > 0)) {
        return QPolygonF();
    }
    const double half = thickness * 0.5;
    const double radians = angle * M_PI / 180;
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    const QPointF end(length * c, length * s);
    const QPointF side(half * s, -half * c);
    return QPolygonF({QPointF(0, 0), side, end + side, end, end - side, -side});
}
} // namespace Korvex::Meridane::Common
