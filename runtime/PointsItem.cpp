#include "runtime/PointsItem.h"

#include "runtime/PointList.h"

#include <QtQml/QQmlInfo>

namespace Korvex::Meridane::Display {
PointsItem::PointsItem(QQuickItem* parent)
    : OutlinedItem(parent)
{}

QVariantList PointsItem::points() const
{
    return m_points;
}

void PointsItem::setPoints(const QVariantList& points)
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

QRectF PointsItem::outerRect() const
{
    return m_polygon.boundingRect();
}

QRectF PointsItem::contentRect() const
{
    return m_polygon.boundingRect();
}
} // namespace Korvex::Meridane::Display
