#pragma once

#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GestureSnapping.h"
#include "host/core/snapping/Guides.h"

namespace Korvex::Meridane::Designer {

/// Drags a guide, a new one out of its ruler or one that stands on the canvas. Let go before the viewport begins, over the
/// ruler, it is removed or does not come to be.
class GuideGesture : public Gesture
{
public:
    /// \a index: of the guide that is moved; -1: a new one.
    GuideGesture(CanvasView* view, const CanvasPointer& press, Qt::Orientation orientation, int index);
    ~GuideGesture() override;

    void move(const CanvasPointer& pointer) override;
    void finish(const CanvasPointer& pointer) override;
    void cancel() override;
    [[nodiscard]] QString readout() const override;
    void paint(QPainter* painter) const override;
    [[nodiscard]] QRegion paintedRegion() const override;

    /// The guide that is shown by the gesture instead of by the canvas, or -1.
    [[nodiscard]] int index() const { return m_index; }

private:
    CanvasPointer m_press;
    Guide m_guide;
    int m_index;
    bool m_moved = false;
    bool m_removed = false;
    GestureSnapping m_snapping;
};

} // namespace Korvex::Meridane::Designer
