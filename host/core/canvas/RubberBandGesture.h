#pragma once

#include "host/core/canvas/Gesture.h"

#include <QList>
#include <QPointer>
#include <QRect>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// Spans a rectangle from empty ground and selects what it touches, with Ctrl or Shift in addition to what is selected.
/// Without a move it is a click on empty ground, which clears the selection.
class RubberBandGesture : public Gesture
{
public:
    RubberBandGesture(CanvasView* view, const CanvasPointer& press);
    ~RubberBandGesture() override;

    void move(const CanvasPointer& pointer) override;
    void finish(const CanvasPointer& pointer) override;
    void cancel() override;
    void paint(QPainter* painter) const override;
    [[nodiscard]] QRect paintedRect() const override;
    [[nodiscard]] bool editsProject() const override { return false; }

private:
    CanvasPointer m_press;
    CanvasPointer m_now;
    QList<QPointer<DesignerObject>> m_selectedBefore;
};

} // namespace Korvex::Meridane::Designer
