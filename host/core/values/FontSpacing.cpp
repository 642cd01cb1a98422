#include "host/core/values/FontSpacing.h"

#include <cmath>
#include <cstdlib>

namespace Korvex::Meridane::Designer {
int keptSpacing(double spacing)
{
    return static_cast<int>(spacing * 64);
}

double shortestSpacing(double spacing)
{
    const int kept = keptSpacing(spacing);
    const double magnitude = std::abs(kept) / 64.0;
    // Two decimals always suffice, because a hundredth is less than a 64th.
    for (const double scale : {1.0, 10.0, 100.0}) {
        const double candidate = std::copysign(std::ceil(magnitude * scale) / scale, spacing);
        if (keptSpacing(candidate) == kept) {
            return candidate;
        }
    }
    return kept / 64.0;
}
} // namespace Korvex::Meridane::Designer
