#include "host/common/LineGeometry.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Korvex::Meridane::Common {
namespace {
/** @p value without the noise that sine and cosine leave at multiples of 90 degrees. */
double exactAtAxes(double value)
{
    constexpr double Noise = 1e-15;
    return std::abs(value) < Noise ? 0 : value;
}
} // namespace

QPolygonF lineOutline(double length, double angle, double thickness)
{
    if (!(thickness >= 1) || !(length > 0) || !std::isfinite(thickness + length) || !std::isfinite(angle)) {
        return QPolygonF();
    }
    const double half = thickness * 0.5;
    // Without whole turns, however many, the axes are exact.
    const double radians = std::fmod(angle, 360) * M_PI / 180;
    const double c = exactAtAxes(std::cos(radians));
    const double s = exactAtAxes(std::sin(radians));
    const QPointF end(length * c, length * s);
    const QPointF side(half * s, -half * c);
    return QPolygonF({QPointF(0, 0), side, end + side, end, end - side, -side});
}
} // namespace Korvex::Meridane::Common
