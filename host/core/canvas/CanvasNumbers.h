#pragma once

#include "host/core/CoreExport.h"

#include <QPointF>
#include <QSizeF>

namespace Korvex::Meridane::Designer {

/// \a value (pixels) without the noise that sums and differences leave behind it: rounded to 10 decimals, so that
/// 43.4 - 10.1 gives 33.3. A value of 100 000 or more has no such decimals and comes back as it is.
[[nodiscard]] MERIDANE_CORE_EXPORT double withoutNoise(double value);
[[nodiscard]] MERIDANE_CORE_EXPORT QPointF withoutNoise(const QPointF& point);
[[nodiscard]] MERIDANE_CORE_EXPORT QSizeF withoutNoise(const QSizeF& size);

} // namespace Korvex::Meridane::Designer
