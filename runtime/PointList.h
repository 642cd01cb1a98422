#pragma once

#include <QtCore/QVariantList>
#include <QtGui/QPolygonF>

#include <optional>

namespace Korvex::Meridane::Display {
/**
 * A finite number of a list that QML wrote. As for a property that is a number, nothing but a number is taken for one: no
 * text and no truth value.
 */
[[nodiscard]] std::optional<double> toNumber(const QVariant& value);

/** The polygon of a list of [x, y] as QML writes it; nothing when an entry is no pair of finite numbers. */
[[nodiscard]] std::optional<QPolygonF> toPolygon(const QVariantList& points);
} // namespace Korvex::Meridane::Display
