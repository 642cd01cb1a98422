#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include <QApplication>
#include <QImage>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

namespace {

QImage picture(const CanvasFixture& canvas)
{
    QApplication::processEvents();
    return canvas.view->viewport()->grab().toImage();
}

QPoint place(const CanvasFixture& canvas, const QPointF& scenePos)
{
    return canvas.view->viewportTransform().map(scenePos).toPoint();
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

/// What the canvas shows besides the elements: the outline under the mouse, the grid, the readout, the cursors.
class tst_CanvasAids : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theElementUnderTheMouseIsOutlined()
    {
        CanvasFixture canvas;
        DesignerObject* below = canvas.addRectangle(QRectF(100, 100, 200, 150));
        DesignerObject* above = canvas.addRectangle(QRectF(150, 120, 60, 50));
        const QColor accent = canvas.view->palette().color(QPalette::Highlight);
        canvas.move({120, 110});
        QCOMPARE(canvas.view->outlined(), below);
        QCOMPARE(picture(canvas).pixelColor(place(canvas, {200, 100})), accent);
        canvas.move({170, 140});
        QCOMPARE(canvas.view->outlined(), above);
        const QImage seen = picture(canvas);
        QVERIFY(seen.pixelColor(place(canvas, {200, 100})) != accent);
        QCOMPARE(seen.pixelColor(place(canvas, {180, 120})), accent);
        canvas.move({20, 20});
        QCOMPARE(canvas.view->outlined(), nullptr);
        QVERIFY(picture(canvas).pixelColor(place(canvas, {180, 120})) != accent);
    }

    void theOutlineIsOnWhatTheClickSelectsAndGoesWithIt()
    {
        CanvasFixture canvas;
        DesignerObject* element = canvas.addRectangle(QRectF(100, 100, 200, 150));
        canvas.move({120, 110});
        DesignerObject* outlined = canvas.view->outlined();
        canvas.click({120, 110});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{outlined});
        QCOMPARE(outlined, element);
        QCOMPARE(canvas.view->outlined(), nullptr);
        canvas.move({130, 120});
        QCOMPARE(canvas.view->outlined(), nullptr);
    }

    void theOutlineOfAnElementThatIsRemovedIsForgotten()
    {
        CanvasFixture canvas;
        DesignerObject* element = canvas.addRectangle(QRectF(100, 100, 200, 150));
        canvas.move({120, 110});
        QCOMPARE(canvas.view->outlined(), element);
        canvas.session->removeElements({element});
        const QColor accent = canvas.view->palette().color(QPalette::Highlight);
        QVERIFY(picture(canvas).pixelColor(place(canvas, {200, 100})) != accent);
    }

    void leavingTheCanvasTakesTheOutlineAway()
    {
        CanvasFixture canvas;
        canvas.addRectangle(QRectF(100, 100, 200, 150));
        canvas.move({120, 110});
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(canvas.view->viewport(), &leave);
        QCOMPARE(canvas.view->outlined(), nullptr);
    }

    void theGridIsDrawnOnTheScreenWhereItsCellsCanBeSeen()
    {
        CanvasFixture canvas;
        const QImage plain = picture(canvas);
        CanvasAids aids;
        aids.grid = true;
        aids.gridSpacing = {20, 16};
        canvas.view->setAids(aids);
        const QImage grid = picture(canvas);
        const auto differs = [&](const QImage& a, const QPointF& at) {
            return a.pixel(place(canvas, at)) != plain.pixel(place(canvas, at));
        };
        QVERIFY(differs(grid, {100, 90}));
        QVERIFY(differs(grid, {90, 96}));
        QVERIFY(!differs(grid, {90, 90}));
        QVERIFY(!differs(grid, {-20, 90}));
        QVERIFY(!differs(grid, {820, 90}));
        aids.gridSpacing = {20, 3};
        canvas.view->setAids(aids);
        QCOMPARE(picture(canvas), plain);
        canvas.view->setZoom(2);
        QVERIFY(canvas.view->isGridDrawn());
    }

    void aPartThatIsPaintedAgainHasTheSameGrid()
    {
        CanvasFixture canvas;
        CanvasAids aids;
        aids.grid = true;
        aids.gridSpacing = {7, 9};
        canvas.view->setAids(aids);
        canvas.view->setZoom(1.37);
        const QImage whole = picture(canvas);
        QImage parts(whole.size(), whole.format());
        for (int y = 0; y < whole.height(); y += 31) {
            for (int x = 0; x < whole.width(); x += 43)
                canvas.view->viewport()->render(&parts, QPoint(x, y), QRegion(x, y, 43, 31));
        }
        QCOMPARE(parts.convertToFormat(QImage::Format_RGB32), whole.convertToFormat(QImage::Format_RGB32));
    }

