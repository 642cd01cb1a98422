#pragma once

class QPainter;
class QRectF;

namespace Korvex::Meridane::Designer {
/** Fills @p rectangle with the grey squares that show through translucent colours. */
void paintCheckerboard(QPainter& painter, const QRectF& rectangle);
} // namespace Korvex::Meridane::Designer
