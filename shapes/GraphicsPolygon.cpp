#include "shapes/GraphicsPolygon.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"
#include "host/common/RegularPolygonGeometry.h"

#include <QTransform>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

GraphicsPolygon::GraphicsPolygon(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{}

GraphicsPolygon::~GraphicsPolygon() = default;

QRectF GraphicsPolygon::boundingRect() const
{
    return outerRect();
}

QPainterPath GraphicsPolygon::shape() const
{
    QPainterPath path;
    const QRectF outer = outerRect();
    if (outer.isEmpty())
        return path;
    path.addPolygon(Common::regularPolygon(m_edges, 1));
    path.closeSubpath();
    // The mitred outer edge of the border has the outline's form.
    const QSizeF unit = Common::regularPolygonSize(m_edges, 1);
    QTransform toFrame = QTransform::fromTranslate(outer.x(), outer.y());
    toFrame.scale(outer.width() / unit.width(), outer.height() / unit.height());
    return toFrame.map(path);
}

void GraphicsPolygon::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    PaintHelper::paintPolygon(m_edgeLength, m_edges, m_style.pen(), m_style.brush(), painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QString GraphicsPolygon::className() const
{
    return QStringLiteral("GraphicsPolygon");
}

QStringList GraphicsPolygon::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsPolygon");
}

QPainterPath GraphicsPolygon::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsPolygon::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property)
        return;
    FillAndBorder style = m_style;
    bool ok = false;
    if (style.takeValue(property->id(), property->valueString())) {
        setStyle(style);
    } else if (property->id() == QLatin1String("edges")) {
        const int edges = ValueConversion::toInt(property->valueString(), &ok);
        if (ok)
            setGeometry(edges, m_edgeLength);
    } else if (property->id() == QLatin1String("edgeLength")) {
        const double length = ValueConversion::toReal(property->valueString(), &ok);
        if (ok)
            setGeometry(m_edges, length);
    }
}

UndoCommand* GraphicsPolygon::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("edgeLength"))
        return writeBack(property, ValueConversion::toString(m_edgeLength), parent);
    return nullptr;
}

void GraphicsPolygon::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const double length = Common::handleChangesWidth(handle) ? edgeLengthFromWidth(outerSize.width())
                                                             : edgeLengthFromHeight(outerSize.height());
    const double possible = std::clamp(length, ShortestEdge, LongestEdge);
    setItemPosition(
        positionKeepingOpposite(handle, PaintHelper::getPolygonBoundingRect(m_edges, possible, m_style.penWidth())));
    setGeometry(m_edges, possible);
}

double GraphicsPolygon::minSize() const
{
    return GraphicsItem::minSize() + m_style.penWidth();
}

QRectF GraphicsPolygon::outerRect() const
{
    return PaintHelper::getPolygonBoundingRect(m_edges, m_edgeLength, m_style.penWidth());
}

QRectF GraphicsPolygon::contentRect() const
{
    return {QPointF(0, 0), Common::regularPolygonSize(m_edges, m_edgeLength)};
}

double GraphicsPolygon::edgeLengthFromWidth(double width) const
{
    return withoutNoise(Common::edgeLengthFromWidth(m_edges, width, m_style.penWidth()));
}

double GraphicsPolygon::edgeLengthFromHeight(double height) const
{
    return withoutNoise(Common::edgeLengthFromHeight(m_edges, height, m_style.penWidth()));
}

void GraphicsPolygon::setGeometry(int edges, double edgeLength)
{
    if (edges == m_edges && edgeLength == m_edgeLength)
        return;
    prepareGeometryChange();
    m_edges = edges;
    m_edgeLength = edgeLength;
    update();
    reportOuterSize();
}

void GraphicsPolygon::setStyle(const FillAndBorder& style)
{
    if (style == m_style)
        return;
    if (style.penWidth() != m_style.penWidth())
        prepareGeometryChange();
    m_style = style;
    update();
    reportOuterSize();
}

} // namespace Korvex::Meridane::Designer
