#include "host/common/RealComparison.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Common {
double roundedToWhole(double value)
{
    if (value >= 0) {
        return std::trunc(value + 0.5);
    }
    const double below = std::trunc(value - 1);
    return below + std::trunc(value - below + 0.5);
}

bool equalToDecimals(double a, double b, int decimals)
{
    if (decimals < 0) {
        return a == b;
    }
    const double factor = std::pow(10.0, decimals);
    const double first = a * factor;
    const double second = b * factor;
    if (!std::isfinite(first) || !std::isfinite(second)) {
        return a == b;
    }
    return roundedToWhole(first) == roundedToWhole(second);
}

bool fuzzyEqual(double a, double b)
{
    return std::abs(a - b) * 1e12 <= std::min(std::abs(a), std::abs(b));
}
} // namespace Korvex::Meridane::Common
