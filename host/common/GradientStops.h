#pragma once

#include "host/common/CommonExport.h"

#include <QtGui/QBrush>

namespace Korvex::Meridane::Common {
/**
 * Those of @p stops that can be drawn, in their order: the positions from 0 to 1. A QGradient takes no others, and says so
 * each time. Where none is left one that is transparent: of no stops at all a QGradient makes black and white.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QGradientStops drawableStops(const QGradientStops& stops);
} // namespace Korvex::Meridane::Common
