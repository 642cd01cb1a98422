#include "runtime/IrregularPolygon.h"

#include "runtime/PointList.h"

#include "host/common/PaintHelper.h"

#include <QtGui/QBrush>
#include <QtQml/QQmlInfo>

namespace Korvex::Meridane::Display {
IrregularPolygon::IrregularPolygon(QQuickItem* parent)
    : OutlinedItem(parent)
{}

QVariantList IrregularPolygon::points() const
{
    return m_points;
}

void IrregularPolygon::setPoints(const QVariantList& points)
{
    const std::optional<QPolygonF> polygon = toPolygon(points);
    if (!polygon) {
        qmlWarning(this) << "points: not a list of [x, y]";
        return;
    }
    if (points == m_points) {
        return;
    }
    m_points = points;
    m_polygon = *polygon;
    outlineChanged();
    Q_EMIT pointsChanged();
}

QRectF IrregularPolygon::outerRect() const
{
    return m_polygon.boundingRect();
}

QRectF IrregularPolygon::contentRect() const
{
    return m_polygon.boundingRect();
}

void IrregularPolygon::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintIrregularPolygon(m_polygon, color(), painter);
}
} // namespace Korvex::Meridane::Display
