#include "lines/PointListPlace.h"

#include "host/core/canvas/CanvasNumbers.h"

#include "host/common/TransformOrigin.h"

#include <QTransform>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// By how much the position has to change. A point p of the element lies at position + f + R(p - f), with the fixed
/// point f and the rotation R; that is the same before and after for the point that stays.
QPointF shift(const RotationInfo& rotation, const QRectF& before, const QRectF& after, KeptPlace kept)
{
    const QPointF stayedFrom = kept == KeptPlace::Corner ? before.topLeft() : QPointF();
    const QPointF stayedTo = kept == KeptPlace::Corner ? after.topLeft() : QPointF();
    constexpr double FullTurn = 360;
    if (std::fmod(rotation.angle(), FullTurn) == 0)
        return stayedFrom - stayedTo;
    const Common::TransformOrigin origin = Common::transformOriginFromName(rotation.fixedPoint());
    const QPointF fixedBefore = Common::fixedPointPosition(origin, before);
    const QPointF fixedAfter = Common::fixedPointPosition(origin, after);
    const QTransform turn = QTransform().rotate(rotation.angle());
    return fixedBefore - fixedAfter + turn.map((stayedFrom - fixedBefore) - (stayedTo - fixedAfter));
}

double moved(double coordinate, double distance)
{
    const double result = coordinate + distance;
    return distance == 0 || !std::isfinite(result) ? coordinate : withoutNoise(result);
}

} // namespace

QPointF positionKeepingPlace(const QPointF& position, const RotationInfo& rotation, const QRectF& before,
                             const QRectF& after, KeptPlace kept)
{
    const QPointF by = shift(rotation, before, after, kept);
    return {moved(position.x(), by.x()), moved(position.y(), by.y())};
}

} // namespace Korvex::Meridane::Designer
