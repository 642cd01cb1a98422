#pragma once

#include "host/core/CoreExport.h"

class QPainter;
class QRectF;

namespace Korvex::Meridane::Designer {
/** Fills @p rectangle with the grey squares that show through translucent colours. */
MERIDANE_CORE_EXPORT void paintCheckerboard(QPainter& painter, const QRectF& rectangle);
} // namespace Korvex::Meridane::Designer
