#pragma once

#include <QSizeF>

namespace Korvex::Meridane::Designer {

/// What helps to place things on a canvas. All is off unless somebody switches it on, so that scripted drags go exactly where
/// they are told.
struct CanvasAids
{
    bool snapping = false; ///< gestures snap to what is seen, and move by whole pixels
    bool grid = false; ///< draws the grid; it then is something to snap to, too
    QSizeF gridSpacing{10, 10}; ///< pixels of the screen, each more than 0
    bool guidesLocked = false; ///< guides can be neither moved nor removed with the mouse
    bool rulers = false;
    bool readout = false; ///< shows the geometry of a gesture beside the mouse

    bool operator==(const CanvasAids&) const = default;
};

} // namespace Korvex::Meridane::Designer
