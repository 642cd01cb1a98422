#include "host/core/canvas/ScreenRenderer.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// A quarter of a gigabyte of pixels: far above any display, far below what stops a machine.
constexpr double MostPixels = 64e6;
/// QPainter's raster engine draws no further.
constexpr double LongestSide = 32767;

bool standsIn(const DesignerObject* object, const QList<DesignerObject*>& objects)
{
    for (; object; object = object->parentObject()) {
        if (std::find(objects.cbegin(), objects.cend(), object) != objects.cend())
            return true;
    }
    return false;
}

} // namespace

void ScreenRenderer::paintItem(QGraphicsItem* graphic, const QTransform& fromScene, QPainter* painter)
{
    QStyleOptionGraphicsItem option;
    option.state = QStyle::State_None;
    if (graphic->isEnabled())
        option.state |= QStyle::State_Enabled;
    option.exposedRect = graphic->boundingRect();
    option.rect = option.exposedRect.toAlignedRect();
    painter->save();
    painter->setWorldTransform(graphic->sceneTransform() * fromScene);
    painter->setOpacity(graphic->effectiveOpacity());
    graphic->paint(painter, &option, nullptr);
    painter->restore();
}

QList<QGraphicsItem*> ScreenRenderer::items(CanvasScene* scene, const RenderOptions& options)
{
    QList<QGraphicsItem*> shown = scene->items(Qt::AscendingOrder);
    shown.removeIf([scene, &options](QGraphicsItem* graphic) {
        const GraphicsItem* item = GraphicsItem::fromGraphic(graphic);
        const DesignerObject* object = item ? item->dataObject() : nullptr;
        if (!options.only.isEmpty())
            return !standsIn(object, options.only);
        return object == scene->screen() && !options.ground;
    });
    return shown;
}

QRectF ScreenRenderer::area(CanvasScene* scene, const RenderOptions& options)
{
    if (options.only.isEmpty())
        return {QPointF(0, 0), scene->screen()->size()};
    QRectF area;
    const QList<QGraphicsItem*> shown = items(scene, options);
    for (QGraphicsItem* graphic : shown) {
        if (const GraphicsItem* item = GraphicsItem::fromGraphic(graphic))
            area |= graphic->mapRectToScene(item->outerRect());
    }
    return area.toAlignedRect();
}

QImage ScreenRenderer::render(CanvasScene* scene, double scale)
{
    RenderOptions options;
    options.scale = scale;
    return render(scene, options);
}

QImage ScreenRenderer::render(CanvasScene* scene, const RenderOptions& options, const WorkProgress& progress)
{
    if (!scene || !(options.scale > 0))
        return {};
    const QRectF shownArea = area(scene, options);
    const QSizeF size = shownArea.size() * options.scale;
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
    const QTransform toImage =
        QTransform::fromTranslate(-shownArea.x(), -shownArea.y()) * QTransform::fromScale(options.scale, options.scale);
    const QList<QGraphicsItem*> backToFront = items(scene, options);
    for (qsizetype i = 0; i < backToFront.size(); ++i) {
        if (progress && !progress(int(i), int(backToFront.size())))
            return {};
        paintItem(backToFront.at(i), toImage, &painter);
    }
    return image;
}

} // namespace Korvex::Meridane::Designer
