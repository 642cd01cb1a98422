#pragma once

#include <QColor>

class QPainter;
class QRectF;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// The ground that a screen lies on: a neutral pasteboard in the colours of the palette, the screen's edge, and a
/// checkerboard where the screen's own colour lets something show through.
class CanvasBackground
{
public:
    explicit CanvasBackground(const CanvasView* view);

    /// Below everything, in viewport pixels.
    void paintBelow(QPainter* painter) const;
    /// Above the items: fades what sticks out of the screen, which the display will cut off, and draws the edge.
    void paintAbove(QPainter* painter) const;

private:
    [[nodiscard]] QRectF screenOnView() const;
    [[nodiscard]] QColor pasteboard() const;

    const CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
