#pragma once

#include "host/core/values/RotationInfo.h"

#include <QPointF>
#include <QRectF>

namespace Korvex::Meridane::Designer {

/// What stays where it is on the canvas when the points of a polygon are replaced.
enum class KeptPlace
{
    Points, ///< the points that both lists have
    Corner ///< the top-left corner of the bounding rectangle
};

/**
 * The position (pixels, in the parent's coordinates) with which a polygon stays in its place when its points are
 * replaced. \a before and \a after are the bounding rectangles of the two lists in the element's coordinates.
 *
 * The rectangle also holds the fixed point of the element's \a rotation, which moves with it; that is made up for, so
 * that a turned polygon stays in its place too. A coordinate that need not change keeps its very value.
 */
[[nodiscard]] QPointF positionKeepingPlace(const QPointF& position, const RotationInfo& rotation, const QRectF& before,
                                           const QRectF& after, KeptPlace kept);

} // namespace Korvex::Meridane::Designer
