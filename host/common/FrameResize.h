#pragma once

#include "host/common/CommonExport.h"
#include "host/common/TransformOrigin.h"

#include <QtCore/QSizeF>

/**
 * Arithmetic of a rectangular frame that is resized by one of its handles. Handles are numbered as TransformOrigin; 4
 * (the centre) and any number outside 0 … 8 is no handle. All lengths are in one unit, usually pixels of the canvas.
 */
namespace Korvex::Meridane::Common {
/** True for the eight handles 0 … 8 without 4. */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool isFrameHandle(int handle);

/** True when dragging @p handle sideways changes the frame's width (the corners, left and right). */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool handleChangesWidth(int handle);

/** True when dragging @p handle up or down changes the frame's height (the corners, top and bottom). */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool handleChangesHeight(int handle);

/**
 * The corner of the frame that a drag of @p handle leaves in place, also when both dimensions change under a kept
 * ratio: a corner handle keeps the corner across; top keeps the bottom left, left the top right, right and bottom the
 * top left corner. No handle: TopLeft.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT TransformOrigin cornerKeptBy(int handle);

/**
 * The frame that @p frame becomes when @p handle is dragged to @p point: the sides at the handle move to the point, the
 * others stay. Neither dimension falls below the one of @p minimum; a frame never turns over. No handle: @p frame.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QRectF draggedFrame(const QRectF& frame, int handle, const QPointF& point,
                                                         const QSizeF& minimum);

/** A frame of @p size whose point @p fixedOrigin lies where that of @p frame lies. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QRectF resizedFrame(TransformOrigin fixedOrigin, const QRectF& frame,
                                                         const QSizeF& size);

/**
 * @p wanted brought to the width-to-height ratio @p ratio. The height drives for the top and bottom handles, the width
 * for all others; the other dimension is derived. When the derived one would fall below @p minimum it becomes the
 * minimum and the driving one follows it. A ratio that is not above 0 (or no number) keeps nothing: then each dimension
 * is only raised to the minimum.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QSizeF sizeKeepingRatio(int handle, const QSizeF& wanted, double ratio,
                                                             double minimum);
} // namespace Korvex::Meridane::Common
