#pragma once

#include "host/core/canvas/EditGesture.h"

namespace Korvex::Meridane::Designer {

/// Drags a frame handle of one element: the side or corner stays under the mouse where it was grabbed.
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
    QPointer<DesignerObject> m_object;
    int m_handle;
    QPointF m_handlePos; // of the handle at the press, in scene coordinates
};

} // namespace Korvex::Meridane::Designer
