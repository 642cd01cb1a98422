#pragma once

#include "host/core/canvas/CanvasAids.h"
#include "host/core/commands/ChangeRecording.h"

#include <QGraphicsView>
#include <QPointer>

#include <memory>

namespace Korvex::Meridane::Designer {

class CanvasGuides;
class CanvasKeys;
class CanvasRuler;
class CanvasScene;
class DesignerObject;
class EditSession;
class Gesture;
class GestureSnapping;
struct CanvasPointer;
struct HandleHit;

/**
 * The view of the canvas: owns the mouse and the keyboard on it.
 *
 * A press asks the selected items for a point handle, then for a frame handle, then for the rotation handle; else it
 * selects and moves, or spans a selection rectangle on empty ground. The running Gesture changes only items; its release
 * makes one undo step. Escape and a lost mouse grab take it back. Handles are drawn in the foreground at constant size.
 */
class MERIDANE_CORE_EXPORT CanvasView : public QGraphicsView
{
    Q_OBJECT

public:
    /// \a session outlives the view.
    explicit CanvasView(EditSession* session, QWidget* parent = nullptr);
    ~CanvasView() override;

    [[nodiscard]] EditSession* session() const { return m_session; }
    /// The scene of the session's current screen, or null.
    [[nodiscard]] CanvasScene* canvasScene() const;

    /// Screen pixels for one pixel of the display, 0.1 to 32.
    [[nodiscard]] double zoom() const;
    void setZoom(double zoom);
    /// Zooms so that the point under \a viewPos stays where it is.
    void zoomAt(double zoom, const QPoint& viewPos);
    void zoomToFit();
    /// Zooms so that the selected elements fill the view, or does nothing without any.
    void zoomToSelection();

    /// What helps to place things. Everything is off in a new view.
    [[nodiscard]] const CanvasAids& aids() const { return m_aids; }
    void setAids(const CanvasAids& aids);
    /// Whether the grid is on and coarse enough to be drawn at this zoom.
    [[nodiscard]] bool isGridDrawn() const;
    /// The guides of the screen.
    [[nodiscard]] CanvasGuides* guides() const { return m_guides.get(); }
    /// Begins to drag a new guide out of its ruler; \a viewPos: where the mouse button went down.
    void beginGuide(Qt::Orientation orientation, const QPointF& viewPos);

    /// Whether several selected elements have one frame with handles around all of them, and none of their own. They have
    /// in a new view.
    [[nodiscard]] bool hasSelectionFrame() const { return m_selectionFrame; }
    void setSelectionFrame(bool on);

    /// Draws an outline around \a element, as around the one under the mouse, until the mouse moves on; null: none.
    void setOutlined(DesignerObject* element);
    [[nodiscard]] DesignerObject* outlined() const;

    /// The element class that the next click or drag on the canvas places; empty for none.
    [[nodiscard]] const QString& placementClass() const { return m_placementClass; }
    void setPlacementClass(const QString& className);

    [[nodiscard]] bool isGestureRunning() const { return m_gesture != nullptr; }
    /// What the running gesture would write if it ended now (see Gesture::pendingChanges()); empty without one.
    [[nodiscard]] QVector<PropertyChange> pendingChanges() const;
    /// Takes the running gesture back.
    void cancelGesture();

    /// The MIME type of an element class dragged from the palette; its data is the class name in UTF-8.
    [[nodiscard]] static QString elementMimeType();

Q_SIGNALS:
    void zoomChanged(double zoom);
    /// The mouse position on the screen, in the display's pixels.
    void pointerMoved(const QPointF& scenePos);
    /// Geometry while a gesture runs ("x 10, y 20, 100 × 75"), empty when it has ended.
    void readoutChanged(const QString& text);
    /// The running gesture has followed the mouse, or has ended: pendingChanges() may have changed.
    void gestureMoved();
    void placementFinished();
    /// The guide at \a index was double-clicked: its position is to be edited.
    void guideActivated(int index);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

private:
    void showScreen();
    void updateSceneRect();
    void showSelection();
    [[nodiscard]] CanvasPointer pointerAt(const QPointF& viewPos, Qt::KeyboardModifiers modifiers) const;
    [[nodiscard]] std::unique_ptr<Gesture> gestureForPress(const CanvasPointer& pointer);
    [[nodiscard]] std::unique_ptr<Gesture> selectingGesture(const CanvasPointer& pointer);
    void startGesture(std::unique_ptr<Gesture> gesture, Qt::MouseButton button);
    void followModifier(const QKeyEvent* event, bool down);
    void moveGesture(const CanvasPointer& pointer);
    std::unique_ptr<Gesture> endGesture();
    void hover(const QPointF& scenePos, const QPointF& viewPos);
    [[nodiscard]] int guideAt(const QPointF& viewPos) const;
    void leaveHandle();
    void placeRulers();
    [[nodiscard]] QString readoutBesideMouse() const;
    void updateCursor(const HandleHit* hit);
    void updateHandles();
    void repaintHandles();
    [[nodiscard]] bool acceptsDrop(const QDropEvent* event) const;
    [[nodiscard]] QPointF dropPlace(const QDropEvent* event);

    EditSession* m_session;
    QString m_placementClass;
    std::unique_ptr<Gesture> m_gesture;
    std::unique_ptr<CanvasKeys> m_keys;
    std::unique_ptr<CanvasGuides> m_guides;
    std::unique_ptr<GestureSnapping> m_dropSnapping; // while an element is dragged in from the palette
    CanvasAids m_aids;
    bool m_selectionFrame = true;
    CanvasRuler* m_topRuler;
    CanvasRuler* m_leftRuler;
    QPointer<DesignerObject> m_hovered; // whose handle is under the mouse
    QPointer<DesignerObject> m_outlined; // what a click would select
    QRegion m_paintedHandles; // where handles and the gesture's own marks stand on the viewport
    QString m_paintedReadout;
    bool m_handlesPending = false;
    QPointF m_lastViewPos;
    Qt::MouseButton m_gestureButton = Qt::NoButton;
    bool m_spaceHeld = false;
};

} // namespace Korvex::Meridane::Designer
