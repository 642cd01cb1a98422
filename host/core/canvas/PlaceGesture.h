#pragma once

#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GestureSnapping.h"

#include <QRect>
#include <QRectF>

namespace Korvex::Meridane::Designer {

/**
 * Places a new element of the view's placement class. A click puts its top left corner there, at its default size; a
 * drag gives classes that have a "boundingSize" the size of the dragged rectangle, a square with Shift. Both corners snap.
 */
class PlaceGesture : public Gesture
{
public:
    PlaceGesture(CanvasView* view, const CanvasPointer& press, const QString& className);
    ~PlaceGesture() override;

    void move(const CanvasPointer& pointer) override;
    void finish(const CanvasPointer& pointer) override;
    void cancel() override;
    [[nodiscard]] QString readout() const override;
    void paint(QPainter* painter) const override;
    [[nodiscard]] QRegion paintedRegion() const override;

    /// Adds an element of \a className with its top left corner at \a position and, where that is not empty and the
    /// class has a "boundingSize", of the outer size \a size, to the view's screen.
    static void place(CanvasView* view, const QString& className, const QPointF& position, const QSizeF& size);

private:
    [[nodiscard]] bool isClick() const;
    [[nodiscard]] QRectF sceneRect() const;

    CanvasPointer m_press;
    CanvasPointer m_now;
    QString m_className;
    QPointF m_from; // the corners of the dragged rectangle
    QPointF m_to;
    GestureSnapping m_snapping;
};

} // namespace Korvex::Meridane::Designer
