#pragma once

#include "host/core/CoreExport.h"
#include "host/core/output/WorkProgress.h"

#include <QImage>
#include <QList>

class QGraphicsItem;
class QPainter;
class QTransform;

namespace Korvex::Meridane::Designer {

class CanvasScene;
class DesignerObject;

/// What a picture of a screen shows.
struct RenderOptions
{
    double scale = 1; ///< image pixels for one pixel of the display
    bool ground = true; ///< with the screen's colour; else what no element covers is transparent
    QList<DesignerObject*> only; ///< these elements alone, with what they hold, and no ground; empty: the whole screen
};

/// Paints a screen as it stands on the canvas, without handles and selection. Elements that only the canvas hides are
/// painted too.
class MERIDANE_CORE_EXPORT ScreenRenderer
{
public:
    ScreenRenderer() = delete;

    /// \a scale: image pixels for one pixel of the display. A null image when that many pixels cannot be had.
    [[nodiscard]] static QImage render(CanvasScene* scene, double scale = 1);
    /// The same with options; a null image also when \a progress has ended it.
    [[nodiscard]] static QImage render(CanvasScene* scene, const RenderOptions& options,
                                       const WorkProgress& progress = {});

    /// The part of the scene that a picture shows, in whole pixels of the display: the screen, or what the elements of
    /// options.only take with their borders.
    [[nodiscard]] static QRectF area(CanvasScene* scene, const RenderOptions& options);
    /// The items that a picture shows, back to front.
    [[nodiscard]] static QList<QGraphicsItem*> items(CanvasScene* scene, const RenderOptions& options);
    /// Paints one item as the view does, but never as selected; \a fromScene leads from the scene to the device.
    static void paintItem(QGraphicsItem* graphic, const QTransform& fromScene, QPainter* painter);
};

} // namespace Korvex::Meridane::Designer
