#pragma once

#include "host/core/snapping/SnapTargets.h"

#include <QList>
#include <QRegion>

#include <optional>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
struct CanvasPointer;

/**
 * The snapping of one gesture: collects what there is to snap to when it is first needed, and draws what is aligned.
 *
 * Elements count with their outer rectangles as seen, rotation and border included. Only what the view shows is a target:
 * elements in view, guides, and the grid where it is drawn.
 */
class GestureSnapping
{
public:
    explicit GestureSnapping(const CanvasView* view);
    ~GestureSnapping();

    /// Neither \a moving nor what they hold, nor the groups that they stand in, are targets.
    void setMoving(const QList<DesignerObject*>& moving);
    /// Guides are no targets: one of them is moved.
    void leaveOutGuides() { m_guides = false; }

    /// Whether a gesture at \a pointer snaps: the view does, and Ctrl is not held down.
    [[nodiscard]] bool isActive(const CanvasPointer& pointer) const;
    /// How to move \a rect (scene pixels), of which \a edges move.
    [[nodiscard]] SnapResult snap(const QRectF& rect, SnapEdges edges, bool wholePixels);
    /// The same for a point: where it snaps to.
    [[nodiscard]] QPointF snapPoint(const QPointF& point, bool wholePixels, SnapResult* result = nullptr);
    /// Shows why \a placed stands where it stands, for the directions in which \a result snaps.
    void show(const QRectF& placed, SnapEdges edges, const SnapResult& result);
    void hide();

    /// The lines and gaps, in viewport pixels.
    void paint(QPainter* painter) const;
    /// The part of the viewport that paint() draws in.
    [[nodiscard]] QRegion region() const;
    [[nodiscard]] const SnapMarks& marks() const { return m_marks; }

private:
    const SnapTargets& targets();
    void addElements(SnapTargets& targets, const DesignerObject* owner, const QRectF& visible) const;

    const CanvasView* m_view;
    QList<DesignerObject*> m_moving;
    std::optional<SnapTargets> m_targets;
    SnapMarks m_marks;
    bool m_guides = true;
};

/// Whether both coordinates are whole numbers.
[[nodiscard]] bool isWhole(const QPointF& point);
[[nodiscard]] bool isWhole(const QSizeF& size);

} // namespace Korvex::Meridane::Designer
