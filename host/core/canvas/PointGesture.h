#pragma once

#include "host/core/canvas/EditGesture.h"

namespace Korvex::Meridane::Designer {

/// Drags a point handle of one element: an end of a line, a corner of a polygon. The item does it itself.
class PointGesture : public EditGesture
{
public:
    /// \a handle: the item's own number of the point, 0 or more.
    PointGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object, int handle);
    ~PointGesture() override;

    void move(const CanvasPointer& pointer) override;

protected:
    [[nodiscard]] QString stepName() const override;
    void fill(UndoCommand* parent) const override;
    void end() override;

private:
    [[nodiscard]] bool hasPointAt(const QPointF& scenePos) const;

    QPointer<DesignerObject> m_object;
    int m_handle;
};

} // namespace Korvex::Meridane::Designer
