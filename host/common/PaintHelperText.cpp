#include "host/common/PaintHelper.h"

#include "host/common/DisplayFont.h"
#include "host/common/TextBoxLayout.h"

#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPen>

#include <array>
#include <cmath>
#include <functional>
#include <span>

namespace Korvex::Meridane::Common {
namespace {
constexpr std::array OutlineOffsets = {QPointF(-1, -1), QPointF(0, -1), QPointF(1, -1), QPointF(-1, 0),
                                       QPointF(1, 0),   QPointF(-1, 1), QPointF(0, 1),  QPointF(1, 1)};
constexpr std::array RaisedOffsets = {QPointF(0, 1)};
constexpr std::array SunkenOffsets = {QPointF(0, -1)};

/** A shade on a layer of its own is limited to what the device can show above this number of pixels. */
constexpr qint64 LargestUnclippedLayer = 4096 * 4096;

/**
 * Moves the text by less than a hundredth of a device pixel, onto 64ths of it, in which glyphs are placed. The rest would
 * be cut off towards zero, so that the same text left of the device's origin and right of it would not look the same.
 */
void placeOnDevice(QPainter* painter)
{
    const QTransform device = painter->deviceTransform();
    if (device.type() > QTransform::TxScale || device.m11() == 0 || device.m22() == 0) {
        return;
    }
    const double x = std::round(device.dx() * 64) / 64 - device.dx();
    const double y = std::round(device.dy() * 64) / 64 - device.dy();
    painter->translate(x / device.m11(), y / device.m22());
}

/** Where the copies of the text lie that make its style; none for plain text. */
std::span<const QPointF> styleOffsets(const QString& textStyle)
{
    if (textStyle == QLatin1String("Outline")) {
        return OutlineOffsets;
    }
    if (textStyle == QLatin1String("Raised")) {
        return RaisedOffsets;
    }
    if (textStyle == QLatin1String("Sunken")) {
        return SunkenOffsets;
    }
    return {};
}

void drawCopies(const TextBoxLayout& layout, std::span<const QPointF> offsets, QPainter* painter)
{
    for (const QPointF& offset : offsets) {
        layout.draw(painter, offset);
    }
}

/** The part of @p box that the device can show, in its pixels. */
QRect shownArea(const QRectF& box, const QPainter* painter)
{
    const QRect area = painter->deviceTransform().mapRect(box).toAlignedRect();
    const QRegion exposed = painter->paintEngine()->systemClip();
    if (!exposed.isEmpty()) {
        return area & exposed.boundingRect();
    }
    if (static_cast<qint64>(area.width()) * area.height() <= LargestUnclippedLayer) {
        return area;
    }
    const QPaintDevice* device = painter->device();
    return area
           & QRectF(QPointF(0, 0), QSizeF(device->width(), device->height()) * device->devicePixelRatioF())
                 .toAlignedRect();
}

/** Lays over the picture, at @p opacity, what @p draw draws on a transparent layer in the pixels of the device. */
void drawOnLayer(const QRectF& box, double opacity, QPainter* painter, const std::function<void(QPainter*)>& draw)
{
    const QRect area = shownArea(box, painter);
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (layer.isNull()) {
        return;
    }
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    layerPainter.setRenderHints(painter->renderHints());
    layerPainter.setTransform(painter->deviceTransform() * QTransform::fromTranslate(-area.x(), -area.y()));
    draw(&layerPainter);
    layerPainter.end();

    layer.setDevicePixelRatio(painter->device()->devicePixelRatioF());
    painter->save();
    painter->resetTransform();
    painter->setOpacity(painter->opacity() * opacity);
    painter->drawImage(painter->deviceTransform().inverted().map(QPointF(area.topLeft())), layer);
    painter->restore();
}

/** The copies of the style in its colour, and the letters over them in theirs. */
void drawLetters(const TextBoxLayout& layout, const QRectF& box, std::span<const QPointF> offsets,
                 const QColor& styleColor, const QColor& color, QPainter* painter)
{
    if (styleColor.isValid() && offsets.size() > 1 && styleColor.alpha() < 255) {
        // Copies that overlap make one shade.
        drawOnLayer(box, styleColor.alphaF(), painter, [&](QPainter* layerPainter) {
            layerPainter->setPen(QColor(styleColor.rgb()));
            drawCopies(layout, offsets, layerPainter);
        });
    } else if (styleColor.isValid()) {
        painter->setPen(styleColor);
        drawCopies(layout, offsets, painter);
    }
    if (color.isValid()) {
        painter->setPen(color);
        layout.draw(painter, QPointF(0, 0));
    }
}
} // namespace

void PaintHelper::paintTextBox(QSizeF size, const QFont& font, const QPen& pen, const QString& text, int alignment,
                               const QString& textStyle, const QPen& stylePen, QPainter* painter)
{
    TextBoxLayout layout;
    paintTextBox(size, font, pen, text, alignment, textStyle, stylePen, painter, &layout);
}

void PaintHelper::paintTextBox(QSizeF size, const QFont& font, const QPen& pen, const QString& text, int alignment,
                               const QString& textStyle, const QPen& stylePen, QPainter* painter, TextBoxLayout* layout)
{
    if (!(size.width() > 0 && size.height() > 0) || text.isEmpty()) {
        return;
    }
    layout->prepare(text, displayFont(font), size, alignment);
    const QRectF box(QPointF(0, 0), size);

    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter->setClipRect(box, Qt::IntersectClip);
    placeOnDevice(painter);
    const auto draw = [&](QPainter* target) {
        drawLetters(*layout, box, styleOffsets(textStyle), stylePen.color(), pen.color(), target);
    };
    // A device that takes letters as outlines has no blending of glyphs to be kept from.
    const bool takesOutlines = painter->paintEngine()->type() == QPaintEngine::User;
    if (layout->needsLayer() && !takesOutlines) {
        drawOnLayer(box, 1, painter, draw);
    } else {
        draw(painter);
    }
    painter->restore();
}
} // namespace Korvex::Meridane::Common
