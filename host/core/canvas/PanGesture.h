#pragma once

#include "host/core/canvas/Gesture.h"

#include <QPoint>

namespace Korvex::Meridane::Designer {

/// Scrolls the view with the mouse: the middle button, or the left one while the space bar is held down.
class PanGesture : public Gesture
{
public:
    PanGesture(CanvasView* view, const CanvasPointer& press);
    ~PanGesture() override;

    void move(const CanvasPointer& pointer) override;
    void finish(const CanvasPointer& pointer) override;
    void cancel() override;
    [[nodiscard]] bool editsProject() const override { return false; }

private:
    QPointF m_press; // in the viewport
    QPoint m_scrolled; // values of the scroll bars at the press
};

} // namespace Korvex::Meridane::Designer
