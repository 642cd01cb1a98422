#pragma once

#include "host/core/canvas/GraphicsOutline.h"

#include <QBrush>

namespace Korvex::Meridane::Designer {

/// Base of the canvas items of the gradients: takes over what all of them have.
class GraphicsGradient : public GraphicsOutline
{
public:
    ~GraphicsGradient() override;

    /// "points", "gradientStops" and "spread".
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

protected:
    /// \a gradient is the derived item's own, and outlives this.
    GraphicsGradient(DesignerObject* dataObject, QGradient* gradient);

    /// Reads \a property, which holds a point, with \a present, and sets it with \a set and repaints where it differs by
    /// more than noise.
    template <typename Gradient>
    void takePoint(const DesignerProperty& property, Gradient& gradient, QPointF (Gradient::*present)() const,
                   void (Gradient::*set)(const QPointF&))
    {
        QPointF point;
        if (readPoint(property, (gradient.*present)(), &point)) {
            (gradient.*set)(point);
            update();
        }
    }

private:
    static bool readPoint(const DesignerProperty& property, const QPointF& present, QPointF* point);

    QGradient* m_gradient;
};

} // namespace Korvex::Meridane::Designer
