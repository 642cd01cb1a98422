#pragma once

#include "host/core/canvas/EditGesture.h"

namespace Korvex::Meridane::Designer {

/// Drags a frame handle of one element: the side or corner stays under the mouse where it was grabbed, or snaps.
class ResizeGesture : public EditGesture
{
public:
    /// \a handle: a frame handle, 0 to 8 without 4.
    ResizeGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object, int handle);
    ~ResizeGesture() override;

    void move(const CanvasPointer& pointer) override;

protected:
    [[nodiscard]] QString stepName() const override;
    void end() override;

private:
    void resizeTo(const QPointF& handlePos);
    bool resizeSnapped(const QPointF& handlePos, SnapEdges edges);
    [[nodiscard]] QRectF frame() const;

    QPointer<DesignerObject> m_object;
    int m_handle;
    QPointF m_handlePos; // of the handle at the press, in scene coordinates
    QRectF m_frame; // the outer rectangle at the press, in scene coordinates
    SnapEdges m_edges; // that the handle moves; none where the frame stands askew
    bool m_wholePixels = false; // the frame has whole pixels between its sides, and so has its place
};

} // namespace Korvex::Meridane::Designer
