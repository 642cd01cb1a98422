#pragma once

#include <QtCore/QVariantList>
#include <QtGui/QPolygonF>

#include <optional>

namespace Korvex::Meridane::Display {
/** The polygon of a list of [x, y] as QML writes it; nothing when an entry is no pair of finite numbers. */
[[nodiscard]] std::optional<QPolygonF> toPolygon(const QVariantList& points);
} // namespace Korvex::Meridane::Display
