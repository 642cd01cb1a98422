#pragma once

#include "lines/LineShape.h"

#include "host/core/canvas/GraphicsItem.h"

#include <QBrush>
#include <QGraphicsItem>
#include <QPolygonF>

namespace Korvex::Meridane::Designer {

/// The canvas item of the line. Its ends can be dragged; a drag of its frame changes length, angle and, with a kept
/// ratio, thickness. The item's position is the start point.
class GraphicsLine : public QGraphicsItem, public GraphicsItem
{
public:
    explicit GraphicsLine(DesignerObject* dataObject);
    ~GraphicsLine() override;

    /// The outline and, while it is shown, the dot at the start point.
    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    /// 0 at the start point, 1 at the end point, -1 elsewhere and on a rotated item.
    int getResizePointHandle(const QPointF& scenePos, bool* handled) override;
    /// Leaves the places of the two ends to their own handles.
    int getResizeHandle(const QPointF& scenePos, bool* handled) override;
    /// Drags an end of the line; a line does not get shorter than 1 pixel.
    void resizeByMouse(int handle, const QPointF& scenePos) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    void updateResizedDataObjects(int handle, UndoCommand* parent) override;
    [[nodiscard]] QRectF outerRect() const override;
    /// The start point alone: about it the line turns.
    [[nodiscard]] QRectF contentRect() const override;
    /// The two ends; the end alone while a dot marks the start, which can be dragged all the same.
    [[nodiscard]] QVector<QPointF> pointHandles() const override;
    /// Not where one end is either, also while its dot stands for the handle of the start point.
    [[nodiscard]] bool showsFrameHandle(int handle) const override;

    [[nodiscard]] const LineShape& line() const { return m_line; }
    /// By how many degrees, clockwise, the item is turned about its start point.
    [[nodiscard]] double angleOnParent() const { return rotation(); }

    [[nodiscard]] bool showsStartPoint() const { return m_showStartPoint; }
    /// Marks the start point with a dot in a contrasting colour; changes no property.
    void setShowStartPoint(bool show);

private:
    void setLine(const LineShape& line);
    void takeLine(const LineShape& line);
    void refreshBounds();
    void updateKeptRatio();
    [[nodiscard]] QPointF endPoint() const;
    [[nodiscard]] QPointF onParent(const QPointF& scenePos) const;

    LineShape m_line;
    /// The thickness before rounding while the frame is dragged with a kept ratio: small steps add up.
    double m_exactThickness = m_line.thickness;
    QBrush m_brush;
    QPolygonF m_outline;
    /// The size that the outline was fitted to while the frame is dragged, else its own: the errors of the direction
    /// search do not add up in the dimension that the handle leaves alone.
    QSizeF m_fittedSize;
    QRectF m_bounds;
    bool m_showStartPoint = false;
};

} // namespace Korvex::Meridane::Designer
