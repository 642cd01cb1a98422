#include "host/common/PaintHelper.h"

#include "host/common/PictureCache.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <cmath>

namespace Korvex::Meridane::Common {
namespace {
/** Sides beyond this, in device pixels, are stretched instead of scaled: what can be seen of them is a small part. */
constexpr double LargestSide = 4096;

/** The size of a content of \p size in pixels of the painter's device; empty when nothing of it can be seen. */
QSize devicePixels(const QSizeF& size, const QPainter& painter)
{
    const QTransform toDevice = painter.deviceTransform();
    const double horizontal = std::hypot(toDevice.m11(), toDevice.m12());
    const double vertical = std::hypot(toDevice.m21(), toDevice.m22());
    const auto side = [](double length) { return int(std::ceil(qBound(0.0, length, LargestSide) - 1e-6)); };
    return QSize(side(size.width() * horizontal), side(size.height() * vertical));
}

void drawStretched(const QImage& picture, const QSizeF& size, QPainter* painter)
{
    const QPainter::RenderHints hints = painter->renderHints();
    // The second hint is for edges between pixels and of turned pictures.
    painter->setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter->drawImage(QRectF(QPointF(0, 0), size), picture, QRectF(picture.rect()));
    painter->setRenderHints(hints ^ painter->renderHints(), false);
}
} // namespace

void PaintHelper::paintPicture(const QSizeF& size, const QImage& picture, bool moving, QPainter* painter)
{
    const QSize pixels = devicePixels(size, *painter);
    if (picture.isNull() || pixels.isEmpty()) {
        return;
    }
    // A picture that is enlarged is stretched while it is drawn; one that is reduced would lose its fine lines so.
    const bool reduced = pixels.width() < picture.width() || pixels.height() < picture.height();
    drawStretched(reduced ? PictureCache::scaled(picture, pixels, moving) : picture, size, painter);
}

void PaintHelper::paintDrawing(const QSizeF& size, QSvgRenderer* drawing, quint64 id, QPainter* painter)
{
    const QSize pixels = devicePixels(size, *painter);
    if (drawing && !pixels.isEmpty()) {
        drawStretched(PictureCache::painted(drawing, id, pixels), size, painter);
    }
}
} // namespace Korvex::Meridane::Common
