#pragma once

#include "host/core/CoreExport.h"

#include <QRect>
#include <QWidget>

namespace Korvex::Meridane::Designer {

class CanvasView;

/// A ruler along the top or the left edge of a canvas, in pixels of the screen: its ticks follow the zoom, the mouse's
/// place is marked and the selection's extent shaded. Guides are dragged out of it.
class MERIDANE_CORE_EXPORT CanvasRuler : public QWidget
{
    Q_OBJECT

public:
    /// \a orientation Horizontal: the one along the top. Owned by \a view.
    CanvasRuler(Qt::Orientation orientation, CanvasView* view);

    /// How thick rulers are, in pixels.
    [[nodiscard]] static int thickness(const QWidget* widget);
    /// The distance of the labelled ticks at \a zoom, in pixels of the screen: 1, 2 or 5 times a power of ten.
    [[nodiscard]] static double labelStep(double zoom);

public Q_SLOTS:
    /// Marks a point of the viewport.
    void showPointer(const QPointF& viewPos);
    void hidePointer();
    /// Takes over the extent of the selection.
    void updateExtent();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool isHorizontal() const { return m_orientation == Qt::Horizontal; }
    /// The part of the ruler from \a from to \a to, in pixels along it.
    [[nodiscard]] QRect strip(double from, double to) const;
    [[nodiscard]] QRect pointerStrip() const;
    void paintTicks(QPainter* painter, const QRect& exposed) const;
    void paintLabel(QPainter* painter, double at, const QString& text) const;
    void passOn(QMouseEvent* event);

    Qt::Orientation m_orientation;
    CanvasView* m_view;
    QRect m_extent; // of the selection
    double m_pointer = 0; // along the ruler
    bool m_hasPointer = false;
    bool m_dragging = false;
};

} // namespace Korvex::Meridane::Designer
