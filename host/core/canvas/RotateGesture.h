#pragma once

#include "host/core/canvas/EditGesture.h"

namespace Korvex::Meridane::Designer {

/// Turns one element about its fixed point: by whole degrees, with Shift to multiples of 15.
class RotateGesture : public EditGesture
{
public:
    RotateGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object);
    ~RotateGesture() override;

    void move(const CanvasPointer& pointer) override;
    /// The angle in degrees.
    [[nodiscard]] QString readout() const override;

protected:
    [[nodiscard]] QString stepName() const override;

private:
    QPointer<DesignerObject> m_object;
    QPointF m_center; // in scene coordinates
    double m_startAngle; // of the item, degrees clockwise
};

} // namespace Korvex::Meridane::Designer
