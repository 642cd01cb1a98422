#include "tests/canvas/CanvasFixture.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// The view itself: zoom, scrolling, the ground around the screen, cursors and tooltips.
class tst_CanvasView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_canvas = std::make_unique<CanvasFixture>(); }
    void cleanup() { m_canvas.reset(); }

    void zoomHasLimitsAndIsAnnounced()
    {
        QSignalSpy zooms(m_canvas->view.get(), &CanvasView::zoomChanged);
        m_canvas->view->setZoom(1000);
        QCOMPARE(m_canvas->view->zoom(), 32.0);
        m_canvas->view->setZoom(0.001);
        QCOMPARE(m_canvas->view->zoom(), 0.1);
        m_canvas->view->setZoom(0.1);
        QCOMPARE(zooms.size(), 2);
        QCOMPARE(m_canvas->scene()->viewScale(), 0.1);
    }

    void thePointUnderTheMouseStays()
    {
        const QPoint at(500, 350);
        const QPointF before = m_canvas->view->viewportTransform().inverted().map(QPointF(at));
        for (const double zoom : {2.0, 7.5, 3.0, 1.0}) {
            m_canvas->view->zoomAt(zoom, at);
            const QPointF now = m_canvas->view->viewportTransform().inverted().map(QPointF(at));
            QVERIFY2((now - before).manhattanLength() * zoom <= 2, qPrintable(QString::number(zoom)));
        }
    }

    void ctrlAndWheelZooms()
    {
        for (int i = 0; i < 4; ++i)
            wheel(120, Qt::ControlModifier);
        QCOMPARE(m_canvas->view->zoom(), 2.0);
        for (int i = 0; i < 8; ++i)
            wheel(-120, Qt::ControlModifier);
        QCOMPARE(m_canvas->view->zoom(), 0.5);
    }

    void theWheelScrolls()
    {
        m_canvas->view->setZoom(4);
        const int before = m_canvas->view->verticalScrollBar()->value();
        wheel(-120, Qt::NoModifier);
        QVERIFY(m_canvas->view->verticalScrollBar()->value() > before);
        QCOMPARE(m_canvas->view->zoom(), 4.0);
    }

    void theWholeScreenFits()
    {
        m_canvas->view->zoomToFit();
        const QRectF shown = m_canvas->view->viewportTransform().mapRect(m_canvas->scene()->sceneRect());
        QVERIFY(QRectF(m_canvas->view->viewport()->rect()).contains(shown));
        QVERIFY(shown.width() > 0.9 * m_canvas->view->viewport()->width());
        QVERIFY((shown.center() - QRectF(m_canvas->view->viewport()->rect()).center()).manhattanLength() <= 3);
    }

    void theMiddleButtonAndSpacePan()
    {
        const auto origin = [this] { return m_canvas->view->viewportTransform().map(QPointF(0, 0)); };
        const QPointF before = origin();
        panFrom(Qt::MiddleButton);
        QCOMPARE(origin(), before + QPointF(-60, -40));
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QApplication::sendEvent(m_canvas->view.get(), &space);
        panFrom(Qt::LeftButton);
        QCOMPARE(origin(), before + QPointF(-120, -80));
        QVERIFY(!m_canvas->stack()->isBlocked());
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::OpenHandCursor);
        QKeyEvent letGo(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
        QApplication::sendEvent(m_canvas->view.get(), &letGo);
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::ArrowCursor);
    }

    void theScreensEdgeStandsOutFromTheGround()
    {
        for (const QColor& window : {QColor(240, 240, 240), QColor(40, 40, 44)}) {
            QPalette palette = m_canvas->view->palette();
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, window.lightness() > 128 ? Qt::black : Qt::white);
            m_canvas->view->setPalette(palette);
            const QImage image = m_canvas->view->grab().toImage();
            const QPoint corner = m_canvas->view->viewportTransform().map(QPointF(0, 0)).toPoint();
            const QColor ground = image.pixelColor(corner + QPoint(-10, 100));
            const QColor edge = image.pixelColor(corner + QPoint(-1, 100));
            QCOMPARE(image.pixelColor(corner + QPoint(10, 100)), QColor(Qt::white));
            QVERIFY(std::abs(ground.lightness() - edge.lightness()) > 40);
            QVERIFY(std::abs(ground.lightness() - window.lightness()) > 10);
        }
    }

    void aTransparentScreenShowsACheckerboard()
    {
        m_canvas->set(m_canvas->screen, "color", QStringLiteral("#00ffffff"));
        const QImage image = m_canvas->view->grab().toImage();
        const QPoint corner = m_canvas->view->viewportTransform().map(QPointF(0, 0)).toPoint();
        QVERIFY(image.pixelColor(corner + QPoint(4, 4)) != image.pixelColor(corner + QPoint(12, 4)));
        QCOMPARE(image.pixelColor(corner + QPoint(4, 4)), image.pixelColor(corner + QPoint(12, 12)));
    }

    void whatSticksOutOfTheScreenIsFaded()
    {
        m_canvas->addRectangle(QRectF(-30, 100, 60, 60));
        const QImage image = m_canvas->view->grab().toImage();
        const QPoint corner = m_canvas->view->viewportTransform().map(QPointF(0, 0)).toPoint();
        QCOMPARE(image.pixelColor(corner + QPoint(20, 130)), QColor(248, 151, 29));
        QVERIFY(image.pixelColor(corner + QPoint(-20, 130)) != QColor(248, 151, 29));
    }

    void overAHandleTheCursorAndTheTooltipTell()
    {
        DesignerObject* rectangle = m_canvas->addRectangle(QRectF(100, 100, 100, 80));
        m_canvas->select({rectangle});
        m_canvas->move({200, 180});
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::SizeFDiagCursor);
        QCOMPARE(toolTipAt({200, 180}), QStringLiteral("Drag this point to resize"));
        m_canvas->move({100, 140});
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::SizeHorCursor);
        m_canvas->move({150, 78});
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::PointingHandCursor);
        m_canvas->move({150, 140}); // it can be moved there
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::SizeAllCursor);
        m_canvas->move({250, 250});
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::ArrowCursor);
        m_canvas->move({150, 140});
        QCOMPARE(toolTipAt({150, 140}), QStringLiteral("Rectangle: rectangle1"));
        QCOMPARE(m_canvas->graphic(rectangle)->toolTip(), QStringLiteral("Rectangle: rectangle1"));
    }

    void thePointerIsReportedInPixelsOfTheDisplay()
    {
        QSignalSpy moves(m_canvas->view.get(), &CanvasView::pointerMoved);
        m_canvas->view->setZoom(4);
        m_canvas->move({120.25, 80.5});
        QCOMPARE(moves.last().first().toPointF(), QPointF(120.25, 80.5));
    }

    void anotherScreenIsShownWithItsOwnScene()
    {
        const CanvasScene* first = m_canvas->scene();
        m_canvas->view->setZoom(2);
        Screen* other = nullptr;
        m_canvas->session->addScreen(QStringLiteral("other"), QSizeF(320, 240), &other);
        QVERIFY(m_canvas->scene() != first);
        QCOMPARE(m_canvas->scene()->screen(), other);
        QCOMPARE(m_canvas->scene()->viewScale(), 2.0);
        m_canvas->session->removeScreen(other);
        QCOMPARE(m_canvas->scene(), first);
    }

