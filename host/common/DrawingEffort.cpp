#include "host/common/DrawingEffort.h"

#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtSvg/QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Common {
namespace {
constexpr int Side = 1000; // of the device, in pixels

// Seconds, as measured with Qt's rasterizer.
constexpr double ForAPart = 1e-6; // setting it up
constexpr double ForAPixel = 1e-9; // of one colour
constexpr double ForAGradientPixel = 5e-9;
constexpr double ForAnImagePixel = 8e-9;
constexpr double ForAGradientStop = 2e-8;
constexpr double ForACrossing = 6e-8; // of an edge and a pixel
constexpr double ForASearch = 4e-8; // in a row of pixels, past another crossing
constexpr double ForAPoint = 2e-8; // of an outline, each time that it is gone through
constexpr double ForADash = 1e-6;
constexpr double ForALetter = 2e-6;

constexpr double ColumnsSearched = 1 / 8.0; // of those of an outline, at most
constexpr double RowsAtATime = 32; // an outline is gone through once for so many rows of pixels
constexpr double PointsOfAnArc = 32; // about half a circle

/** Dashes are given up, and the line drawn through, where there would be more of them in one part of an outline. */
constexpr double MostDashes = 10000;

/** The length of the range within the device, its ends in any order. */
double visibleLength(double from, double to)
{
    return std::abs(std::clamp(to, 0.0, double(Side)) - std::clamp(from, 0.0, double(Side)));
}

/** What an outline comes to on the device. */
struct Outline
{
    double crossings = 0; // of edges and pixels
    double length = 0; // in pixels
    double turns = 0; // radians, of all corners together
    int points = 0;
    int parts = 0;
    bool isRectangle = false; // along the rows and columns of pixels
    QRectF bounds;

    [[nodiscard]] double rows() const { return visibleLength(bounds.top(), bounds.bottom()) + 1; }
    [[nodiscard]] double columns() const { return visibleLength(bounds.left(), bounds.right()) + 1; }
    [[nodiscard]] double area() const { return rows() * columns(); }

    /** Seconds to find the pixels within. */
    [[nodiscard]] double rasterizing() const
    {
        if (isRectangle) {
            return 0;
        }
        // Two crossings a row are in the order of the row.
        const double searched = std::clamp(crossings / rows() - 2, 0.0, columns() * ColumnsSearched);
        return crossings * (ForACrossing + ForASearch * searched)
               + points * ForAPoint * std::ceil(rows() / RowsAtATime);
    }
};

/** Adds up what is painted on it. */
class EffortEngine : public QPaintEngine
{
public:
    explicit EffortEngine(double most)
        : QPaintEngine(AllFeatures)
        , m_most(most)
    {}

    [[nodiscard]] double effort() const { return m_effort; }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override
    {
        const DirtyFlags changed = state.state();
        if (changed & DirtyPen) {
            m_pen = state.pen();
        }
        if (changed & DirtyBrush) {
            m_brush = state.brush();
        }
        if (changed & DirtyTransform) {
            m_transform = state.transform();
        }
    }

    void drawPath(const QPainterPath& path) override
    {
        if (isEnough()) {
            return;
        }
        const Outline outline = outlineOf(path);
        m_effort += ForAPart;
        if (m_brush.style() != Qt::NoBrush) {
            m_effort += outline.rasterizing() + filling(m_brush, outline.area());
        }
        if (m_pen.style() != Qt::NoPen) {
            m_effort += stroking(outline);
        }
    }

    using QPaintEngine::drawPolygon;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        if (isEnough() || count == 0) {
            return;
        }
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i) {
            path.lineTo(points[i]);
        }
        const QBrush brush = m_brush;
        if (mode == PolylineMode) {
            m_brush = QBrush(Qt::NoBrush);
        } else {
            path.closeSubpath();
        }
        drawPath(path);
        m_brush = brush;
    }

    void drawPixmap(const QRectF& target, const QPixmap&, const QRectF&) override { addImage(target); }
    void drawImage(const QRectF& target, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
        addImage(target);
    }
    void drawTiledPixmap(const QRectF& target, const QPixmap&, const QPointF&) override { addImage(target); }

    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        const QRectF letters(at - QPointF(0, item.ascent()), QSizeF(item.width(), item.ascent() + item.descent()));
        m_effort += ForAPart + ForALetter * double(item.text().size()) + filling(m_brush, visibleArea(letters));
    }

