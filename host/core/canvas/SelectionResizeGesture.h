#pragma once

#include "host/core/canvas/EditGesture.h"

#include <QRectF>
#include <QSizeF>

namespace Korvex::Meridane::Designer {

/**
 * Drags a handle of the frame around several selected elements: their places and outer sizes grow and shrink together.
 *
 * Each element keeps its own rules (smallest size, kept ratio); where it does not follow as far as the others it keeps its
 * share of the room beside it, so that what touches a side of the frame goes on touching it. Elements without a size of their
 * own (groups) only move. Turned elements keep their angle: their centres move with the frame, and each side grows as much
 * as a line in its direction does. Elements on whole pixels stay on whole pixels. With Shift the frame keeps its ratio.
 */
class SelectionResizeGesture : public EditGesture
{
public:
    /// \a objects: two or more that can be moved, none inside another. \a handle: 0 to 8 without 4.
    SelectionResizeGesture(CanvasView* view, const CanvasPointer& press, const QList<DesignerObject*>& objects,
                           int handle);
    ~SelectionResizeGesture() override;

    void move(const CanvasPointer& pointer) override;
    /// The frame around all.
    [[nodiscard]] QString readout() const override;

protected:
    [[nodiscard]] QString stepName() const override;
    [[nodiscard]] QString stepNameOfSeveral(int count) const override;
    void end() override;

private:
    struct Start
    {
        QPointF position; ///< of the item, in its parent's coordinates
        QSizeF outerSize; ///< along its own sides
        QSizeF wantedSize; ///< the outer size that its item was asked for last
        QRectF bounds; ///< as it is seen, in scene coordinates
        double angle = 0; ///< on the scene, in degrees
    };
    [[nodiscard]] QRectF wantedFrame(const CanvasPointer& pointer, const QPointF& way);
    void resizeTo(const QRectF& frame);
    void resize(qsizetype index, const QRectF& frame);
    void resizeItem(qsizetype index, const QSizeF& size);
    [[nodiscard]] QRectF wantedBounds(const Start& start, const QRectF& frame) const;

    QList<DesignerObject*> m_grabbed; // until the gesture has begun
    QList<Start> m_starts; // of objects()
    QRectF m_frame; // around all, as it was, in scene coordinates
    QRectF m_frameNow;
    int m_handle;
};

} // namespace Korvex::Meridane::Designer