private:
    void wheel(int angle, Qt::KeyboardModifiers modifiers)
    {
        const QPointF at(400, 300);
        QWheelEvent event(at, m_canvas->view->viewport()->mapToGlobal(at), {}, QPoint(0, angle), Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_canvas->view->viewport(), &event);
    }

    void panFrom(Qt::MouseButton button)
    {
        const auto send = [&](QEvent::Type type, const QPointF& at, Qt::MouseButton changed, Qt::MouseButtons held) {
            QMouseEvent event(type, at, m_canvas->view->viewport()->mapToGlobal(at), changed, held, Qt::NoModifier);
            QApplication::sendEvent(m_canvas->view->viewport(), &event);
        };
        send(QEvent::MouseButtonPress, {400, 300}, button, button);
        send(QEvent::MouseMove, {340, 260}, Qt::NoButton, button);
        send(QEvent::MouseButtonRelease, {340, 260}, button, Qt::NoButton);
    }

    QString toolTipAt(const QPointF& scenePos)
    {
        const QPoint at = m_canvas->view->viewportTransform().map(scenePos).toPoint();
        QHelpEvent event(QEvent::ToolTip, at, m_canvas->view->viewport()->mapToGlobal(at));
        QApplication::sendEvent(m_canvas->view->viewport(), &event);
        return QToolTip::text();
    }

    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_CanvasView)
#include "tst_CanvasView.moc"
