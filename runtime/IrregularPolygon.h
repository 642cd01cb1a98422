#pragma once

#include "runtime/OutlinedItem.h"

#include <QtCore/QVariantList>
#include <QtGui/QPolygonF>

namespace Korvex::Meridane::Display {
/** A filled polygon of any points. */
class IrregularPolygon : public Korvex::Meridane::Display::OutlinedItem
{
    Q_OBJECT
    /** The corners, each a list of x and y in pixels from the item's position; entries that are no such list are refused
     *  with a warning, and the list stays as it was. */
    Q_PROPERTY(QVariantList points READ points WRITE setPoints NOTIFY pointsChanged FINAL)
    QML_ELEMENT

public:
    explicit IrregularPolygon(QQuickItem* parent = nullptr);

    [[nodiscard]] QVariantList points() const;
    void setPoints(const QVariantList& points);

Q_SIGNALS:
    void pointsChanged();

protected:
    QRectF outerRect() const override;
    QRectF contentRect() const override;
    void paintContent(QPainter* painter) const override;

private:
    QVariantList m_points;
    QPolygonF m_polygon;
};
} // namespace Korvex::Meridane::Display
