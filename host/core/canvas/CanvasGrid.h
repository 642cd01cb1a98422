#pragma once

class QPainter;
class QRectF;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// The grid of the canvas: thin lines over the screen, from its top left corner.
class CanvasGrid
{
public:
    explicit CanvasGrid(const CanvasView* view)
        : m_view(view)
    {}

    /// Whether the grid is switched on and its cells are large enough on the screen to be told apart.
    [[nodiscard]] bool isDrawn() const;
    /// Draws what lies in \a exposed (scene coordinates), in viewport pixels.
    void paint(QPainter* painter, const QRectF& exposed) const;

private:
    const CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
