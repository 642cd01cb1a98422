#include "runtime/Polygon.h"

#include "host/common/PaintHelper.h"
#include "host/common/RegularPolygonGeometry.h"

namespace Korvex::Meridane::Display {
Polygon::Polygon(QQuickItem* parent)
    : BorderedItem(parent)
{
    takeSize();
}

int Polygon::edges() const
{
    return m_edges;
}

void Polygon::setEdges(int edges)
{
    if (edges == m_edges) {
        return;
    }
    m_edges = edges;
    takeSize();
    Q_EMIT edgesChanged();
}

double Polygon::edgeLength() const
{
    return m_edgeLength;
}

void Polygon::setEdgeLength(double length)
{
    if (length == m_edgeLength) {
        return;
    }
    m_edgeLength = length;
    takeSize();
    Q_EMIT edgeLengthChanged();
}

QRectF Polygon::outerRect() const
{
    return Common::PaintHelper::getPolygonBoundingRect(m_edges, m_edgeLength, borderWidth());
}

void Polygon::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintPolygon(m_edgeLength, m_edges, pen(), color(), painter);
}

void Polygon::takeSize()
{
    const QSizeF size = Common::regularPolygonSize(m_edges, m_edgeLength);
    setImplicitSize(size.width(), size.height());
    contentChanged();
}
} // namespace Korvex::Meridane::Display
