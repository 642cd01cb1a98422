#pragma once

#include "host/core/canvas/CanvasView.h"

#include <QEvent>
#include <QKeyCombination>
#include <QList>
#include <QPointF>

namespace Korvex::Meridane::Designer {

class EditSession;

/**
 * The mouse and the keyboard on the canvas of a session: a real view that is never on a screen, and the events that a
 * hand would cause, sent to it as the toolkit sends them.
 */
class CanvasInput
{
public:
    /// \a session outlives the input.
    explicit CanvasInput(EditSession* session);
    ~CanvasInput();
    Q_DISABLE_COPY_MOVE(CanvasInput)

    /**
     * Presses the left button at the first of \a points, moves once to each of the others and releases it at the last.
     *
     * Points are pixels of the current screen's scene, fractions included. They may lie outside of the screen, and of
     * the view: a mouse that drags goes there as well.
     *
     * @param points at least one
     * @return why the canvas refused what the gesture asked for; empty when it did not
     */
    [[nodiscard]] QString drag(const QList<QPointF>& points, Qt::KeyboardModifiers modifiers);

    /// Presses and releases a key on the canvas, the selected elements having the keyboard. Gives back as drag() does.
    [[nodiscard]] QString pressKey(QKeyCombination key);

private:
    /// Puts the screen's top left corner, at zoom 1, into that of the view, so that positions in the view are those on
    /// the screen to the last digit.
    void putScreenInPlace();
    void sendMouse(QEvent::Type type, const QPointF& scenePos, Qt::MouseButton button, Qt::MouseButtons buttons,
                   Qt::KeyboardModifiers modifiers);

    CanvasView m_view;
    QString m_refusal;
};

} // namespace Korvex::Meridane::Designer
