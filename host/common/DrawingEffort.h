#pragma once

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QSvgRenderer;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
/**
 * About how many seconds it takes to paint \p drawing on 1000 × 1000 pixels. Gives up counting above \p most.
 *
 * A few letters can ask for minutes: thousands of layers over all pixels, outlines that cross themselves a million times,
 * dashes finer than any pixel. So the drawing is painted on a device that only adds up what each part would cost. The result
 * is rather too large than too small, and tells minutes from moments.
 */
[[nodiscard]] double paintingEffort(QSvgRenderer* drawing, double most);
} // namespace Korvex::Meridane::Common
