#pragma once

#include "host/core/canvas/CanvasAids.h"

namespace Korvex::Meridane::Designer {

/// What the user has chosen of the helps on the canvas, kept in the settings of the application.
class CanvasSettings
{
public:
    CanvasSettings() = delete;

    /// Snapping, rulers and the readout are on unless the user has switched them off.
    [[nodiscard]] static CanvasAids load();
    static void store(const CanvasAids& aids);
};

} // namespace Korvex::Meridane::Designer
