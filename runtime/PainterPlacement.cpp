#include "runtime/PainterPlacement.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Korvex::Meridane::Display {
namespace {
/** What counts as being on a pixel's edge already, in pixels: far below what a shade of 8 bits can show. */
constexpr double EdgeTolerance = 1e-4;

/** An outline more than this many windows wide or high is cut down to the window. */
constexpr double LargestUncutWindows = 2;

/** True when @p transform keeps shapes: it moves, turns and scales both axes alike, without mirroring. */
bool keepsShapes(const QTransform& transform)
{
    const double scale = std::hypot(transform.m11(), transform.m12());
    const double tolerance = 1e-9 * scale;
    return transform.isAffine() && scale > 0 && std::isfinite(scale)
           && std::abs(transform.m11() - transform.m22()) <= tolerance
           && std::abs(transform.m12() + transform.m21()) <= tolerance;
}

bool isFinite(const QRectF& rect)
{
    return std::isfinite(rect.left()) && std::isfinite(rect.top()) && std::isfinite(rect.right())
           && std::isfinite(rect.bottom());
}

QRectF roundedOut(const QRectF& rect, int margin)
{
    const double left = std::floor(rect.left() + EdgeTolerance) - margin;
    const double top = std::floor(rect.top() + EdgeTolerance) - margin;
    const double right = std::ceil(rect.right() - EdgeTolerance) + margin;
    const double bottom = std::ceil(rect.bottom() - EdgeTolerance) + margin;
    return QRectF(left, top, right - left, bottom - top);
}
} // namespace

PainterPlacement placePainter(const QRectF& outer, const QTransform& itemToScene, double pixelRatio,
                              const QSizeF& window)
{
    PainterPlacement placement;
    const QTransform toPixels = itemToScene * QTransform::fromScale(pixelRatio, pixelRatio);
    const QRectF onScreen = toPixels.mapRect(outer);
    // What has no end, or stands nowhere, cannot be covered by pixels.
    if (outer.isEmpty() || !isFinite(onScreen)) {
        return placement;
    }
    if (!keepsShapes(itemToScene)) {
        const QRectF covered = roundedOut(outer, 1);
        placement.position = covered.topLeft();
        placement.size = covered.size();
        placement.contentToPainter = QTransform::fromTranslate(-covered.x(), -covered.y());
        placement.turnedToScene = false;
        return placement;
    }
    // The antialiasing of a slanted edge may reach into the next pixel.
    QRectF pixels = roundedOut(onScreen, itemToScene.type() > QTransform::TxTranslate ? 1 : 0);
    const QSizeF windowPixels = window * pixelRatio;
    if (pixels.width() > LargestUncutWindows * windowPixels.width()
        || pixels.height() > LargestUncutWindows * windowPixels.height()) {
        pixels &= roundedOut(QRectF(QPointF(0, 0), windowPixels), 0);
        if (pixels.isEmpty()) {
            return placement;
        }
    }
    const QPointF sceneCorner = pixels.topLeft() / pixelRatio;
    placement.position = itemToScene.inverted().map(sceneCorner);
    placement.size = pixels.size() / pixelRatio;
    if (itemToScene.type() > QTransform::TxTranslate) {
        placement.rotation = -qRadiansToDegrees(std::atan2(itemToScene.m12(), itemToScene.m11()));
        placement.scale = 1 / std::hypot(itemToScene.m11(), itemToScene.m12());
    }
    placement.contentToPainter = itemToScene * QTransform::fromTranslate(-sceneCorner.x(), -sceneCorner.y());
    return placement;
}
} // namespace Korvex::Meridane::Display
