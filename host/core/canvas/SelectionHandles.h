#pragma once

#include <QCursor>
#include <QList>
#include <QPointer>
#include <QRectF>
#include <QRegion>

#include <utility>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
class GraphicsItem;

/// A handle of a selected element under the mouse.
struct HandleHit
{
    enum class Kind
    {
        None,
        Point,
        Frame,
        Rotation,
        Selection ///< of the frame around several selected elements
    };

    Kind kind = Kind::None;
    QPointer<DesignerObject> object;
    int number = -1; ///< the point's own number, or the frame handle's
    QList<DesignerObject*> objects; ///< of a selection's frame: what it is around
};

/**
 * The handles of the selected elements: which one lies under the mouse, and how they are drawn.
 *
 * They have the same size on the screen at every zoom: squares at the frame's corners and sides, dots on the points
 * that can be dragged, and, for a single selected element that can be rotated, a knob above its frame. A dark line in a
 * light one keeps them visible on any ground.
 *
 * Several selected elements that can be moved have one frame around all of them instead, and none of their own, where the
 * view says so (CanvasView::setSelectionFrame()).
 *
 * Only what can be seen is drawn. Where an element has more points in view than can be told apart, some of them stand
 * for all, further apart; every point can be dragged all the same.
 */
class SelectionHandles
{
public:
    explicit SelectionHandles(const CanvasView* view);

    /// The handle of a selected element at a scene point. A point handle wins over a frame handle, and that over the
    /// rotation knob. The element that has the handle shows the handle's tooltip.
    [[nodiscard]] HandleHit hit(const QPointF& scenePos) const;
    /// What the mouse looks like over a handle.
    [[nodiscard]] static QCursor cursor(const HandleHit& hit);

    /// Draws the handles, in viewport pixels.
    void paint(QPainter* painter) const;
    /// The part of the viewport that paint() draws in.
    [[nodiscard]] QRegion region() const;

private:
    struct Marks
    {
        QList<QPointF> squares;
        QPointF knobFoot; ///< where the knob's stem stands
        QPointF knob;
        bool hasKnob = false;
    };
    /// The frame around several selected elements, in scene coordinates.
    struct Together
    {
        QList<DesignerObject*> objects; ///< fewer than two: there is none
        QRectF frame;
    };
    [[nodiscard]] Together together() const;
    [[nodiscard]] QList<std::pair<int, QPointF>> handlesOf(const Together& together) const;
    void paintTogether(const Together& together, QPainter* painter) const;
    [[nodiscard]] QList<GraphicsItem*> shownItems() const;
    [[nodiscard]] Marks marks(const GraphicsItem* item, bool alone) const;
    [[nodiscard]] QList<QPointF> dots(const GraphicsItem* item) const;
    [[nodiscard]] QRectF area() const;

    const CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
