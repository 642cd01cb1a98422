#pragma once

#include <QFont>

#include <optional>

namespace Korvex::Meridane::Designer {

/**
 * The font that a key makes of \a font: with Alt alone B bold, I italic, S strike-out, U underline, O overline, - and = a
 * pixel smaller or larger; with Alt on the keypad - and +. A font in points starts from its size in pixels.
 *
 * Sizes by key are 6 to 999 pixels. Nothing for any other key, and for a size key whose limit is reached.
 */
[[nodiscard]] std::optional<QFont> fontAfterKey(const QFont& font, int key, Qt::KeyboardModifiers modifiers);

} // namespace Korvex::Meridane::Designer
