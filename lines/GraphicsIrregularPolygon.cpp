#include "lines/GraphicsIrregularPolygon.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

namespace {

constexpr double DotDiameter = 10;

double factor(double before, double after)
{
    return before > 0 ? after / before : 1;
}

/// Qt takes points for equal that differ in the last digits; their value strings differ.
bool same(const QPolygonF& a, const QPolygonF& b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const QPointF& one, const QPointF& other) {
        return one.x() == other.x() && one.y() == other.y();
    });
}

} // namespace

GraphicsIrregularPolygon::GraphicsIrregularPolygon(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
    , m_brush(QColor(248, 151, 29, 255))
{}

GraphicsIrregularPolygon::~GraphicsIrregularPolygon() = default;

QRectF GraphicsIrregularPolygon::boundingRect() const
{
    return m_bounds;
}

QPainterPath GraphicsIrregularPolygon::shape() const
{
    QPainterPath path;
    path.addPolygon(m_polygon);
    path.closeSubpath();
    return path;
}

void GraphicsIrregularPolygon::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    PaintHelper::paintIrregularPolygon(m_polygon, m_brush, painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(outerRect(), painter, option);
    if (m_highlightedPoint >= 0) {
        PaintHelper::paintDot(m_polygon.at(m_highlightedPoint), DotDiameter,
                              PaintHelper::contrastColor(m_brush.color()), painter);
    }
}

QString GraphicsIrregularPolygon::className() const
{
    return QStringLiteral("GraphicsIrregularPolygon");
}

QPainterPath GraphicsIrregularPolygon::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsIrregularPolygon::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property)
        return;
    bool ok = false;
    if (property->id() == QLatin1String("color")) {
        const QColor color = ValueConversion::toColor(property->valueString(), &ok);
        if (ok && color != m_brush.color()) {
            m_brush.setColor(color);
            update();
        }
    } else if (property->id() == QLatin1String("pointList")) {
        const QPolygonF polygon = ValueConversion::toPolygon(property->valueString(), &ok);
        if (ok)
            setPolygon(polygon);
    }
}

UndoCommand* GraphicsIrregularPolygon::updateDataObject(const QSharedPointer<DesignerProperty>& property,
                                                        UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (!property || property->id() != QLatin1String("pointList"))
        return nullptr;
    // Long lists take their time to be written; in most gestures nothing has changed.
    const auto* list = dynamic_cast<const PointListProperty*>(property.data());
    if (list && list->isConverted() && same(list->value(), m_polygon))
        return nullptr;
    return writeBack(property, ValueConversion::toString(m_polygon), parent);
}

int GraphicsIrregularPolygon::getResizePointHandle(const QPointF& scenePos, bool* handled)
{
    if (handled)
        *handled = true;
    if (hasPointHandles()) {
        const QPointF mouse = mapToParent(mapFromScene(scenePos));
        const double reach = detectionWidth();
        for (const QPointF& point : m_polygon) {
            if ((mapToParent(point) - mouse).manhattanLength() > reach)
                continue;
            const int index = int(m_polygon.indexOf(point));
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
    if (handle < 0 || handle >= m_polygon.size())
        return;
    const QPointF mouse = mapFromScene(scenePos);
    const QPointF way = mapToParent(mouse) - mapToParent(m_polygon.at(handle));
    if (std::abs(way.x()) <= SamePlace && std::abs(way.y()) <= SamePlace)
        return;
    QPolygonF polygon = m_polygon;
    polygon[handle] = withoutNoise(mouse);
    setPolygon(polygon);
}

void GraphicsIrregularPolygon::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const QSizeF wanted = frameChange(handle, outerSize).outerSize;
    if (!std::isfinite(wanted.width()) || !std::isfinite(wanted.height()))
        return; // an absurd ratio leads there
    const QPolygonF unscaled = m_unscaled;
    QPolygonF polygon = scaled(unscaled, unscaled.boundingRect().size(), wanted);
    // A dimension that does not change keeps its very coordinates.
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        if (wanted.width() == m_outer.width())
            polygon[i].setX(m_polygon.at(i).x());
        if (wanted.height() == m_outer.height())
            polygon[i].setY(m_polygon.at(i).y());
    }
    setItemPosition(positionKeepingOpposite(handle, polygon.boundingRect()));
    setPolygon(polygon);
    m_unscaled = unscaled;
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
    const double ratio = m_outer.width() / m_outer.height();
    if (ratio > 0 && std::isfinite(ratio)) {
        const auto keepRatio = object->getProperty(QStringLiteral("keepRatio"));
        static_cast<void>(writeBack(keepRatio, ValueConversion::toString(ratio), parent));
    }
}

QRectF GraphicsIrregularPolygon::outerRect() const
{
    return m_outer;
}

QRectF GraphicsIrregularPolygon::contentRect() const
{
    return m_outer;
}

QVector<QPointF> GraphicsIrregularPolygon::pointHandles() const
{
    return hasPointHandles() ? m_polygon : QPolygonF();
}

void GraphicsIrregularPolygon::setHighlightedPoint(int index)
{
    if (index < -1 || index >= m_polygon.size() || index == m_highlightedPoint)
        return;
    m_highlightedPoint = index;
    refreshBounds();
}

QPolygonF GraphicsIrregularPolygon::scaled(const QPolygonF& polygon, const QSizeF& before, const QSizeF& after)
{
    const double fx = factor(before.width(), after.width());
    const double fy = factor(before.height(), after.height());
    if ((fx == 1 && fy == 1) || !(fx > 0 && fy > 0))
        return polygon;
    QPolygonF result = polygon;
    for (QPointF& point : result) {
        // What is not scaled keeps its very numbers.
        point = {fx == 1 ? point.x() : withoutNoise(fx * point.x()),
                 fy == 1 ? point.y() : withoutNoise(fy * point.y())};
        if (!std::isfinite(point.x()) || !std::isfinite(point.y()))
            return polygon;
    }
    return result;
}

void GraphicsIrregularPolygon::setPolygon(const QPolygonF& polygon)
{
    if (same(polygon, m_polygon))
        return;
    m_polygon = polygon;
    m_unscaled = polygon;
    if (m_highlightedPoint >= m_polygon.size())
        m_highlightedPoint = -1;
    refreshBounds();
    reportOuterSize();
}

void GraphicsIrregularPolygon::refreshBounds()
{
    prepareGeometryChange();
    m_outer = m_polygon.boundingRect();
    m_bounds = m_outer;
    if (m_highlightedPoint >= 0) {
        const QPointF reach(0.5 * DotDiameter, 0.5 * DotDiameter);
        const QPointF point = m_polygon.at(m_highlightedPoint);
        m_bounds |= QRectF(point - reach, point + reach);
    }
    update();
}

/// Points can be dragged unless the item is rotated or too small on the screen.
bool GraphicsIrregularPolygon::hasPointHandles() const
{
    return !isRotated() && isLargeEnoughForHandles();
}

} // namespace Korvex::Meridane::Designer
