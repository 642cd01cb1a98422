#pragma once

#include "host/core/commands/ChangeRecording.h"

#include <QPointF>
#include <QRect>
#include <QRegion>
#include <QString>
#include <Qt>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// Where the mouse is, in pixels of the screen that is designed and in those of the viewport, and the keys held down.
struct CanvasPointer
{
    QPointF scenePos;
    QPointF viewPos;
    Qt::KeyboardModifiers modifiers;
};

/**
 * Something that is done on the canvas with a mouse button held down: it begins when it is made, follows the mouse, and
 * ends in finish() or in cancel(), which leaves everything as it was found.
 */
class Gesture
{
public:
    explicit Gesture(CanvasView* view)
        : m_view(view)
    {}
    virtual ~Gesture() = default;
    Q_DISABLE_COPY_MOVE(Gesture)

    virtual void move(const CanvasPointer& pointer) = 0;
    /// The button was released at \a pointer.
    virtual void finish(const CanvasPointer& pointer) = 0;
    virtual void cancel() = 0;

    /// The geometry that finish() would give, for the user; empty for none.
    [[nodiscard]] virtual QString readout() const { return {}; }
    /// What finish() would write, for previews that follow the mouse: of every property that differs from the value it
    /// has now, that value and the one to come.
    [[nodiscard]] virtual QVector<PropertyChange> pendingChanges() const { return {}; }
    /// Draws what only the gesture shows, in viewport pixels.
    virtual void paint(QPainter*) const {}
    /// The viewport rectangle that paint() draws in.
    [[nodiscard]] virtual QRect paintedRect() const { return {}; }
    /// The same, where that is much less than a rectangle.
    [[nodiscard]] virtual QRegion paintedRegion() const { return paintedRect(); }
    /// Whether the undo history has to wait for the gesture's end.
    [[nodiscard]] virtual bool editsProject() const { return true; }

protected:
    [[nodiscard]] CanvasView* view() const { return m_view; }

private:
    CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
