#pragma once

#include "host/common/CommonExport.h"

/** The two ways in which real values count as equal, so that noise of the arithmetic never looks like a change. */
namespace Korvex::Meridane::Common {
/**
 * @p value rounded to a whole number, halves upwards. A value x of 0 or more gives trunc(x + 0.5); a negative one
 * gives t + trunc(x − t + 0.5) with t = trunc(x − 1).
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT double roundedToWhole(double value);

/**
 * True when both values, multiplied by 10^@p decimals and rounded by roundedToWhole(), are the same. With negative
 * @p decimals, and when the product is not finite, the values are compared exactly. Not-a-number equals nothing.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool equalToDecimals(double a, double b, int decimals);

/**
 * True when |a − b| × 10^12 is at most the smaller of |a| and |b|: equal up to the noise of double arithmetic. Only 0
 * itself equals 0; not-a-number equals nothing.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool fuzzyEqual(double a, double b);
} // namespace Korvex::Meridane::Common
