#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QPointF>
#include <QRectF>

namespace Korvex::Meridane::Designer {

/// A side or the middle of rectangles that are aligned.
enum class AlignEdge
{
    Left,
    Center, ///< halfway between left and right
    Right,
    Top,
    Middle, ///< halfway between top and bottom
    Bottom
};

/// What is made equal between rectangles that are distributed.
enum class SpacingKind
{
    Gaps, ///< the room between neighbours; negative where they overlap
    Centers ///< the distance of neighbouring centres
};

/// The way that brings \a edge of \a rect to that of \a reference; along the other axis nothing.
[[nodiscard]] MERIDANE_CORE_EXPORT QPointF alignedOffset(const QRectF& rect, const QRectF& reference, AlignEdge edge);

/**
 * The ways, in the order of \a rects, that make the \a kind of spacing equal along one axis. The first and the last, in
 * the order of their centres, stay where they are; of equal centres the earlier one goes first. Less than three
 * rectangles stay where they are.
 */
[[nodiscard]] MERIDANE_CORE_EXPORT QList<QPointF> distributedOffsets(const QList<QRectF>& rects,
                                                                     Qt::Orientation orientation, SpacingKind kind);

} // namespace Korvex::Meridane::Designer
