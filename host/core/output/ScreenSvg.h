#pragma once

#include "host/core/canvas/ScreenRenderer.h"

#include <QByteArray>

namespace Korvex::Meridane::Designer {

/**
 * A screen as a drawing (SVG), a pixel of the display being a unit.
 *
 * Each element is drawn by itself, looked at, and compared with its picture: what the format cannot say (conical
 * gradients, text cut off by its box, masks) becomes an embedded picture of three pixels for one. Letters are outlines, so
 * that the drawing is the same wherever it is opened.
 */
class MERIDANE_CORE_EXPORT ScreenSvg
{
public:
    ScreenSvg() = delete;

    /// options.scale enlarges the width and height that the drawing asks for. Empty when \a progress has ended it, or
    /// when there is nothing to be drawn.
    [[nodiscard]] static QByteArray draw(CanvasScene* scene, const RenderOptions& options,
                                         const WorkProgress& progress = {});
};

} // namespace Korvex::Meridane::Designer
