#pragma once

#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"

#include <QByteArrayList>
#include <QPolygonF>

#include <cmath>

namespace Korvex::Meridane::Designer::Test {

/// A canvas with paths and gradients on it.
class OutlineCanvas : public CanvasFixture
{
public:
    static QByteArrayList elements()
    {
        return {"PathElement", "LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"};
    }

    static constexpr int Handles[] = {Common::TopLeft, Common::Top,        Common::TopRight, Common::Left,
                                      Common::Right,   Common::BottomLeft, Common::Bottom,   Common::BottomRight};

    /// The only element of the canvas, selected; no step in the history, zoom 1.
    DesignerObject* addAlone(const QByteArray& className, const QPolygonF& points, const QPointF& position,
                             double keepRatio = 0)
    {
        clear();
        DesignerObject* element = addOutline(className, points, position, keepRatio);
        select({element});
        return element;
    }

    DesignerObject* addOutline(const QByteArray& className, const QPolygonF& points, const QPointF& position,
                               double keepRatio = 0)
    {
        return add(className.constData(), {{QStringLiteral("position"), ValueConversion::toString(position)},
                                           {QStringLiteral("points"), ValueConversion::toString(points)},
                                           {QStringLiteral("keepRatio"), ValueConversion::toString(keepRatio)}});
    }

    void clear()
    {
        view->cancelGesture(); // of a case that failed half-way
        session->removeElements(scene()->selectableElements());
        stack()->clear();
        view->setZoom(1);
    }

    static QPolygonF points(const DesignerObject* element)
    {
        return ValueConversion::toPolygon(value(element, "points"));
    }

    static bool near(const QPointF& a, const QPointF& b, double tolerance = 1e-9)
    {
        return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
    }

    /// The frame that the canvas shows, as if it were not rotated.
    static QRectF shownFrame(const DesignerObject* element)
    {
        return element->graphicsItem()->outerRect().translated(graphic(element)->pos());
    }

    static QPointF handlePoint(const QRectF& frame, int handle)
    {
        return Common::fixedPointPosition(static_cast<Common::TransformOrigin>(handle), frame);
    }

    /// Whether the corner that a drag of \a handle leaves in place lies where it lay.
    static bool keepsItsCorner(int handle, const QRectF& before, const QRectF& now)
    {
        const Common::TransformOrigin kept = Common::cornerKeptBy(handle);
        return near(Common::fixedPointPosition(kept, now), Common::fixedPointPosition(kept, before));
    }
};

} // namespace Korvex::Meridane::Designer::Test
