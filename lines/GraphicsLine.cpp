#include "lines/GraphicsLine.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/LineGeometry.h"
#include "host/common/PaintHelper.h"
#include "host/common/RealComparison.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

namespace {

constexpr int StartHandle = 0;
constexpr int EndHandle = 1;

double distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// The radius of the dot at the start point, in pixels.
double dotRadius(double thickness)
{
    return thickness < 3 ? thickness + 2 : 5;
}

} // namespace

GraphicsLine::GraphicsLine(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
    , m_brush(QColor(248, 151, 29, 255))
    , m_outline(Common::lineOutline(m_line.length, m_line.angle, m_line.thickness))
    , m_fittedSize(m_outline.boundingRect().size())
    , m_bounds(m_outline.boundingRect())
{}

GraphicsLine::~GraphicsLine() = default;

QRectF GraphicsLine::boundingRect() const
{
    return m_bounds;
}

QPainterPath GraphicsLine::shape() const
{
    QPainterPath path;
    path.addPolygon(m_outline);
    path.closeSubpath();
    return path;
}

void GraphicsLine::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    if (!m_brush.color().isValid() && m_line.thickness <= 0)
        return;
    PaintHelper::paintIrregularPolygon(m_outline, m_brush, painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(outerRect(), painter, option);
    if (m_showStartPoint) {
        PaintHelper::paintDot(QPointF(0, 0), 2 * dotRadius(m_line.thickness),
                              PaintHelper::contrastColor(m_brush.color()), painter);
    }
}

QString GraphicsLine::className() const
{
    return QStringLiteral("GraphicsLine");
}

QPainterPath GraphicsLine::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsLine::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property)
        return;
    const QString value = property->valueString();
    LineShape line = m_line;
    bool ok = false;
    if (property->id() == QLatin1String("length")) {
        line.length = ValueConversion::toReal(value, &ok);
    } else if (property->id() == QLatin1String("angle")) {
        line.angle = ValueConversion::toReal(value, &ok);
    } else if (property->id() == QLatin1String("width")) {
        line.thickness = ValueConversion::toInt(value, &ok);
    } else if (property->id() == QLatin1String("color")) {
        const QColor color = ValueConversion::toColor(value, &ok);
        if (ok && color.isValid() && color.rgba() != m_brush.color().rgba()) {
            m_brush.setColor(color);
            update();
        }
        return;
    }
    if (ok)
        takeLine(line);
}

UndoCommand* GraphicsLine::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (!property)
        return nullptr;
    if (property->id() == QLatin1String("length"))
        return writeBack(property, ValueConversion::toString(m_line.length), parent);
    if (property->id() == QLatin1String("angle"))
        return writeBack(property, ValueConversion::toString(m_line.angle), parent);
    if (property->id() == QLatin1String("width"))
        return writeBack(property, ValueConversion::toString(int(m_line.thickness)), parent);
    return nullptr;
}

int GraphicsLine::getResizePointHandle(const QPointF& scenePos, bool* handled)
{
    if (handled)
        *handled = true;
    const auto found = [this](int handle, const QString& toolTip) {
        if (isSelected())
            setHandleToolTip(toolTip);
        else
            showNameToolTip();
        return handle;
    };
    if (!isRotated() && !m_outline.isEmpty()) {
        const QPointF mouse = onParent(scenePos);
        if (distance(mouse, pos()) <= detectionWidth())
            return found(StartHandle, elementText("This is the start point."));
        if (distance(mouse, pos() + endPoint()) <= detectionWidth())
            return found(EndHandle, elementText("This is the end point."));
        if (handled)
            *handled = false;
    }
    showNameToolTip();
    return -1;
}

int GraphicsLine::getResizeHandle(const QPointF& scenePos, bool* handled)
{
    constexpr double ReachOfEnds = 5; // pixels of the design
    const QPointF mouse = onParent(scenePos);
    const bool atEnd = distance(mouse, pos()) <= ReachOfEnds || distance(mouse, pos() + endPoint()) <= ReachOfEnds;
    if (isLargeEnoughForHandles() && atEnd) {
        if (handled)
            *handled = false;
        return Common::Center;
    }
    return GraphicsItem::getResizeHandle(scenePos, handled);
}

