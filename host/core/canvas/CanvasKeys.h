#pragma once

#include <QtGlobal>

class QKeyEvent;

namespace Korvex::Meridane::Designer {

class CanvasView;

/**
 * The keyboard on the canvas: arrows move the selection by 1 pixel, with Shift by 10; Delete and Backspace remove it; Tab
 * and Shift+Tab go through the elements beside the selected one; Ctrl+A selects all; Return goes into a group and
 * Shift+Return out of it; Escape takes a gesture back, ends placing, goes out of a group, or clears the selection. Every
 * other key goes to the selected items.
 */
class CanvasKeys
{
public:
    explicit CanvasKeys(CanvasView* view);

    /// Whether the canvas wants a key that a shortcut of the window would take.
    [[nodiscard]] bool overridesShortcut(const QKeyEvent* event) const;
    /// True when the key was used.
    bool press(QKeyEvent* event);

private:
    bool nudge(const QKeyEvent* event);
    bool selectNext(bool backwards);
    bool escape();
    bool goIn();
    bool goOut();
    bool sendToItems(QKeyEvent* event);

    CanvasView* m_view;
    quint64 m_presses = 0; // counts the nudges; repeats of one press that is held down count once
    quint64 m_keysSent = 0;
};

} // namespace Korvex::Meridane::Designer
