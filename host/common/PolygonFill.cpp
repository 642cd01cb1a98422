#include "host/common/PolygonFill.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Korvex::Meridane::Common {
namespace {
/** Edges that run through more rows of pixels than these, together, are too much for QPainter. */
constexpr double MostRows = 20000;

/** From here on QPainter divides a polygon before it fills it, and may give up over that. */
constexpr qsizetype MostPoints = 65535;

/** How many rows of pixels are worked on at a time, which bounds the memory. */
constexpr int BandHeight = 64;

/** Calls @p visit with the two ends of each edge, the closing one included. */
template <typename Visitor>
void forEachEdge(const QPolygonF& polygon, const Visitor& visit)
{
    QPointF from = polygon.constLast();
    for (const QPointF& to : polygon) {
        visit(from, to);
        from = to;
    }
}

bool isHeavy(const QPolygonF& onDevice, const QRectF& visible)
{
    if (onDevice.size() > MostPoints) {
        return true;
    }
    const auto row = [&visible](double y) { return std::clamp(y, visible.top(), visible.bottom()); };
    double rows = 0;
    forEachEdge(onDevice,
                [&](const QPointF& from, const QPointF& to) { rows += std::abs(row(to.y()) - row(from.y())); });
    return rows > MostRows;
}

/**
 * How much of each pixel of some rows lies inside a polygon.
 *
 * Each edge leaves in the pixels that it runs through by how much the covered part of all pixels to the right of it
 * changes; their sum from the left is the winding number of a wholly covered pixel and the share of a pixel on the edge.
 */
class Band
{
public:
    Band(int width, int height)
        : m_width(width)
        , m_height(height)
        , m_changes(std::size_t(width + 2) * std::size_t(height))
    {}

    void clear() { std::fill(m_changes.begin(), m_changes.end(), 0.0F); }

    /** Adds an edge in the coordinates of the band. */
    void add(QPointF from, QPointF to)
    {
        if (from.y() == to.y()) {
            return;
        }
        const double direction = from.y() < to.y() ? 1 : -1;
        if (direction < 0) {
            std::swap(from, to);
        }
        if (!(to.y() > 0 && from.y() < m_height)) {
            return;
        }
        const double slope = (to.x() - from.x()) / (to.y() - from.y());
        const double end = std::min<double>(to.y(), m_height);
        double y = std::max(from.y(), 0.0);
        double x = from.x() + (y - from.y()) * slope;
        for (int row = int(y); row < m_height && y < end; ++row) {
            const double nextY = std::min<double>(row + 1, end);
            const double nextX = from.x() + (nextY - from.y()) * slope;
            addInRow(row, x, nextX, direction * (nextY - y));
            x = nextX;
            y = nextY;
        }
    }

    /** Writes the covered share of each pixel of @p row, 0 … 255, by the odd-even rule. */
    void write(int row, uchar* line) const
    {
        const float* changes = m_changes.data() + std::size_t(row) * std::size_t(m_width + 2);
        double winding = 0;
        for (int column = 0; column < m_width; ++column) {
            winding += double(changes[column]);
            const double folded = std::abs(std::remainder(winding, 2.0));
            line[column] = uchar(std::lround(255 * std::min(folded, 1.0)));
        }
    }

private:
    /** The part of an edge within one row, from @p x to @p nextX, which goes down (or up) by @p height of it. */
    void addInRow(int row, double x, double nextX, double height)
    {
        float* changes = m_changes.data() + std::size_t(row) * std::size_t(m_width + 2);
        const double left = std::min(x, nextX);
        const double right = std::max(x, nextX);
        if (right <= 0) {
            put(changes, 0, 0, 0, height);
        } else if (left >= 0 && right < m_width && int(left) == int(right)) {
            put(changes, int(left), left, right, height);
        } else if (left < m_width) {
            addAcross(changes, left, right, height / (right - left));
        }
    }

