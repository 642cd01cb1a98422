#pragma once

#include <functional>

namespace Korvex::Meridane::Designer {

/// Hears how far a long work has come, \a done of \a total steps; false ends it there.
using WorkProgress = std::function<bool(int done, int total)>;

} // namespace Korvex::Meridane::Designer
