#include "host/core/widgets/Checkerboard.h"

#include <QtCore/QRectF>
#include <QtGui/QColor>
#include <QtGui/QPainter>

namespace Korvex::Meridane::Designer {
namespace {
/** Side of a square in device-independent pixels. */
constexpr double squareSide = 4;
} // namespace

void paintCheckerboard(QPainter& painter, const QRectF& rectangle)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setClipRect(rectangle, Qt::IntersectClip);
    painter.fillRect(rectangle, QColor(255, 255, 255));
    bool rowStartsGrey = false;
    for (double y = rectangle.top(); y < rectangle.bottom(); y += squareSide) {
        rowStartsGrey = !rowStartsGrey;
        for (double x = rectangle.left() + (rowStartsGrey ? 0 : squareSide); x < rectangle.right();
             x += 2 * squareSide) {
            painter.fillRect(QRectF(x, y, squareSide, squareSide), QColor(192, 192, 192));
        }
    }
    painter.restore();
}
} // namespace Korvex::Meridane::Designer
