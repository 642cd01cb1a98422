#pragma once

#include "host/core/CoreExport.h"

#include <QSizeF>

/// The ratio lock of elements: the ratio is width / height of the outer size, and 0 means that it is free.
namespace Korvex::Meridane::Designer {

class DesignerObject;

/// The ratio that \a object keeps: the value of its property whose editor is "KeepRatioEditor". 0 when there is none, or
/// when its value does not convert or is not above 0.
[[nodiscard]] MERIDANE_CORE_EXPORT double keptRatio(const DesignerObject* object);

/// Width / height of the present outer size ("boundingSize"); 0 when there is none or one side is not above 0.
[[nodiscard]] MERIDANE_CORE_EXPORT double outerRatio(const DesignerObject* object);

/**
 * \a wanted with its dimensions brought to \a ratio: the one that does not differ from \a present follows the other; the
 * height follows when both differ. Neither becomes smaller than \a minimum. Rounded to 6 decimals, as derived outer
 * sizes are. \a wanted itself when the ratio is not above 0 or nothing differs.
 */
[[nodiscard]] MERIDANE_CORE_EXPORT QSizeF sizeCompletedToRatio(const QSizeF& present, const QSizeF& wanted,
                                                               double ratio, const QSizeF& minimum);

} // namespace Korvex::Meridane::Designer
