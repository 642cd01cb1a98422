#pragma once

#include "host/core/CoreExport.h"

#include <QColor>

class QPalette;

namespace Korvex::Meridane::Designer {

/// Whether \a palette is a dark theme: its windows are darker than its text.
[[nodiscard]] MERIDANE_CORE_EXPORT bool isDark(const QPalette& palette);
/// The colour of messages about refused values; legible (a contrast above 4.5) on the windows of \a palette.
[[nodiscard]] MERIDANE_CORE_EXPORT QColor errorColor(const QPalette& palette);
/// The colour of the mark on values that differ from their defaults, with a contrast above 4.5 on the windows of
/// \a palette.
[[nodiscard]] MERIDANE_CORE_EXPORT QColor markColor(const QPalette& palette);
/// The colour of secondary text on the windows of \a palette, with a contrast above 4.5.
[[nodiscard]] MERIDANE_CORE_EXPORT QColor quietColor(const QPalette& palette);

} // namespace Korvex::Meridane::Designer
