#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// The actions that change how the canvas is seen: zoom, and the colours of the window.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    explicit ViewActions(QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// What ends the menu: the colours of the window.
    void addEndTo(QMenu* menu);
    /// The canvas that the actions work on; null: none.
    void setCanvas(CanvasView* canvas);

    [[nodiscard]] QAction* zoomInAction() const { return m_zoomIn; }
    [[nodiscard]] QAction* zoomOutAction() const { return m_zoomOut; }
    [[nodiscard]] QAction* fitAction() const { return m_fit; }

    /// The next zoom of a fixed ladder above (\a steps 1) or below (-1) \a zoom.
    [[nodiscard]] static double nextZoom(double zoom, int steps);

public Q_SLOTS:
    void setZoom(double zoom);
    void fit();
    /// The whole screen at its actual size, or smaller where that does not fit.
    void showWhole();

private:
    void update();

    QPointer<CanvasView> m_canvas;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
    QAction* m_actual;
    QAction* m_fit;
};

} // namespace Korvex::Meridane::Designer
