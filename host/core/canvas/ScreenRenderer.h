#pragma once

#include "host/core/CoreExport.h"

#include <QImage>

namespace Korvex::Meridane::Designer {

class CanvasScene;

/// Paints a screen as it stands on the canvas, without handles and selection.
class MERIDANE_CORE_EXPORT ScreenRenderer
{
public:
    /// \a scale: image pixels for one pixel of the display. A null image when that many pixels cannot be had.
    [[nodiscard]] static QImage render(CanvasScene* scene, double scale = 1);
};

} // namespace Korvex::Meridane::Designer