    void theReadoutStandsBesideTheMouseDuringAGesture()
    {
        CanvasFixture canvas;
        CanvasAids aids;
        aids.readout = true;
        canvas.view->setAids(aids);
        canvas.addRectangle(QRectF(100, 100, 60, 50));
        const QPoint beside = place(canvas, {300, 300}) + QPoint(19, 23);
        const QColor ground = canvas.view->palette().color(QPalette::ToolTipBase);
        QVERIFY(picture(canvas).pixelColor(beside) != ground);
        canvas.press({130, 125});
        canvas.move({300, 300});
        QCOMPARE(picture(canvas).pixelColor(beside), ground);
        canvas.move({310, 330});
        QVERIFY(picture(canvas).pixelColor(beside) != ground);
        canvas.release({310, 330});
        QVERIFY(picture(canvas).pixelColor(place(canvas, {310, 330}) + QPoint(19, 23)) != ground);
    }

    void aRestingGestureIsNotPaintedAgainAndAgain()
    {
        CanvasFixture canvas;
        CanvasAids aids;
        aids.readout = true;
        aids.rulers = true;
        aids.snapping = true;
        canvas.view->setAids(aids);
        canvas.addRectangle(QRectF(100, 100, 60, 50));
        canvas.press({130, 125});
        canvas.move({300, 300});
        QTest::qWait(50);
        PaintCounter counter;
        canvas.view->viewport()->installEventFilter(&counter);
        QTest::qWait(100);
        QCOMPARE(counter.count, 0);
        // What a move asks for is painted once for the items and once for what is drawn on top of them.
        canvas.move({310, 320});
        QTest::qWait(50);
        QVERIFY(counter.count <= 2);
        canvas.key(Qt::Key_Escape);
        canvas.release({300, 300});
    }

    void theArrowsOfAHandleFollowTheRotationOfItsGroup()
    {
        CanvasFixture canvas;
        DesignerObject* member = canvas.addRectangle(QRectF(300, 200, 100, 60));
        DesignerObject* group = canvas.addGroup({300, 200}, {member});
        canvas.select({member});
        const auto cursorAtTheRight = [&] {
            const QGraphicsItem* graphic = canvas.graphic(member);
            canvas.move(graphic->mapToScene(QPointF(100, 30)));
            return canvas.view->viewport()->cursor().shape();
        };
        QCOMPARE(cursorAtTheRight(), Qt::SizeHorCursor);
        canvas.set(group, "rotation", QStringLiteral("angle: 90; fixedPoint: TopLeft;"));
        QCOMPARE(cursorAtTheRight(), Qt::SizeVerCursor);
        canvas.set(group, "rotation", QStringLiteral("angle: 45; fixedPoint: TopLeft;"));
        QCOMPARE(cursorAtTheRight(), Qt::SizeFDiagCursor);
        canvas.set(group, "rotation", QStringLiteral("angle: 135; fixedPoint: TopLeft;"));
        QCOMPARE(cursorAtTheRight(), Qt::SizeBDiagCursor);
    }

    void elementsBesideTheScreenStayVisibleThroughAVeil()
    {
        CanvasFixture canvas;
        const QImage empty = picture(canvas);
        DesignerObject* element = canvas.addRectangle(QRectF(-60, 100, 100, 80));
        canvas.set(element, "color", QStringLiteral("#ff0000"));
        const QImage seen = picture(canvas);
        const QColor inside = seen.pixelColor(place(canvas, {20, 140}));
        const QColor outside = seen.pixelColor(place(canvas, {-20, 140}));
        QCOMPARE(inside, QColor(Qt::red));
        QVERIFY(outside != empty.pixelColor(place(canvas, {-20, 140})));
        QVERIFY(outside.red() > outside.blue() + 30);
        QVERIFY(outside != inside);
    }

    void theSelectionCanBeZoomedTo()
    {
        CanvasFixture canvas;
        DesignerObject* element = canvas.addRectangle(QRectF(600, 300, 50, 40));
        canvas.view->zoomToSelection();
        QCOMPARE(canvas.view->zoom(), 1.0);
        canvas.select({element});
        canvas.view->zoomToSelection();
        QVERIFY(canvas.view->zoom() > 5);
        const QRectF seen = canvas.view->viewportTransform().mapRect(canvas.outerRect(element));
        QVERIFY(QRectF(canvas.view->viewport()->rect()).contains(seen));
        QVERIFY(qAbs(seen.center().x() - canvas.view->viewport()->width() / 2.) < 3);
        canvas.view->setOutlined(nullptr);
    }
};

QTEST_MAIN(tst_CanvasAids)
#include "tst_CanvasAids.moc"
