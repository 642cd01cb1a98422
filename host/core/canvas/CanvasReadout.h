#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// The small label beside the mouse that tells position and size while a gesture runs.
class CanvasReadout
{
public:
    /// \a mouse: in viewport pixels.
    CanvasReadout(const CanvasView* view, const QString& text, const QPointF& mouse)
        : m_view(view)
        , m_text(text)
        , m_mouse(mouse)
    {}

    /// Where the label stands on the viewport: below the mouse, or above where there is no room. Empty without a text.
    [[nodiscard]] QRectF rect() const;
    void paint(QPainter* painter) const;

private:
    const CanvasView* m_view;
    QString m_text;
    QPointF m_mouse;
};

} // namespace Korvex::Meridane::Designer
