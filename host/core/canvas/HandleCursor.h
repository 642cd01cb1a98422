#pragma once

#include <QCursor>

namespace Korvex::Meridane::Designer {

class CanvasView;
struct HandleHit;

/// What the mouse looks like over a handle: the arrows of a frame handle point where it can be dragged to, also where
/// the element stands in something that is rotated.
[[nodiscard]] QCursor handleCursor(const CanvasView* view, const HandleHit& hit);

} // namespace Korvex::Meridane::Designer
