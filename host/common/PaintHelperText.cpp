#include "host/common/PaintHelper.h"

#include "host/common/DisplayFont.h"
#include "host/common/TextBoxLayout.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPen>

#include <array>
#include <span>

namespace Korvex::Meridane::Common {
namespace {
constexpr std::array OutlineOffsets = {QPointF(-1, -1), QPointF(0, -1), QPointF(1, -1), QPointF(-1, 0),
                                       QPointF(1, 0),   QPointF(-1, 1), QPointF(0, 1),  QPointF(1, 1)};
constexpr std::array RaisedOffsets = {QPointF(0, 1)};
constexpr std::array SunkenOffsets = {QPointF(0, -1)};

/** A shade on a layer of its own is limited to what the device can show above this number of pixels. */
constexpr qint64 LargestUnclippedLayer = 4096 * 4096;

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

/**
 * Draws copies that overlap in a translucent colour as one shade: opaque on a layer in the pixels of the device, which
 * is then laid over the picture. @p box is the area that can be seen.
 */
void drawTranslucentCopies(const TextBoxLayout& layout, std::span<const QPointF> offsets, const QColor& color,
                           const QRectF& box, QPainter* painter)
{
    const QTransform toDevice = painter->deviceTransform();
    const double pixelRatio = painter->device()->devicePixelRatioF();
    QRect area = toDevice.mapRect(box).toAlignedRect();
    if (static_cast<qint64>(area.width()) * area.height() > LargestUnclippedLayer) {
        const QSizeF device(painter->device()->width(), painter->device()->height());
        area &= QRectF(QPointF(0, 0), device * pixelRatio).toAlignedRect();
    }
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (layer.isNull()) {
        return;
    }
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    layerPainter.setRenderHints(painter->renderHints());
    layerPainter.setTransform(toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
    layerPainter.setPen(QColor(color.rgb()));
    drawCopies(layout, offsets, &layerPainter);
    layerPainter.end();

    layer.setDevicePixelRatio(pixelRatio);
    painter->save();
    painter->resetTransform();
    painter->setOpacity(painter->opacity() * color.alphaF());
    painter->drawImage(painter->deviceTransform().inverted().map(QPointF(area.topLeft())), layer);
    painter->restore();
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
    const std::span<const QPointF> offsets = styleOffsets(textStyle);

    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter->setClipRect(box, Qt::IntersectClip);
    const QColor styleColor = stylePen.color();
    if (styleColor.isValid() && offsets.size() > 1 && styleColor.alpha() < 255) {
        drawTranslucentCopies(*layout, offsets, styleColor, box, painter);
    } else if (styleColor.isValid()) {
        painter->setPen(styleColor);
        drawCopies(*layout, offsets, painter);
    }
    if (pen.color().isValid()) {
        painter->setPen(pen.color());
        layout->draw(painter, QPointF(0, 0));
    }
    painter->restore();
}
} // namespace Korvex::Meridane::Common
