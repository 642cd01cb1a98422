#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

/// \a english (UTF-8), a text of a visual element or its editors, in the user's language.
[[nodiscard]] MERIDANE_CORE_EXPORT QString elementText(const char* english);

} // namespace Korvex::Meridane::Designer
