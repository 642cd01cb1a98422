#pragma once

#include "host/core/canvas/EditGesture.h"

namespace Korvex::Meridane::Designer {

/**
 * Moves the selected elements, once the mouse has left the surroundings of the press. With Shift they keep to one
 * axis. The rectangle around all of them snaps. A press that is released without a move is a click: see Click.
 */
class MoveGesture : public EditGesture
{
public:
    /// What a click on the grabbed element comes to.
    enum class Click
    {
        Nothing,
        SelectAlone, ///< of several selected elements only this one stays selected
        Deselect, ///< a click with Shift on a selected element
        SelectBeneath, ///< a click with Ctrl: what lies beneath it at that point is selected instead
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
    QRectF m_extent; // of all of them on the scene, as it was
    bool m_wholePixels = false; // the grabbed one stands on whole pixels
};

} // namespace Korvex::Meridane::Designer
