#pragma once

#include <QColor>

class QPalette;

namespace Korvex::Meridane::Designer {

/// Whether \a palette is a dark theme: its windows are darker than its text.
[[nodiscard]] bool isDark(const QPalette& palette);
/// The colour of messages about refused values; legible (a contrast above 4.5) on the windows of \a palette.
[[nodiscard]] QColor errorColor(const QPalette& palette);
/// The colour of secondary text on the windows of \a palette, with a contrast above 4.5.
[[nodiscard]] QColor quietColor(const QPalette& palette);

} // namespace Korvex::Meridane::Designer
