#pragma once

#include "host/core/CoreExport.h"

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/**
 * Whether the value of \a property is the one that it was declared with.
 *
 * A size that is not stored follows from properties that are: it stands at its default as long as all numbers, sizes and
 * points that are stored do. What the canvas item makes of those may differ from what was declared: it rounds, and adds a
 * border, which is no choice of a size.
 */
[[nodiscard]] MERIDANE_CORE_EXPORT bool hasDefaultValue(const DesignerProperty& property);

/// Whether \a property is such a size.
[[nodiscard]] MERIDANE_CORE_EXPORT bool isDerivedSize(const DesignerProperty& property);

} // namespace Korvex::Meridane::Designer
