#pragma once

#include "host/core/CoreExport.h"

#include <QSizeF>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

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

/**
 * Lets the "size" of \a element follow its new \a boundingSize, which was \a oldValue before: the outer size that
 * reactToBoundingSize() finds with the element's "keepRatio", less \a border pixels in each direction. Changes nothing,
 * with a line in the debug output, when neither dimension changed, or when an absurd ratio takes one beyond all numbers.
 */
MERIDANE_CORE_EXPORT void followBoundingSize(DesignerObject* element, const DesignerProperty* boundingSize,
                                             const QString& oldValue, double border, double smallest);

} // namespace Korvex::Meridane::Designer
