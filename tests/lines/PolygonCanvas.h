#pragma once

#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"

#include <QPainterPath>
#include <QPolygonF>

#include <cmath>

namespace Korvex::Meridane::Designer::Test {

/// A canvas with irregular polygons on it.
class PolygonCanvas : public CanvasFixture
{
public:
    /// The only element of the canvas, selected; no step in the history, zoom 1.
    DesignerObject* addAlone(const QPolygonF& points, const QPointF& position, double keepRatio = 0)
    {
        clear();
        DesignerObject* polygon =
            add("IrregularPolygon", {{QStringLiteral("position"), ValueConversion::toString(position)},
                                     {QStringLiteral("pointList"), ValueConversion::toString(points)},
                                     {QStringLiteral("keepRatio"), ValueConversion::toString(keepRatio)}});
        select({polygon});
        return polygon;
    }

    void clear()
    {
        view->cancelGesture(); // of a case that failed half-way
        session->removeElements(scene()->selectableElements());
        stack()->clear();
        view->setZoom(1);
    }

    /// The points as the element holds them.
    static QPolygonF points(const DesignerObject* polygon)
    {
        return ValueConversion::toPolygon(value(polygon, "pointList"));
    }

    /// Where the canvas shows the points.
    static QPolygonF shownPoints(const DesignerObject* polygon)
    {
        const QPainterPath outline = graphic(polygon)->shape();
        QPolygonF shown;
        for (qsizetype i = 0; i < points(polygon).size(); ++i)
            shown << graphic(polygon)->mapToScene(outline.elementAt(int(i)));
        return shown;
    }

    /// Where the element, without its item, has the points on the scene.
    static QPolygonF placedPoints(const DesignerObject* polygon)
    {
        return points(polygon).translated(ValueConversion::toPoint(value(polygon, "position")));
    }

    static bool near(const QPointF& a, const QPointF& b, double tolerance = 1e-9)
    {
        return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
    }

    static bool near(const QPolygonF& a, const QPolygonF& b, double tolerance = 1e-9)
    {
        for (qsizetype i = 0; i < a.size() && a.size() == b.size(); ++i) {
            if (!near(a.at(i), b.at(i), tolerance))
                return false;
        }
        return a.size() == b.size();
    }

    /// The frame that the canvas shows, as if it were not rotated.
    static QRectF shownFrame(const DesignerObject* polygon)
    {
        return polygon->graphicsItem()->outerRect().translated(graphic(polygon)->pos());
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

    /// A star of \a count points in a square of 300 pixels, of which no two lie nearer than ten pixels.
    static QPolygonF star(int count)
    {
        QPolygonF points;
        for (int i = 0; i < count; ++i) {
            const double radius = i % 2 == 0 ? 150 : 90;
            const double angle = 2 * M_PI * i / count;
            points << QPointF(150 + radius * std::sin(angle), 150 - radius * std::cos(angle));
        }
        return points;
    }
};

} // namespace Korvex::Meridane::Designer::Test
