#pragma once

#include "host/core/canvas/GraphicsItem.h"

#include <QGraphicsItem>
#include <QPolygonF>

namespace Korvex::Meridane::Designer {

/**
 * Base of the canvas items whose outline is a list of points: filled, without a border, scaled by its frame handles.
 *
 * A derived item says how the outline is filled and takes its other properties over. An outer size that is typed is not
 * reported back, because the elements of paths and gradients leave it as it was written.
 */
class MERIDANE_CORE_EXPORT GraphicsOutline : public QGraphicsItem, public GraphicsItem
{
public:
    ~GraphicsOutline() override;

    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    [[nodiscard]] QRectF outerRect() const override;
    [[nodiscard]] QRectF contentRect() const override;

    /// The points in item coordinates.
    [[nodiscard]] const QPolygonF& polygon() const { return m_polygon; }

    /// While an element scales its points to an outer size that was set, that value stays as it was set: the item
    /// reports none until the outline changes again.
    void setKeepsOuterSize(bool keeps) { m_keepsOuterSize = keeps; }

protected:
    /// \a pointsId names the property of \a dataObject that holds the outline; \a polygon is that of a new element.
    GraphicsOutline(DesignerObject* dataObject, const QString& pointsId, const QPolygonF& polygon);

    /// Draws the outline, in item coordinates.
    virtual void paintOutline(QPainter* painter) = 0;
    /// Shows \a polygon and reports its outer size. Points that differ in their last digits are others.
    virtual void setPolygon(const QPolygonF& polygon);

    /// What drags of the frame scale: the element's points. Whatever the way of the mouse, the outline is what the outer
    /// size makes of them, and however small it gets in between, nothing is lost.
    [[nodiscard]] const QPolygonF& unscaledPolygon() const { return m_unscaled; }
    /// For resizeGraphicsItem(): shows \a polygon, which was scaled from unscaledPolygon(), with the side or corner
    /// opposite \a handle in place.
    void setScaledPolygon(int handle, const QPolygonF& polygon);

private:
    QString m_pointsId;
    QPolygonF m_polygon;
    QPolygonF m_unscaled;
    QRectF m_bounds;
    bool m_keepsOuterSize = false;
};

} // namespace Korvex::Meridane::Designer
