#pragma once

#include "host/core/canvas/GraphicsOutline.h"

#include <QBrush>

namespace Korvex::Meridane::Designer {

/// The canvas item of the irregular polygon. Each of its points can be dragged; a drag of its frame scales them.
class GraphicsIrregularPolygon : public GraphicsOutline
{
public:
    explicit GraphicsIrregularPolygon(DesignerObject* dataObject);
    ~GraphicsIrregularPolygon() override;

    /// The outline and, while a point is highlighted, its dot.
    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    /// The index of the first point under \a scenePos; -1 for none, on a rotated item and on one too small on the screen.
    int getResizePointHandle(const QPointF& scenePos, bool* handled) override;
    /// Drags the point with the index \a handle.
    void resizeByMouse(int handle, const QPointF& scenePos) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    /// Writes the points and, where a ratio is kept, that of the new outline.
    void updateResizedDataObjects(int handle, UndoCommand* parent) override;
    [[nodiscard]] QVector<QPointF> pointHandles() const override;

    /// Marks the point with \a index with a dot in a contrasting colour; -1 marks none. Any other index that is no
    /// point's is ignored. Changes no property.
    void setHighlightedPoint(int index);
    [[nodiscard]] int highlightedPoint() const { return m_highlightedPoint; }

    /// \a polygon scaled about its origin as the outer size \a before becomes \a after; a dimension that is 0 before
    /// cannot be scaled and stays. \a polygon itself where the factors are not above 0 or a point would leave all numbers.
    [[nodiscard]] static QPolygonF scaled(const QPolygonF& polygon, const QSizeF& before, const QSizeF& after);

protected:
    void paintOutline(QPainter* painter) override;
    void setPolygon(const QPolygonF& polygon) override;

private:
    [[nodiscard]] bool hasPointHandles() const;

    QBrush m_brush;
    int m_highlightedPoint = -1;
};

} // namespace Korvex::Meridane::Designer
