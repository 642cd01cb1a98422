#pragma once

namespace Korvex::Meridane::Designer {

/// The whole percent of a gradient position from 0 to 1: position × 100 without its decimals, where the noise of binary
/// fractions does not count (0.29 is 29 percent). The one rule for sorting, comparing and showing positions.
[[nodiscard]] inline int wholePercent(double position)
{
    constexpr double Noise = 1e-6;
    return int(position * 100 + Noise);
}

} // namespace Korvex::Meridane::Designer
