#include "host/core/canvas/CanvasView.h"

#include "host/core/canvas/CanvasBackground.h"
#include "host/core/canvas/CanvasKeys.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/SelectionHandles.h"
#include "host/core/objects/Screen.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double SmallestZoom = 0.1;
constexpr double LargestZoom = 32;

} // namespace

CanvasView::CanvasView(EditSession* session, QWidget* parent)
    : QGraphicsView(parent)
    , m_session(session)
    , m_keys(std::make_unique<CanvasKeys>(this))
{
    // The scene gets neither mouse nor keyboard: what they mean is decided here.
    setInteractive(false);
    setDragMode(NoDrag);
    setFrameShape(NoFrame);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(AnchorViewCenter);
    // Items repaint themselves; what this view draws on top of them is followed by updateHandles().
    setViewportUpdateMode(SmartViewportUpdate);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAccessibleName(Common::LocalizationHelper::coreString(QStringLiteral("Canvas")));
    viewport()->setMouseTracking(true);
    viewport()->setAcceptDrops(true);
    connect(m_session, &EditSession::currentScreenChanged, this, &CanvasView::showScreen);
    connect(m_session, &EditSession::selectionChanged, this, &CanvasView::showSelection);
    showScreen();
}

CanvasView::~CanvasView()
{
    cancelGesture();
}

CanvasScene* CanvasView::canvasScene() const
{
    return qobject_cast<CanvasScene*>(scene());
}

double CanvasView::zoom() const
{
    return transform().m11();
}

void CanvasView::setZoom(double zoom)
{
    zoomAt(zoom, viewport()->rect().center());
}

void CanvasView::zoomAt(double zoom, const QPoint& viewPos)
{
    const double wanted = std::clamp(zoom, SmallestZoom, LargestZoom);
    if (wanted == this->zoom())
        return;
    const QPointF anchor = viewportTransform().inverted().map(QPointF(viewPos));
    setTransform(QTransform::fromScale(wanted, wanted));
    if (CanvasScene* canvas = canvasScene())
        canvas->setViewScale(wanted);
    updateSceneRect();
    const QPointF moved = viewportTransform().map(anchor) - QPointF(viewPos);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    viewport()->update();
    Q_EMIT zoomChanged(wanted);
}

void CanvasView::zoomToFit()
{
    const CanvasScene* canvas = canvasScene();
    if (!canvas)
        return;
    constexpr double Margin = 24; // screen pixels on each side
    const QSizeF screen = canvas->sceneRect().size();
    const QSizeF room = QSizeF(viewport()->size()) - QSizeF(2 * Margin, 2 * Margin);
    setZoom(std::min(room.width() / screen.width(), room.height() / screen.height()));
    centerOn(canvas->sceneRect().center());
}

QString CanvasView::elementMimeType()
{
    return QStringLiteral("application/x-meridane-element");
}

void CanvasView::paintEvent(QPaintEvent* event)
{
    QGraphicsView::paintEvent(event);
    // Undo and editors move items without a gesture: their handles follow with the next frame.
    updateHandles();
}

void CanvasView::drawBackground(QPainter* painter, const QRectF&)
{
    painter->save();
    painter->resetTransform();
    CanvasBackground(this).paintBelow(painter);
    painter->restore();
}

void CanvasView::drawForeground(QPainter* painter, const QRectF&)
{
    painter->save();
    painter->resetTransform();
    CanvasBackground(this).paintAbove(painter);
    SelectionHandles(this).paint(painter);
    if (m_gesture)
        m_gesture->paint(painter);
    painter->restore();
}

void CanvasView::showScreen()
{
    cancelGesture();
    leaveHandle();
    CanvasScene* canvas = m_session->scene(m_session->currentScreen());
    if (scene() == canvas)
        return;
    if (scene())
        scene()->disconnect(this);
    setScene(canvas);
    if (!canvas)
        return;
    canvas->setViewScale(zoom());
    connect(canvas, &QGraphicsScene::sceneRectChanged, this, [this] {
        updateSceneRect();
        viewport()->update();
    });
    setSceneRect({});
    updateSceneRect();
    centerOn(canvas->sceneRect().center());
    viewport()->update();
}

/// Lets the user scroll one screen beyond the screen in each direction, and to whatever is selected.
void CanvasView::updateSceneRect()
{
    const CanvasScene* canvas = canvasScene();
    if (!canvas)
        return;
    constexpr double Least = 200;
    const QRectF screen = canvas->sceneRect();
    const double beside = std::max(screen.width(), Least);
    const double above = std::max(screen.height(), Least);
    QRectF reachable = screen.adjusted(-beside, -above, beside, above);
    constexpr int MostLookedAt = 100;
    // Scroll bars have whole numbers, of which the largest zoom takes its share.
    constexpr double Furthest = 1e6;
    const QRectF scrollable = screen.adjusted(-Furthest, -Furthest, Furthest, Furthest);
    const QList<QGraphicsItem*> selected = canvas->selectedItems();
    if (selected.size() <= MostLookedAt) {
        for (const QGraphicsItem* graphic : selected)
            reachable |= graphic->sceneBoundingRect() & scrollable;
    }
    if (reachable != sceneRect())
        setSceneRect(reachable);
}

void CanvasView::showSelection()
{
    leaveHandle();
    if (!m_gesture)
        updateSceneRect();
    updateHandles();
}

/// Asks for repaintHandles() once the scene has taken note of the items that moved. A paint that came in between would
/// make it forget where they stood, and their old pictures would stay.
void CanvasView::updateHandles()
{
    if (!std::exchange(m_handlesPending, true))
        QMetaObject::invokeMethod(this, &CanvasView::repaintHandles, Qt::QueuedConnection);
}

/// Repaints what is drawn on top of the items where it was and where it is.
void CanvasView::repaintHandles()
{
    m_handlesPending = false;
    QRegion now = SelectionHandles(this).region();
    if (m_gesture)
        now += m_gesture->paintedRect();
    if (now == m_paintedHandles)
        return;
    viewport()->update(m_paintedHandles + now);
    m_paintedHandles = now;
}

} // namespace Korvex::Meridane::Designer
