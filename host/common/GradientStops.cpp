#include "host/common/GradientStops.h"

namespace Korvex::Meridane::Common {
QGradientStops drawableStops(const QGradientStops& stops)
{
    QGradientStops drawable;
    drawable.reserve(stops.size());
    for (const QGradientStop& stop : stops) {
        if (stop.first >= 0 && stop.first <= 1) {
            drawable.append(stop);
        }
    }
    if (drawable.isEmpty()) {
        drawable.append({0, QColor(0, 0, 0, 0)});
    }
    return drawable;
}
} // namespace Korvex::Meridane::Common
