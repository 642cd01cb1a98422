#pragma once

#include <rapidcheck.h>

namespace Korvex::Meridane::Designer::Test {

/// From \a low to below \a high, evenly in every case: RapidCheck's own range begins with the small numbers.
inline int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

inline double anyReal(double low, double high)
{
    constexpr int Fine = 1000000000;
    return low + (high - low) * anyNumber(0, Fine) / Fine;
}

/// From \a low to below \a high, a whole number of hundredths.
inline double anyHundredths(int low, int high)
{
    return anyNumber(100 * low, 100 * high) / 100.0;
}

} // namespace Korvex::Meridane::Designer::Test
