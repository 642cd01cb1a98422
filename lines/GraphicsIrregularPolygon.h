#pragma once

#include "host/core/canvas/GraphicsItem.h"

#include <QBrush>
#include <QGraphicsItem>
#include <QPolygonF>

namespace Korvex::Meridane::Designer {

/// The canvas item of the irregular polygon. Each of its points can be dragged; a drag of its frame scales them.
class GraphicsIrregularPolygon : public QGraphicsItem, public GraphicsItem
{
public:
    explicit GraphicsIrregularPolygon(DesignerObject* dataObject);
    ~GraphicsIrregularPolygon() override;

    /// The outline and, while a point is highlighted, its dot.
    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    /// The index of the first point under \a scenePos; -1 for none, on a rotated item and on one too small on the screen.
    int getResizePointHandle(const QPointF& scenePos, bool* handled) override;
    /// Drags the point with the index \a handle.
    void resizeByMouse(int handle, const QPointF& scenePos) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    /// Writes the points and, where a ratio is kept, that of the new outline.
    void updateResizedDataObjects(int handle, UndoCommand* parent) override;
    [[nodiscard]] QRectF outerRect() const override;
    [[nodiscard]] QRectF contentRect() const override;
    [[nodiscard]] QVector<QPointF> pointHandles() const override;

    /// Marks the point with \a index with a dot in a contrasting colour; -1 marks none. Any other index that is no
    /// point's is ignored. Changes no property.
    void setHighlightedPoint(int index);
    [[nodiscard]] int highlightedPoint() const { return m_highlightedPoint; }

    /// \a polygon scaled about its origin as the outer size \a before becomes \a after; a dimension that is 0 before
    /// cannot be scaled and stays. \a polygon itself where the factors are not above 0 or a point would leave all numbers.
    [[nodiscard]] static QPolygonF scaled(const QPolygonF& polygon, const QSizeF& before, const QSizeF& after);

private:
    void setPolygon(const QPolygonF& polygon);
    void refreshBounds();
    [[nodiscard]] bool hasPointHandles() const;

    QPolygonF m_polygon;
    QPolygonF m_unscaled; // what drags of the frame scale: however small it gets in between, nothing is lost
    QBrush m_brush;
    QRectF m_outer;
    QRectF m_bounds;
    int m_highlightedPoint = -1;
};

} // namespace Korvex::Meridane::Designer
