#pragma once

#include "host/core/CoreExport.h"

/** Letter and word spacing as QFont keeps it: in whole 64ths of a pixel, of which it drops what lies beyond. */
namespace Korvex::Meridane::Designer {
/** The 64ths of a pixel that QFont keeps of @p spacing (pixels, up to ±10^7). */
[[nodiscard]] MERIDANE_CORE_EXPORT int keptSpacing(double spacing);

/**
 * The number with the fewest decimals of which QFont keeps the same as of @p spacing: what was entered (0.1) instead of
 * what became of it (0.09375).
 */
[[nodiscard]] MERIDANE_CORE_EXPORT double shortestSpacing(double spacing);
} // namespace Korvex::Meridane::Designer
