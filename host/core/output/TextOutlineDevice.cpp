#include "host/core/output/TextOutlineDevice.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

namespace Korvex::Meridane::Designer {

/// Takes text as paths, which is what the base class makes of it, and hands on everything else.
class TextOutlineEngine final : public QPaintEngine
{
public:
    explicit TextOutlineEngine(QPainter* target)
        : QPaintEngine(AllFeatures)
        , m_target(target)
        , m_ground(target->worldTransform())
    {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }

    [[nodiscard]] bool hasText() const { return m_text; }
    [[nodiscard]] bool hasUnsayable() const { return m_unsayable; }

    void updateState(const QPaintEngineState& state) override
    {
        const DirtyFlags dirty = state.state();
        if (dirty & DirtyPen)
            m_target->setPen(isSayable(state.pen().brush()) ? state.pen() : QPen(Qt::NoPen));
        if (dirty & DirtyBrush)
            m_target->setBrush(isSayable(state.brush()) ? state.brush() : QBrush());
        if (dirty & DirtyCompositionMode)
            m_unsayable |= state.compositionMode() != QPainter::CompositionMode_SourceOver;
        if (dirty & DirtyBrushOrigin)
            m_target->setBrushOrigin(state.brushOrigin());
        if (dirty & DirtyTransform)
            m_target->setWorldTransform(state.transform() * m_ground);
        if (dirty & DirtyOpacity)
            m_target->setOpacity(state.opacity());
        if (dirty & DirtyHints) {
            m_target->setRenderHints(m_target->renderHints(), false);
            m_target->setRenderHints(state.renderHints());
        }
    }

    void drawPath(const QPainterPath& path) override { m_target->drawPath(path); }

    using QPaintEngine::drawPolygon;

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        switch (mode) {
        case PolylineMode:
            m_target->drawPolyline(points, count);
            break;
        case ConvexMode:
            m_target->drawConvexPolygon(points, count);
            break;
        case OddEvenMode:
        case WindingMode:
            m_target->drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
            break;
        }
    }

    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        m_text = true;
        QPaintEngine::drawTextItem(place, item);
    }

    void drawImage(const QRectF& place, const QImage& image, const QRectF& part, Qt::ImageConversionFlags) override
    {
        m_target->drawImage(place, image, part);
    }

    void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override
    {
        m_target->drawPixmap(place, pixmap, part);
    }

    void drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF& offset) override
    {
        m_target->drawTiledPixmap(place, pixmap, offset);
    }

private:
    bool isSayable(const QBrush& brush)
    {
        const bool sayable = brush.style() != Qt::ConicalGradientPattern;
        m_unsayable |= !sayable;
        return sayable;
    }

    QPainter* m_target;
    QTransform m_ground; // what the target did to its coordinates before
    bool m_text = false;
    bool m_unsayable = false;
};

TextOutlineDevice::TextOutlineDevice(QPainter* target)
    : m_target(target)
    , m_engine(std::make_unique<TextOutlineEngine>(target))
{}

TextOutlineDevice::~TextOutlineDevice() = default;

QPaintEngine* TextOutlineDevice::paintEngine() const
{
    return m_engine.get();
}

bool TextOutlineDevice::hasText() const
{
    return m_engine->hasText();
}

bool TextOutlineDevice::hasUnsayable() const
{
    return m_engine->hasUnsayable();
}

int TextOutlineDevice::metric(PaintDeviceMetric metric) const
{
    const QPaintDevice* device = m_target->device();
    switch (metric) {
    case PdmWidth:
        return device->width();
    case PdmHeight:
        return device->height();
    case PdmDpiX:
        return device->logicalDpiX();
    case PdmDpiY:
        return device->logicalDpiY();
    case PdmPhysicalDpiX:
        return device->physicalDpiX();
    case PdmPhysicalDpiY:
        return device->physicalDpiY();
    case PdmDepth:
        return device->depth();
    case PdmNumColors:
        return device->colorCount();
    case PdmDevicePixelRatio:
        return 1;
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace Korvex::Meridane::Designer