    /** A part that runs through several pixels, or out of the band. */
    void addAcross(float* changes, double left, double right, double heightPerPixel)
    {
        if (left < 0) {
            put(changes, 0, 0, 0, -left * heightPerPixel);
            left = 0;
        }
        right = std::min<double>(right, m_width);
        for (int column = int(left); left < right; ++column) {
            const double next = std::min<double>(column + 1, right);
            put(changes, column, left, next, (next - left) * heightPerPixel);
            left = next;
        }
    }

    /** A part from @p left to @p right within the pixel @p column. */
    static void put(float* changes, int column, double left, double right, double height)
    {
        const double uncovered = 0.5 * (left + right) - column;
        changes[column] += float(height * (1 - uncovered));
        changes[column + 1] += float(height * uncovered);
    }

    int m_width;
    int m_height;
    std::vector<float> m_changes;
};

/** The covered share of each pixel of @p area, as alpha. */
QImage coverage(const QPolygonF& onDevice, const QRect& area)
{
    QImage mask(area.size(), QImage::Format_Alpha8);
    Band band(area.width(), std::min(area.height(), BandHeight));
    for (int top = 0; top < area.height(); top += BandHeight) {
        band.clear();
        const QPointF origin(area.x(), area.y() + top);
        forEachEdge(onDevice, [&](const QPointF& from, const QPointF& to) { band.add(from - origin, to - origin); });
        for (int row = 0; row < BandHeight && top + row < area.height(); ++row) {
            band.write(row, mask.scanLine(top + row));
        }
    }
    return mask;
}

void fillHeavyPolygon(const QPolygonF& onDevice, const QRectF& visible, QPainter* painter)
{
    const QTransform toDevice = painter->deviceTransform();
    // Rounding coordinates to whole numbers comes last: those of a polygon may lie beyond them.
    const QRect area = (onDevice.boundingRect() & visible).toAlignedRect();
    if (area.isEmpty()) {
        return;
    }
    const QTransform toLayer = toDevice * QTransform::fromTranslate(-area.x(), -area.y());
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    layerPainter.setTransform(toLayer);
    constexpr double Margin = 1; // the brush reaches to the last pixel whatever the rounding
    const QRectF all = QRectF(layer.rect()).adjusted(-Margin, -Margin, Margin, Margin);
    layerPainter.fillRect(toLayer.inverted().mapRect(all), painter->brush());
    layerPainter.resetTransform();
    layerPainter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    layerPainter.drawImage(0, 0, coverage(onDevice, area));
    layerPainter.end();

    // What the painter does to coordinates behind its own transformation (the pixels of a screen unit) is undone.
    const QTransform behind = painter->worldTransform().inverted() * toDevice;
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter->setWorldTransform(QTransform::fromTranslate(area.x(), area.y()) * behind.inverted());
    painter->drawImage(0, 0, layer);
    painter->restore();
}
} // namespace

void fillPolygon(const QPolygonF& polygon, QPainter* painter)
{
    const QTransform toDevice = painter->deviceTransform();
    if (polygon.isEmpty() || !toDevice.isInvertible()) {
        return;
    }
    if (toDevice.isAffine()) {
        const QPolygonF onDevice = toDevice.map(polygon);
        // What the device may show, in its pixels; a clip may leave less of it.
        const QTransform behind = painter->worldTransform().inverted() * toDevice;
        const QPaintDevice* device = painter->device();
        QRectF visible = behind.mapRect(QRectF(0, 0, device->width(), device->height()));
        if (painter->hasClipping()) {
            visible &= toDevice.mapRect(painter->clipBoundingRect());
        }
        if (isHeavy(onDevice, visible)) {
            fillHeavyPolygon(onDevice, visible, painter);
            return;
        }
    }
    const QPen pen = painter->pen();
    painter->setPen(Qt::NoPen);
    painter->drawPolygon(polygon, Qt::OddEvenFill);
    painter->setPen(pen);
}
} // namespace Korvex::Meridane::Common
