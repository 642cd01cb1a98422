#pragma once

#include "tests/runtime/DisplayTypeTest.h"

#include <QtGui/QBrush>
#include <QtGui/QPolygonF>

QT_BEGIN_NAMESPACE
class QQuickItem;
QT_END_NAMESPACE

/** What the types whose outline is a list of points have in common, and among them those with a gradient. */
namespace OutlineShape {
/** The rows of "points" for the table of a type called @p name. */
[[nodiscard]] DisplayType type(const QString& name);
/** The same, and those of "gradientStops". */
[[nodiscard]] DisplayType gradientType(const QString& name);
/** Adds the row of a number: what it is in a new item, and a value that changes the sample's picture. */
void addNumber(DisplayType* type, const char* property, double value, double change);

/** Arbitrary points, 3 to 200 of them, most of them crossing themselves; within a property test only. */
[[nodiscard]] QVariantMap somePoints();
/** The same, and arbitrary stops as an export writes them: of two decimals, translucent ones among them. */
[[nodiscard]] QVariantMap somePointsAndStops();

/** The values of @p item as the canvas item has them. */
[[nodiscard]] QPolygonF points(const QQuickItem& item);
[[nodiscard]] QGradientStops stops(const QQuickItem& item);

/** @p polygon and @p stops as QML lists. */
[[nodiscard]] QVariantList toList(const QPolygonF& polygon);
[[nodiscard]] QVariantList toList(const QGradientStops& stops);

/** Runs @p script as a handler of @p item would; false, with a message, when it fails. */
[[nodiscard]] bool run(QQuickItem* item, const QString& script);
} // namespace OutlineShape
