#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPainterPath>
#include <QtGui/QTransform>

/**
 * The nine named points of a rectangle, and what follows from them: the fixed point of a rotation and the corner that a
 * resized frame leaves in place.
 *
 * The points are numbered row by row. The same numbers name the handles of a resizable frame, where 4 (the centre)
 * means "no handle".
 */
namespace Korvex::Meridane::Common {
Q_NAMESPACE_EXPORT(MERIDANE_COMMON_EXPORT)

/** A corner, the middle of a side, or the centre of a rectangle. A plain enumeration, because handles are plain ints. */
enum TransformOrigin
{
    TopLeft = 0,
    Top = 1,
    TopRight = 2,
    Left = 3,
    Center = 4,
    Right = 5,
    BottomLeft = 6,
    Bottom = 7,
    BottomRight = 8
};
Q_ENUM_NS(TransformOrigin)

/** The name of @p origin ("TopLeft" … "BottomRight"); empty for a number outside 0 … 8. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QString transformOriginName(TransformOrigin origin);

/**
 * The origin called @p name, exactly as transformOriginName() writes it. Any other text gives Center and sets @p ok
 * (which may be null) to false.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT TransformOrigin transformOriginFromName(QStringView name, bool* ok = nullptr);

/** The point across the centre: TopLeft for BottomRight, Left for Right, Center for Center and for a number outside 0 … 8. */
[[nodiscard]] MERIDANE_COMMON_EXPORT TransformOrigin oppositeOrigin(TransformOrigin origin);

/**
 * Where @p origin lies on a rectangle of width and height 1: 0, 0.5 or 1 on each axis. A number outside 0 … 8 is the
 * centre.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QPointF originFractions(TransformOrigin origin);

/**
 * The fixed point of a rotation about @p origin, in the coordinates of @p content. This one function serves canvas
 * items, shapes and display types. @p content is the rectangle of the element's content, without its border.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QPointF fixedPointPosition(TransformOrigin origin, const QRectF& content);

/** Rotation by @p angle degrees, clockwise on a screen whose y grows downwards, that leaves @p fixedPoint in place. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QTransform rotationAbout(const QPointF& fixedPoint, double angle);

/** Rotation by @p angle degrees, clockwise, about the point @p origin of @p content. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QTransform rotationAbout(TransformOrigin origin, const QRectF& content,
                                                              double angle);

/** @p path turned by @p angle degrees, clockwise, about the point @p origin of @p content. */
[[nodiscard]] MERIDANE_COMMON_EXPORT QPainterPath rotatedPath(const QPainterPath& path, TransformOrigin origin,
                                                              const QRectF& content, double angle);
} // namespace Korvex::Meridane::Common
