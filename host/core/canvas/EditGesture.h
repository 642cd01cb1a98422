#pragma once

#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GestureRecord.h"
#include "host/core/canvas/GestureSnapping.h"

namespace Korvex::Meridane::Designer {

class GraphicsItem;

/**
 * A gesture that changes elements: live it changes only their items, at its end it becomes one undo step.
 *
 * The values are recorded before the first change. finish() has the items fill one parent command, which adopts what
 * was changed directly meanwhile (outer sizes), and executes it; an empty one is dropped. cancel() goes back to the
 * recorded values.
 */
class EditGesture : public Gesture
{
public:
    /// \a press: where the mouse button went down.
    EditGesture(CanvasView* view, const CanvasPointer& press);
    ~EditGesture() override;

    void finish(const CanvasPointer& pointer) override;
    void cancel() override;
    /// Place and outer size of the object that was grabbed, as its item would write them.
    [[nodiscard]] QString readout() const override;
    [[nodiscard]] QVector<PropertyChange> pendingChanges() const override;
    /// What it snaps to.
    void paint(QPainter* painter) const override;
    [[nodiscard]] QRegion paintedRegion() const override;

protected:
    [[nodiscard]] const CanvasPointer& press() const { return m_press; }
    /// Records \a objects, the grabbed one first, unless that has been done.
    void begin(const QList<DesignerObject*>& objects);
    [[nodiscard]] bool hasBegun() const { return m_record.isTaken(); }
    [[nodiscard]] const QList<QPointer<DesignerObject>>& objects() const { return m_objects; }
    /// The item of the grabbed object, or null when it has gone.
    [[nodiscard]] GraphicsItem* item() const;
    /// What the gesture snaps to; a gesture that snaps says first what it moves.
    [[nodiscard]] GestureSnapping& snapping() { return m_snapping; }
    /// The way from the press to \a pointer, in scene pixels: whole ones unless the view shows pixel for pixel, where
    /// the mouse usually has no others, and does not snap.
    [[nodiscard]] QPointF wayTo(const CanvasPointer& pointer) const;
    /// Puts every value and item back to where the gesture found them; it goes on from there.
    void restore() { m_record.restore(); }
    /// The value string that the grabbed item would write to the property \a id, or the property's own.
    [[nodiscard]] QString pendingValue(const QString& id) const;

    /// The name of the undo step in the user's language: for one object, whose id takes the place of %1 ("Move %1"), and
    /// for \a count of them ("Move 2 Elements").
    [[nodiscard]] virtual QString stepName() const = 0;
    [[nodiscard]] virtual QString stepNameOfSeveral(int /*count*/) const { return stepName(); }
    /// Has the items write their state: every property of every object by rank.
    virtual void fill(UndoCommand* parent) const;
    /// Runs before the step is made and after everything was put back.
    virtual void end() {}

private:
    CanvasPointer m_press;
    QList<QPointer<DesignerObject>> m_objects;
    GestureRecord m_record;
    GestureSnapping m_snapping;
};

} // namespace Korvex::Meridane::Designer
