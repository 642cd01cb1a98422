#pragma once

#include <algorithm>

namespace Korvex::Meridane::Designer {

/// The whole percent of a gradient position from 0 to 1: position × 100 without its decimals, where the noise of binary
/// fractions does not count (0.29 is 29 percent). The one rule for sorting, comparing and showing positions.
[[nodiscard]] inline int wholePercent(double position)
{
    constexpr double Noise = 1e-6;
    constexpr double Largest = 1e9; // of positions that are none
    return int(std::clamp(position * 100 + Noise, -Largest, Largest));
}

} // namespace Korvex::Meridane::Designer
