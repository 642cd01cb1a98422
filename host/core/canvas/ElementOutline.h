#pragma once

#include <QPolygonF>
#include <QRegion>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;

/// The thin outline around the element that a click would select.
class ElementOutline
{
public:
    /// \a element null: nothing is drawn.
    ElementOutline(const CanvasView* view, const DesignerObject* element);

    void paint(QPainter* painter) const;
    /// The part of the viewport that paint() draws in.
    [[nodiscard]] QRegion region() const;

private:
    const CanvasView* m_view;
    QPolygonF m_corners; ///< of the outer rectangle, on the viewport; empty for none
    bool m_upright = true;
};

} // namespace Korvex::Meridane::Designer
