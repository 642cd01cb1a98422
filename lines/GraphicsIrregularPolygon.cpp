#include "lines/GraphicsIrregularPolygon.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/ElementText.h"
#include "host/core/objects/OutlineReaction.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

namespace {

constexpr double DotDiameter = 10;

} // namespace

GraphicsIrregularPolygon::GraphicsIrregularPolygon(DesignerObject* dataObject)
    : GraphicsOutline(dataObject, QStringLiteral("pointList"), QPolygonF())
    , m_brush(QColor(248, 151, 29, 255))
{}

GraphicsIrregularPolygon::~GraphicsIrregularPolygon() = default;

QRectF GraphicsIrregularPolygon::boundingRect() const
{
    if (m_highlightedPoint < 0 || m_highlightedPoint >= polygon().size())
        return outerRect();
    const QPointF reach(0.5 * DotDiameter, 0.5 * DotDiameter);
    const QPointF point = polygon().at(m_highlightedPoint);
    return outerRect() | QRectF(point - reach, point + reach);
}

void GraphicsIrregularPolygon::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    GraphicsOutline::paint(painter, option, widget);
    if (m_highlightedPoint >= 0) {
        PaintHelper::paintDot(polygon().at(m_highlightedPoint), DotDiameter,
                              PaintHelper::contrastColor(m_brush.color()), painter);
    }
}

QString GraphicsIrregularPolygon::className() const
{
    return QStringLiteral("GraphicsIrregularPolygon");
}

void GraphicsIrregularPolygon::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    if (!property)
        return;
    // Unlike that of a path, an outer size that was typed is answered with what the points then take up.
    if (property->id() == QLatin1String("boundingSize"))
        GraphicsItem::updateGraphicsItem(property);
    else
        GraphicsOutline::updateGraphicsItem(property);
    if (property->id() != QLatin1String("color"))
        return;
    bool ok = false;
    const QColor color = ValueConversion::toColor(property->valueString(), &ok);
    if (ok && color != m_brush.color()) {
        m_brush.setColor(color);
        update();
    }
}

int GraphicsIrregularPolygon::getResizePointHandle(const QPointF& scenePos, bool* handled)
{
    if (handled)
        *handled = true;
    if (hasPointHandles()) {
        const QPointF mouse = mapToParent(mapFromScene(scenePos));
        const double reach = detectionWidth();
        for (const QPointF& point : polygon()) {
            if ((mapToParent(point) - mouse).manhattanLength() > reach)
                continue;
            const int index = int(polygon().indexOf(point));
            if (isSelected())
                setHandleToolTip(elementText("Drag this point (#%1) to reshape").arg(index + 1));
            return index;
        }
    }
    showNameToolTip();
    return -1;
}

void GraphicsIrregularPolygon::resizeByMouse(int handle, const QPointF& scenePos)
{
    constexpr double SamePlace = 1e-12;
    if (handle < 0 || handle >= polygon().size())
        return;
    const QPointF mouse = mapFromScene(scenePos);
    const QPointF way = mapToParent(mouse) - mapToParent(polygon().at(handle));
    if (std::abs(way.x()) <= SamePlace && std::abs(way.y()) <= SamePlace)
        return;
    QPolygonF reshaped = polygon();
    reshaped[handle] = withoutNoise(mouse);
    setPolygon(reshaped);
}

void GraphicsIrregularPolygon::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const QSizeF wanted = frameChange(handle, outerSize).outerSize;
    if (!std::isfinite(wanted.width()) || !std::isfinite(wanted.height()))
        return; // an absurd ratio leads there
    const QPolygonF& unscaled = unscaledPolygon();
    setScaledPolygon(handle, scaled(unscaled, unscaled.boundingRect().size(), wanted));
}

void GraphicsIrregularPolygon::updateResizedDataObjects(int handle, UndoCommand* parent)
{
    const DesignerObject* object = dataObject();
    if (!object || handle < 0)
        return;
    const auto points = object->getProperty(QStringLiteral("pointList"));
    UndoCommand* reshaped = updateDataObject(points, parent);
    updateDataObject(object->getProperty(QStringLiteral("position")), parent);
    if (!reshaped || !(keptRatio() > 0))
        return;
    // A flat polygon has no ratio that could be kept.
    const double ratio = outerRect().width() / outerRect().height();
    if (ratio > 0 && std::isfinite(ratio)) {
        const auto keepRatio = object->getProperty(QStringLiteral("keepRatio"));
        static_cast<void>(writeBack(keepRatio, ValueConversion::toString(ratio), parent));
    }
}

QVector<QPointF> GraphicsIrregularPolygon::pointHandles() const
{
    return hasPointHandles() ? polygon() : QPolygonF();
}

void GraphicsIrregularPolygon::setHighlightedPoint(int index)
{
    if (index < -1 || index >= polygon().size() || index == m_highlightedPoint)
        return;
    prepareGeometryChange();
    m_highlightedPoint = index;
    update();
}

QPolygonF GraphicsIrregularPolygon::scaled(const QPolygonF& polygon, const QSizeF& before, const QSizeF& after)
{
    const auto factors = outlineFactors(before, after, 0);
    return factors ? scaledOutline(polygon, *factors).value_or(polygon) : polygon;
}

void GraphicsIrregularPolygon::paintOutline(QPainter* painter)
{
    PaintHelper::paintIrregularPolygon(polygon(), m_brush, painter);
}

void GraphicsIrregularPolygon::setPolygon(const QPolygonF& polygon)
{
    GraphicsOutline::setPolygon(polygon);
    if (m_highlightedPoint >= polygon.size())
        m_highlightedPoint = -1;
}

/// Points can be dragged unless the item is rotated or too small on the screen.
bool GraphicsIrregularPolygon::hasPointHandles() const
{
    return !isRotated() && isLargeEnoughForHandles();
}

} // namespace Korvex::Meridane::Designer
