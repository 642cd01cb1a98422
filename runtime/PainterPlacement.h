#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QTransform>

namespace Korvex::Meridane::Display {
/** Where the painted child of a display item lies in that item, and how the item's coordinates map into the child. */
struct PainterPlacement
{
    /** Top left corner of the child, in item coordinates. */
    QPointF position;
    /** Size of the child: pixels of the scene when turnedToScene, else of the item. */
    QSizeF size;
    /** Degrees, clockwise, by which the child is turned about its top left corner. */
    double rotation = 0;
    /** Factor by which the child is scaled about its top left corner. */
    double scale = 1;
    /** Item coordinates to coordinates of the child. */
    QTransform contentToPainter;
    /** True when the child's pixels are those of the screen; false when it is drawn through a skewed transformation. */
    bool turnedToScene = true;

    friend bool operator==(const PainterPlacement&, const PainterPlacement&) = default;
};

/**
 * The placement that makes an item painted in its own coordinates look as if it were painted straight onto the screen.
 *
 * The child covers @p outer rounded out to whole pixels of the screen, and it undoes the rotation and the scale of the
 * item: its pixels are the screen's, and the fraction by which the item misses them is part of contentToPainter. Of an
 * outline much larger than the window only what the window can show is covered. An item whose transformation is more
 * than moving, turning and even scaling is covered in its own coordinates instead.
 *
 * @param outer the rectangle that the item paints into, in its coordinates; an empty or infinite one gives an empty size
 * @param itemToScene the transformation from the item to the scene
 * @param pixelRatio pixels of the screen per unit of the scene
 * @param window the size of the window, in units of the scene
 */
[[nodiscard]] PainterPlacement placePainter(const QRectF& outer, const QTransform& itemToScene, double pixelRatio,
                                            const QSizeF& window);
} // namespace Korvex::Meridane::Display
