#pragma once

#include "host/core/CoreExport.h"

#include <QSizeF>

#include <optional>

namespace Korvex::Meridane::Designer {

/**
 * The outer size that an element takes on when its outer size is changed from \a before to \a wanted, in pixels.
 *
 * A dimension that was changed is raised to \a smallest. With \a ratio above 0 (width / height) the dimension that was
 * not changed, or the height when both were, follows the other one; where it would fall below \a smallest it becomes
 * that and the other one follows it. Without a ratio a dimension that was not changed is taken as it stands, also below
 * \a smallest. Nothing when neither changed, or when a dimension is not a number.
 */
[[nodiscard]] MERIDANE_CORE_EXPORT std::optional<QSizeF> reactToBoundingSize(const QSizeF& before, const QSizeF& wanted,
                                                                             double smallest, double ratio);

} // namespace Korvex::Meridane::Designer
