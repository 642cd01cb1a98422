#include "host/common/FrameResize.h"

#include <QtCore/QtGlobal>

namespace Korvex::Meridane::Common {
namespace {
/** One axis of a frame from @p start to @p end whose side at @p fraction (0 or 1) is dragged to @p to. */
void dragSide(double fraction, double to, double minimum, double& start, double& end)
{
    if (fraction == 0) {
        start = qMin(to, end - minimum);
    } else {
        end = qMax(to, start + minimum);
    }
}
} // namespace

bool isFrameHandle(int handle)
{
    return handle >= TopLeft && handle <= BottomRight && handle != Center;
}

bool handleChangesWidth(int handle)
{
    return isFrameHandle(handle) && handle != Top && handle != Bottom;
}

bool handleChangesHeight(int handle)
{
    return isFrameHandle(handle) && handle != Left && handle != Right;
}

TransformOrigin cornerKeptBy(int handle)
{
    switch (handle) {
    case TopLeft:
        return BottomRight;
    case Top:
    case TopRight:
        return BottomLeft;
    case Left:
    case BottomLeft:
        return TopRight;
    default:
        return TopLeft;
    }
}

QRectF draggedFrame(const QRectF& frame, int handle, const QPointF& point, const QSizeF& minimum)
{
    const QPointF fractions = originFractions(static_cast<TransformOrigin>(handle));
    double left = frame.left();
    double right = frame.left() + frame.width();
    double top = frame.top();
    double bottom = frame.top() + frame.height();
    if (handleChangesWidth(handle)) {
        dragSide(fractions.x(), point.x(), minimum.width(), left, right);
    }
    if (handleChangesHeight(handle)) {
        dragSide(fractions.y(), point.y(), minimum.height(), top, bottom);
    }
    return QRectF(left, top, right - left, bottom - top);
}

QRectF resizedFrame(TransformOrigin fixedOrigin, const QRectF& frame, const QSizeF& size)
{
    const QPointF fractions = originFractions(fixedOrigin);
    return QRectF(frame.x() + fractions.x() * (frame.width() - size.width()),
                  frame.y() + fractions.y() * (frame.height() - size.height()), size.width(), size.height());
}

QSizeF sizeKeepingRatio(int handle, const QSizeF& wanted, double ratio, double minimum)
{
    if (!(ratio > 0)) {
        return wanted.expandedTo(QSizeF(minimum, minimum));
    }
    if (handle == Top || handle == Bottom) {
        const double height = qMax(wanted.height(), minimum);
        const double width = height * ratio;
        return width < minimum ? QSizeF(minimum, minimum / ratio) : QSizeF(width, height);
    }
    const double width = qMax(wanted.width(), minimum);
    const double height = width / ratio;
    return height < minimum ? QSizeF(minimum * ratio, minimum) : QSizeF(width, height);
}
} // namespace Korvex::Meridane::Common
