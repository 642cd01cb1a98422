#pragma once

#include "host/core/CoreExport.h"

#include <QPolygonF>
#include <QSizeF>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/**
 * By which factors (x as width, y as height) an outline is scaled when its outer size changes from \a before to \a wanted,
 * in pixels.
 *
 * Without a ratio each dimension that changed is scaled on its own. With \a ratio (width / height) above 0 both are scaled
 * by one factor: that of the width, or of the height where only that changed. When the other side would thereby fall
 * below 1 pixel at that ratio, nothing is given; except that where both sides changed the height then decides, if the
 * width it asks for is at least 1. A dimension that is not above 0 cannot be scaled and keeps the factor 1; one that is
 * asked not to be above 0 gives nothing. Nothing, too, when neither changed.
 */
[[nodiscard]] MERIDANE_CORE_EXPORT std::optional<QSizeF> outlineFactors(const QSizeF& before, const QSizeF& wanted,
                                                                        double ratio);

/// \a outline scaled about its origin by \a factors, without the noise of the multiplication. Nothing where a point would
/// leave all numbers, or a dimension would vanish from which no factor leads back.
[[nodiscard]] MERIDANE_CORE_EXPORT std::optional<QPolygonF> scaledOutline(const QPolygonF& outline,
                                                                          const QSizeF& factors);

/**
 * Lets the "points" of \a element, whose canvas item is a GraphicsOutline, follow its new \a boundingSize, which was
 * \a oldValue before; the top left corner of the outline stays where it is. The new value itself stays as it was set; one
 * for which outlineFactors() or scaledOutline() give nothing is taken back. Changes nothing, with a line in the debug
 * output, when neither dimension changed, and while the item itself changes the size.
 */
MERIDANE_CORE_EXPORT void followBoundingSizeWithPoints(DesignerObject* element, const DesignerProperty* boundingSize,
                                                       const QString& oldValue);

} // namespace Korvex::Meridane::Designer
