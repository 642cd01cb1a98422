#pragma once

#include "runtime/OutlinedItem.h"

#include <QtCore/QVariantList>
#include <QtGui/QPolygonF>

namespace Korvex::Meridane::Display {
/** Base of the elements whose outline is a list of points. */
class PointsItem : public Korvex::Meridane::Display::OutlinedItem
{
    Q_OBJECT
    /** The corners, each a list of x and y in pixels from the item's position. A list with an entry that is no such pair
     *  is refused with a warning, and the points stay as they were. */
    Q_PROPERTY(QVariantList points READ points WRITE setPoints NOTIFY pointsChanged FINAL)
    QML_ANONYMOUS

public:
    explicit PointsItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QVariantList points() const;
    void setPoints(const QVariantList& points);

Q_SIGNALS:
    void pointsChanged();

protected:
    [[nodiscard]] const QPolygonF& polygon() const { return m_polygon; }
    QRectF outerRect() const override;
    QRectF contentRect() const override;

private:
    QVariantList m_points;
    QPolygonF m_polygon;
};
} // namespace Korvex::Meridane::Display