private:
    [[nodiscard]] bool isEnough() const { return m_effort > m_most; }

    [[nodiscard]] double visibleArea(const QRectF& rect) const
    {
        Outline outline;
        outline.bounds = m_transform.mapRect(rect);
        return outline.area();
    }

    static double filling(const QBrush& brush, double pixels)
    {
        const QGradient* gradient = brush.gradient();
        return gradient ? pixels * ForAGradientPixel + double(gradient->stops().size()) * ForAGradientStop
                        : pixels * ForAPixel;
    }

    /** The control points of a curve stand for the curve. */
    [[nodiscard]] Outline outlineOf(const QPainterPath& path) const
    {
        Outline outline;
        outline.bounds = m_transform.mapRect(path.controlPointRect());
        outline.points = path.elementCount();
        constexpr int RectanglePoints = 5;
        outline.isRectangle = outline.points <= RectanglePoints;
        QPointF last;
        double direction = 0;
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element element = path.elementAt(i);
            const QPointF point = m_transform.map(QPointF(element));
            if (element.isMoveTo()) {
                ++outline.parts;
            } else {
                const double across = visibleLength(last.x(), point.x());
                const double down = visibleLength(last.y(), point.y());
                outline.crossings += across + down + 1;
                outline.length += std::hypot(across, down);
                const double next = std::atan2(point.y() - last.y(), point.x() - last.x());
                outline.isRectangle &= point.x() == last.x() || point.y() == last.y();
                outline.turns += std::abs(std::remainder(next - direction, 2 * M_PI));
                direction = next;
            }
            last = point;
        }
        return outline;
    }

    /** The outline of a line runs along both of its sides, about its corners and about the ends of its dashes. */
    [[nodiscard]] double stroking(const Outline& line) const
    {
        const double scale = std::sqrt(std::abs(m_transform.determinant()));
        const double width = std::min(m_pen.widthF() * (m_pen.isCosmetic() ? 1 : scale), double(Side));
        const double dashes = dashCount(line, scale);
        const double ends = 2 * (dashes + line.parts) * (m_pen.capStyle() == Qt::RoundCap ? M_PI : 1);
        const double arcs =
            (m_pen.joinStyle() == Qt::RoundJoin ? line.turns : 0) + (m_pen.capStyle() == Qt::RoundCap ? ends : 0);
        Outline outline;
        outline.crossings = 2 * line.crossings + (line.turns + ends) * (width + 1);
        outline.points = int(std::min(4 * (line.points + dashes) + arcs / M_PI * PointsOfAnArc, 1e9));
        outline.bounds = line.bounds.adjusted(-width, -width, width, width);
        return outline.rasterizing() + dashes * ForADash
               + filling(m_pen.brush(), std::min(line.length * (width + 1), outline.area()));
    }

    [[nodiscard]] double dashCount(const Outline& line, double scale) const
    {
        const QList<qreal> pattern = m_pen.style() == Qt::CustomDashLine ? m_pen.dashPattern() : QList<qreal>();
        double period = 0;
        for (const qreal part : pattern) {
            period += std::abs(part) * std::max(m_pen.widthF(), 1.0) * scale;
        }
        if (!(period > 0)) {
            return 0;
        }
        const double dashes = line.length / period * double(pattern.size()) / 2;
        return dashes > MostDashes * line.parts ? 0 : dashes;
    }

    void addImage(const QRectF& target) { m_effort += ForAPart + ForAnImagePixel * visibleArea(target); }

    const double m_most;
    double m_effort = 0;
    QPen m_pen;
    QBrush m_brush;
    QTransform m_transform;
};

class EffortDevice : public QPaintDevice
{
public:
    explicit EffortDevice(double most)
        : m_engine(most)
    {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &m_engine; }
    [[nodiscard]] double effort() const { return m_engine.effort(); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        constexpr int DotsAnInch = 96;
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return Side;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return DotsAnInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    mutable EffortEngine m_engine;
};
} // namespace

double paintingEffort(QSvgRenderer* drawing, double most)
{
    EffortDevice device(most);
    QPainter painter(&device);
    drawing->render(&painter, QRectF(0, 0, Side, Side));
    painter.end();
    return device.effort();
}
} // namespace Korvex::Meridane::Common