void GraphicsLine::resizeByMouse(int handle, const QPointF& scenePos)
{
    if (handle != StartHandle && handle != EndHandle)
        return;
    const QPointF mouse = withoutNoise(onParent(scenePos));
    const QPointF start = handle == StartHandle ? mouse : pos();
    const QPointF end = handle == StartHandle ? pos() + endPoint() : mouse;
    const double length = distance(start, end);
    if (!(length >= LineShape::Shortest))
        return;
    LineShape line = m_line;
    line.length = withoutNoise(length);
    line.angle = lineAngle(start, end);
    setItemPosition(start);
    setLine(line);
}

void GraphicsLine::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    QSizeF wanted = frameChange(handle, outerSize).outerSize;
    std::optional<LineShape> changed;
    if (keptRatio() > 0) {
        LineShape exact = m_line;
        exact.thickness = m_exactThickness;
        const QSizeF present = exact.bounds().size();
        changed = exact.scaled(Common::handleChangesWidth(handle) ? wanted.width() / present.width()
                                                                  : wanted.height() / present.height());
    } else {
        if (!Common::handleChangesWidth(handle))
            wanted.setWidth(m_fittedSize.width());
        if (!Common::handleChangesHeight(handle))
            wanted.setHeight(m_fittedSize.height());
        changed = m_line.fitted(wanted);
    }
    if (!changed)
        return;
    const double exactThickness = changed->thickness;
    changed->thickness = Common::roundedToWhole(exactThickness);
    setItemPosition(positionKeepingOpposite(handle, changed->bounds()));
    setLine(*changed);
    m_exactThickness = exactThickness;
    m_fittedSize = wanted;
}

void GraphicsLine::updateResizedDataObjects(int handle, UndoCommand* parent)
{
    const DesignerObject* object = dataObject();
    if (!object || (handle != StartHandle && handle != EndHandle))
        return;
    if (handle == StartHandle)
        updateDataObject(object->getProperty(QStringLiteral("position")), parent);
    updateDataObject(object->getProperty(QStringLiteral("length")), parent);
    updateDataObject(object->getProperty(QStringLiteral("angle")), parent);
}

QRectF GraphicsLine::outerRect() const
{
    return m_outline.boundingRect();
}

QRectF GraphicsLine::contentRect() const
{
    return {};
}

QVector<QPointF> GraphicsLine::pointHandles() const
{
    if (isRotated() || m_outline.isEmpty())
        return {};
    // A handle would cover the dot at the start point.
    if (m_showStartPoint)
        return {endPoint()};
    return {QPointF(0, 0), endPoint()};
}

bool GraphicsLine::showsFrameHandle(int handle) const
{
    return GraphicsItem::showsFrameHandle(handle) && !liesOnFrameHandle(QPointF(0, 0), handle);
}

void GraphicsLine::setShowStartPoint(bool show)
{
    if (show == m_showStartPoint)
        return;
    m_showStartPoint = show;
    refreshBounds();
}

/// Makes the item show \a line.
void GraphicsLine::setLine(const LineShape& line)
{
    m_line = line;
    m_exactThickness = line.thickness;
    m_outline = Common::lineOutline(line.length, line.angle, line.thickness);
    m_fittedSize = m_outline.boundingRect().size();
    refreshBounds();
    reportOuterSize();
}

/// The element has changed: shows \a line, and a kept ratio becomes that of the new outline.
void GraphicsLine::takeLine(const LineShape& line)
{
    setLine(line);
    updateKeptRatio();
}

void GraphicsLine::refreshBounds()
{
    prepareGeometryChange();
    m_bounds = m_outline.boundingRect();
    if (m_showStartPoint) {
        const double radius = dotRadius(m_line.thickness);
        m_bounds |= QRectF(-radius, -radius, 2 * radius, 2 * radius);
    }
    update();
}

void GraphicsLine::updateKeptRatio()
{
    const auto property =
        dataObject() ? dataObject()->getProperty(QStringLiteral("keepRatio")) : QSharedPointer<DesignerProperty>();
    bool ok = false;
    const double kept = property ? ValueConversion::toReal(property->valueString(), &ok) : 0;
    const QSizeF size = outerRect().size();
    if (!ok || kept == 0 || !(size.height() > 0))
        return;
    const QString ratio = ValueConversion::toString(size.width() / size.height());
    if (!property->equalsValue(ratio))
        dataObject()->changePropertyValue(property, ratio);
}

/// The end point in item coordinates.
QPointF GraphicsLine::endPoint() const
{
    constexpr int EndIndex = 3;
    return m_outline.isEmpty() ? QPointF() : m_outline.at(EndIndex);
}

QPointF GraphicsLine::onParent(const QPointF& scenePos) const
{
    return mapToParent(mapFromScene(scenePos));
}

} // namespace Korvex::Meridane::Designer
