#pragma once

#include "tests/runtime/DisplayTypeTest.h"

#include <QtGui/QColor>
#include <QtGui/QPen>

/** What the shapes with a filling and a border have in common. */
namespace BorderedShape {
/** The rows of "color", "borderWidth" and "borderColor" for the table of a type called @p name. */
[[nodiscard]] DisplayType type(const QString& name);

/** Arbitrary values of these three, translucent and invisible colours among them; within a property test only. */
[[nodiscard]] QVariantMap someValues();

/** The pen and the colour of @p item as the canvas item has them. */
[[nodiscard]] QPen pen(const QQuickItem& item);
[[nodiscard]] QColor color(const QQuickItem& item);

/** The rows of a content size that is set freely: width and height. */
void addSize(DisplayType* type);
/** An arbitrary size; within a property test only. */
[[nodiscard]] QVariantMap someSize();
} // namespace BorderedShape
