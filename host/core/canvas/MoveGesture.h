#pragma once

#include "host/core/canvas/EditGesture.h"

namespace Korvex::Meridane::Designer {

/**
 * Moves the selected elements, once the mouse has left the surroundings of the press. With Shift they keep to one
 * axis. A press that is released without a move is a click: see Click.
 */
class MoveGesture : public EditGesture
{
public:
    /// What a click on the grabbed element comes to.
    enum class Click
    {
        Nothing,
        SelectAlone, ///< of several selected elements only this one stays selected
        Deselect, ///< a click with Ctrl or Shift on a selected element
    };

    MoveGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* grabbed, Click click);
    ~MoveGesture() override;

    void move(const CanvasPointer& pointer) override;
    void finish(const CanvasPointer& pointer) override;

    /// How far the mouse has to be from the press before anything moves, in screen pixels.
    [[nodiscard]] static int threshold();

protected:
    [[nodiscard]] QString stepName() const override;
    [[nodiscard]] QString stepNameOfSeveral(int count) const override;

private:
    bool start(const CanvasPointer& pointer);

    QPointer<DesignerObject> m_grabbed;
    Click m_click;
    QList<QPointF> m_positions; // of the items, as they were
};

} // namespace Korvex::Meridane::Designer
