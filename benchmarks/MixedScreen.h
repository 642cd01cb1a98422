#pragma once

#include <memory>

namespace Korvex::Meridane::Designer {
class EditSession;
}

namespace Korvex::Meridane::Benchmarks {

/// A session with one screen of 1280 × 800 and \a count elements as a busy panel has them: mostly rectangles and texts, some ellipses,
/// polygons, lines and gradients, a few of them large, some rotated, some in groups. The same at every call.
std::unique_ptr<Designer::EditSession> makeMixedScreen(int count);

} // namespace Korvex::Meridane::Benchmarks
