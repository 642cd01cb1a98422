#include "host/core/output/ScreenSvg.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/objects/Screen.h"
#include "host/core/output/TextOutlineDevice.h"
#include "host/core/values/ValueConversion.h"

#include <QBuffer>
#include <QGraphicsItem>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Korvex::Meridane::Designer {

namespace {

/// Embedded pictures have this many pixels for one of the display, unless they would grow beyond LongestPicture.
constexpr double PictureScale = 3;
constexpr double LongestPicture = 4096;
/// Drawing and picture are compared at this scale, or smaller where that many pixels are not needed to see a fault.
constexpr double ComparedScale = 2;
constexpr double LongestCompared = 800;
/// Differences of a channel below this are those of rounding and soft edges.
constexpr int SmallDifference = 40;
/// The share of an element's pixels that may differ by more.
constexpr double AcceptedShare = 0.01;

double scaleFor(const QRectF& place, double wanted, double longestSide)
{
    return std::min(wanted, longestSide / std::max({place.width(), place.height(), 1.0}));
}

QImage transparentImage(const QRectF& place, double scale)
{
    QImage image(std::max(int(std::ceil(place.width() * scale)), 1),
                 std::max(int(std::ceil(place.height() * scale)), 1), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QTransform toOrigin(const QRectF& place)
{
    return QTransform::fromTranslate(-place.x(), -place.y());
}

QImage pictureOf(QGraphicsItem* graphic, const QRectF& place, double scale)
{
    QImage image = transparentImage(place, scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    ScreenRenderer::paintItem(graphic, toOrigin(place) * QTransform::fromScale(scale, scale), &painter);
    return image;
}

/// A drawing of the size of \a place, which the painter handed to \a paint draws in scene coordinates.
template <typename Paint>
QByteArray drawing(const QRectF& place, const QString& title, const Paint& paint)
{
    QByteArray svg;
    QBuffer buffer(&svg);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(place.size().toSize());
    generator.setViewBox(QRectF(QPointF(0, 0), place.size()));
    generator.setTitle(title);
    QPainter painter(&generator);
    paint(&painter);
    painter.end();
    return svg;
}

struct Drawn
{
    bool hasText = false;
    bool isWhole = true; // as far as can be told while drawing
};

Drawn drawItem(QGraphicsItem* graphic, const QRectF& place, QPainter* svg)
{
    svg->save();
    TextOutlineDevice device(svg);
    QPainter painter(&device);
    ScreenRenderer::paintItem(graphic, toOrigin(place), &painter);
    painter.end();
    svg->restore();
    return {device.hasText(), !device.hasUnsayable()};
}

bool isNear(const QImage& one, const QImage& other)
{
    qint64 covered = 0;
    qint64 differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(one.constScanLine(y));
        const auto* otherLine = reinterpret_cast<const QRgb*>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = line[x];
            const QRgb b = otherLine[x];
            covered += (qAlpha(a) | qAlpha(b)) != 0;
            differing += std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                   std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))})
                         > SmallDifference;
        }
    }
    return double(differing) <= AcceptedShare * double(covered);
}

/// \a image in a quarter of its lines and columns. Letters are painted a part of a pixel from where their outlines lie; this
/// makes nothing of it, and leaves what is missing or elsewhere.
QImage softened(const QImage& image)
{
    constexpr int Reduction = 4;
    return image.scaled(std::max(image.width() / Reduction, 1), std::max(image.height() / Reduction, 1),
                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Whether the item, drawn into a file and read from it, looks as it does on the canvas.
bool canBeDrawn(QGraphicsItem* graphic, const QRectF& place)
{
    Drawn drawn;
    const QByteArray svg = drawing(place, {}, [&](QPainter* painter) { drawn = drawItem(graphic, place, painter); });
    if (!drawn.isWhole)
        return false;
    const double scale = scaleFor(place, ComparedScale, LongestCompared);
    const QImage wanted = pictureOf(graphic, place, scale);
    QImage shown = transparentImage(place, scale);
    QPainter painter(&shown);
    QSvgRenderer(svg).render(&painter, QRectF(QPointF(0, 0), place.size() * scale));
    painter.end();
    return drawn.hasText ? isNear(softened(wanted), softened(shown)) : isNear(wanted, shown);
}

void embedItem(QGraphicsItem* graphic, const QRectF& place, const QPointF& origin, QPainter* svg)
{
    const QImage picture = pictureOf(graphic, place, scaleFor(place, PictureScale, LongestPicture));
    svg->save();
    svg->resetTransform();
    svg->setRenderHint(QPainter::SmoothPixmapTransform);
    svg->drawImage(place.translated(-origin), picture);
    svg->restore();
}

/// Gives the drawing the size that it asks for in pixels, in place of millimetres of some screen or other.
void setPixelSize(QByteArray* svg, const QSizeF& size)
{
    static const QRegularExpression Size(QStringLiteral("<svg width=\"[^\"]*\" height=\"[^\"]*\""));
    const QRegularExpressionMatch match = Size.match(QString::fromUtf8(svg->left(1000)));
    if (!match.hasMatch())
        return;
    const QString replacement =
        QStringLiteral("<svg width=\"%1\" height=\"%2\"")
            .arg(ValueConversion::toQmlString(size.width(), 4), ValueConversion::toQmlString(size.height(), 4));
    svg->replace(match.capturedStart(), match.capturedLength(), replacement.toUtf8());
}

} // namespace

QByteArray ScreenSvg::draw(CanvasScene* scene, const RenderOptions& options, const WorkProgress& progress)
{
    if (!scene || !(options.scale > 0))
        return {};
    const QRectF area = ScreenRenderer::area(scene, options);
    if (area.isEmpty())
        return {};
    const QList<QGraphicsItem*> items = ScreenRenderer::items(scene, options);
    bool ended = false;
    QByteArray svg = drawing(area, scene->screen()->getIdName(), [&](QPainter* painter) {
        for (qsizetype i = 0; i < items.size() && !ended; ++i) {
            if (progress && !progress(int(i), int(items.size()))) {
                ended = true;
                break;
            }
            QGraphicsItem* graphic = items.at(i);
            // A pixel more on each side for edges that are soft.
            const QRectF place = graphic->sceneBoundingRect().adjusted(-1, -1, 1, 1).toAlignedRect();
            const QRectF seen = place & area.toAlignedRect();
            if (seen.isEmpty())
                continue;
            if (canBeDrawn(graphic, seen))
                drawItem(graphic, area, painter);
            else
                embedItem(graphic, seen, area.topLeft(), painter);
        }
    });
    if (ended)
        return {};
    setPixelSize(&svg, area.size() * options.scale);
    return svg;
}

} // namespace Korvex::Meridane::Designer
