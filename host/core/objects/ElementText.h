#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

/// \a english (UTF-8), a text of a visual element or its editors, in the user's language.
[[nodiscard]] MERIDANE_CORE_EXPORT QString elementText(const char* english);
/// The text for \a count things; the English forms \a singular and \a plural (UTF-8) both have `%n` for the number.
[[nodiscard]] MERIDANE_CORE_EXPORT QString elementText(const char* singular, const char* plural, int count);

} // namespace Korvex::Meridane::Designer
