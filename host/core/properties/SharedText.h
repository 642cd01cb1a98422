#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

/// A copy of \a text that shares its characters with every other one made here: ids, labels and defaults are the same in
/// all objects of a class, and a project may hold ten thousand of them. Kept to the end of the program. GUI thread only.
[[nodiscard]] QString sharedText(const QString& text);

} // namespace Korvex::Meridane::Designer
