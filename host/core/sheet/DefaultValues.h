#pragma once

#include "host/core/CoreExport.h"

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/**
 * Whether the value of \a property is the one that it was declared with.
 *
 * A size that is not stored follows from properties that are: it stands at its default as long as all numbers, sizes and
 * points that are stored do. What the canvas item makes of those may differ a little from what was declared.
 */
[[nodiscard]] MERIDANE_CORE_EXPORT bool hasDefaultValue(const DesignerProperty& property);

} // namespace Korvex::Meridane::Designer
