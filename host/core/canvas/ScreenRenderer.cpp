#include "host/core/canvas/ScreenRenderer.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/objects/Screen.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// A quarter of a gigabyte of pixels: far above any display, far below what stops a machine.
constexpr double MostPixels = 64e6;
/// QPainter's raster engine draws no further.
constexpr double LongestSide = 32767;

/// Paints one item as the view does, but never as selected.
void paintItem(QGraphicsItem* graphic, const QTransform& toImage, QPainter* painter)
{
    QStyleOptionGraphicsItem option;
    option.state = QStyle::State_None;
    if (graphic->isEnabled())
        option.state |= QStyle::State_Enabled;
    option.exposedRect = graphic->boundingRect();
    option.rect = option.exposedRect.toAlignedRect();
    painter->save();
    painter->setWorldTransform(graphic->sceneTransform() * toImage);
    painter->setOpacity(graphic->effectiveOpacity());
    graphic->paint(painter, &option, nullptr);
    painter->restore();
}

} // namespace

QImage ScreenRenderer::render(CanvasScene* scene, double scale)
{
    if (!scene || !(scale > 0))
        return {};
    const QSizeF size = scene->screen()->size() * scale;
    const double width = std::max(std::round(size.width()), 1.0);
    const double height = std::max(std::round(size.height()), 1.0);
    if (!(width <= LongestSide) || !(height <= LongestSide) || width * height > MostPixels)
        return {};
    QImage image(int(width), int(height), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QTransform toImage = QTransform::fromScale(scale, scale);
    const QList<QGraphicsItem*> backToFront = scene->items(Qt::AscendingOrder);
    for (QGraphicsItem* graphic : backToFront) {
        if (graphic->isVisible())
            paintItem(graphic, toImage, &painter);
    }
    return image;
}

} // namespace Korvex::Meridane::Designer
