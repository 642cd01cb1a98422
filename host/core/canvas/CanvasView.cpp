#include "host/core/canvas/CanvasView.h"

#include "host/core/accessibility/CanvasAnnouncer.h"
#include "host/core/canvas/CanvasBackground.h"
#include "host/core/canvas/CanvasGrid.h"
#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasKeys.h"
#include "host/core/canvas/CanvasReadout.h"
#include "host/core/canvas/CanvasRuler.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ElementOutline.h"
#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GestureSnapping.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/GuideGesture.h"
#include "host/core/canvas/SelectionHandles.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

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
    , m_guides(std::make_unique<CanvasGuides>(this))
    , m_topRuler(new CanvasRuler(Qt::Horizontal, this))
    , m_leftRuler(new CanvasRuler(Qt::Vertical, this))
{
    CanvasAnnouncer::attach(this); // before anybody asks what this is
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
    connect(m_session->project(), &Project::objectMarked, this, [this](DesignerObject* object, const QString& mark) {
        if (object == m_session->currentScreen() && mark == EditorMarks::guides())
            viewport()->update();
    });
    placeRulers();
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
    m_topRuler->update();
    m_leftRuler->update();
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

void CanvasView::zoomToSelection()
{
    const CanvasScene* canvas = canvasScene();
    QRectF selected;
    const QList<QGraphicsItem*> items = canvas ? canvas->selectedItems() : QList<QGraphicsItem*>();
    for (const QGraphicsItem* graphic : items)
        selected |= graphic->sceneBoundingRect();
    if (selected.isNull())
        return;
    constexpr double Margin = 48; // screen pixels on each side
    const QSizeF room = QSizeF(viewport()->size()) - QSizeF(2 * Margin, 2 * Margin);
    const auto factor = [](double available, double wanted) { return available / std::max(wanted, 1.0); };
    setZoom(std::min(factor(room.width(), selected.width()), factor(room.height(), selected.height())));
    updateSceneRect();
    centerOn(selected.center());
}

void CanvasView::setSelectionFrame(bool on)
{
    m_selectionFrame = on;
    updateHandles();
}

void CanvasView::setAids(const CanvasAids& aids)
{
    if (aids == m_aids)
        return;
    cancelGesture();
    m_aids = aids;
    placeRulers();
    viewport()->update();
}

bool CanvasView::isGridDrawn() const
{
    return CanvasGrid(this).isDrawn();
}

void CanvasView::setOutlined(DesignerObject* element)
{
    if (element == m_outlined)
        return;
    m_outlined = element;
    updateHandles();
}

DesignerObject* CanvasView::outlined() const
{
    return m_outlined;
}

/// The rulers stand beside the viewport, in the margins that this leaves for them.
void CanvasView::placeRulers()
{
    const int margin = m_aids.rulers ? CanvasRuler::thickness(this) : 0;
    if (viewportMargins().top() != margin)
        setViewportMargins(margin, margin, 0, 0);
    m_topRuler->setVisible(m_aids.rulers);
    m_leftRuler->setVisible(m_aids.rulers);
    const QRect visible = viewport()->geometry();
    m_topRuler->setGeometry(visible.left(), visible.top() - margin, visible.width(), margin);
    m_leftRuler->setGeometry(visible.left() - margin, visible.top(), margin, visible.height());
}

void CanvasView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    placeRulers();
    updateHandles();
}

void CanvasView::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    m_topRuler->update();
    m_leftRuler->update();
    updateHandles();
}

QString CanvasView::readoutBesideMouse() const
{
    return m_gesture && m_aids.readout ? m_gesture->readout() : QString();
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

void CanvasView::drawForeground(QPainter* painter, const QRectF& rect)
{
    painter->save();
    painter->resetTransform();
    CanvasBackground(this).paintAbove(painter);
    CanvasGrid(this).paint(painter, rect);
    const auto* movedGuide = dynamic_cast<const GuideGesture*>(m_gesture.get());
    m_guides->paint(painter, movedGuide ? movedGuide->index() : -1);
    ElementOutline(this, m_outlined).paint(painter);
    SelectionHandles(this).paint(painter);
    if (m_gesture)
        m_gesture->paint(painter);
    if (m_dropSnapping)
        m_dropSnapping->paint(painter);
    CanvasReadout(this, readoutBesideMouse(), m_lastViewPos).paint(painter);
    painter->restore();
}

void CanvasView::showScreen()
{
    cancelGesture();
    leaveHandle();
    setOutlined(nullptr);
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
    QRegion now = SelectionHandles(this).region() + ElementOutline(this, m_outlined).region();
    if (m_gesture)
        now += m_gesture->paintedRegion();
    if (m_dropSnapping)
        now += m_dropSnapping->region();
    const QString text = readoutBesideMouse();
    const QRect readout = CanvasReadout(this, text, m_lastViewPos).rect().toAlignedRect();
    // It may say something else in the same place.
    if (std::exchange(m_paintedReadout, text) != text)
        viewport()->update(readout);
    now += readout;
    if (m_aids.rulers) {
        m_topRuler->updateExtent();
        m_leftRuler->updateExtent();
    }
    if (now == m_paintedHandles)
        return;
    viewport()->update(m_paintedHandles + now);
    m_paintedHandles = now;
}

} // namespace Korvex::Meridane::Designer
