#include "host/core/canvas/CanvasNumbers.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

double withoutNoise(double value)
{
    constexpr double Factor = 1e10;
    constexpr double Largest = 1e5; // Factor times this is still a whole number that a double holds exactly
    return std::abs(value) < Largest ? std::round(value * Factor) / Factor : value;
}

QPointF withoutNoise(const QPointF& point)
{
    return {withoutNoise(point.x()), withoutNoise(point.y())};
}

QSizeF withoutNoise(const QSizeF& size)
{
    return {withoutNoise(size.width()), withoutNoise(size.height())};
}

} // namespace Korvex::Meridane::Designer
