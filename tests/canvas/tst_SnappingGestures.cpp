#include "tests/canvas/CanvasFixture.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

namespace {

/// A canvas that snaps, as in the application.
struct SnappingCanvas : CanvasFixture
{
    SnappingCanvas()
    {
        CanvasAids aids;
        aids.snapping = true;
        view->setAids(aids);
    }

    void setGrid(const QSizeF& spacing)
    {
        CanvasAids aids = view->aids();
        aids.grid = true;
        aids.gridSpacing = spacing;
        view->setAids(aids);
    }

    void setGuides(const QString& text) { screen->setEditorMark(QStringLiteral("guides"), text); }

    /// Whether a line of the snapping colour stands at the column \a x of the screen, at the height of \a y.
    bool showsLineAt(double x, double y) const
    {
        const QImage picture = view->viewport()->grab().toImage();
        const QPoint place = view->viewportTransform().map(QPointF(x, y)).toPoint();
        const QColor color = picture.pixelColor(place * picture.devicePixelRatio());
        return color.red() > 180 && color.green() < 80 && color.blue() > 80;
    }
};

int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

} // namespace

/// Gestures of the mouse where the canvas snaps.
class tst_SnappingGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMovedElementStopsAtTheEdgeOfAnother()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 70, 40));
        canvas.addRectangle(QRectF(103, 51, 60, 40));
        canvas.press({320, 320});
        canvas.move({127, 250});
        QVERIFY(canvas.showsLineAt(103, 150));
        canvas.release({127, 250});
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("103,230"));
        QCOMPARE(canvas.steps(), 1);
        QVERIFY(!canvas.showsLineAt(103, 150));
        canvas.session->undo();
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("300,300"));
    }

    void outOfReachNothingSnaps()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 70, 40));
        canvas.addRectangle(QRectF(103, 51, 60, 40));
        canvas.drag({320, 320}, {130, 250}); // to x 110
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("110,230"));
        // Zoomed out, seven pixels are fewer on the screen.
        canvas.session->undo();
        canvas.view->setZoom(0.5);
        canvas.drag({320, 320}, {130, 250});
        QCOMPARE(canvas.outerRect(moved).left(), 103.0);
    }

    void severalElementsSnapAsOne()
    {
        SnappingCanvas canvas;
        DesignerObject* left = canvas.addRectangle(QRectF(300, 300, 30, 30));
        DesignerObject* right = canvas.addRectangle(QRectF(360, 310, 40, 40));
        canvas.setGuides(QStringLiteral("x 703"));
        canvas.select({left, right});
        canvas.drag({310, 310}, {610, 340}); // the right side of the second to 700
        QCOMPARE(canvas.value(left, "position"), QStringLiteral("603,330"));
        QCOMPARE(canvas.value(right, "position"), QStringLiteral("663,340"));
        QCOMPARE(canvas.steps(), 1);
    }

    void theMiddleOfTheScreenIsFound()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(20, 20, 100, 60));
        canvas.drag({50, 50}, {377, 237}); // the middle to 397, 237
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("350,210"));
    }

    void aRotatedElementCountsAsItIsSeen()
    {
        SnappingCanvas canvas;
        DesignerObject* turned = canvas.addRectangle(QRectF(100, 100, 80, 40));
        canvas.set(turned, "rotation", QStringLiteral("angle: 90; fixedPoint: TopLeft;")); // x from 60 to 100
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 101, 33));
        canvas.drag({310, 310}, {73, 300}); // to x 63
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("60,290"));
    }

    void ctrlSuspendsTheMomentItIsPressed()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 70, 40));
        canvas.setGuides(QStringLiteral("x 103"));
        canvas.press({320, 320});
        canvas.move({127, 250});
        QCOMPARE(canvas.graphic(moved)->x(), 103.0);
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
        QCoreApplication::sendEvent(canvas.view.get(), &down);
        QCOMPARE(canvas.graphic(moved)->x(), 107.0);
        QVERIFY(!canvas.showsLineAt(103, 20));
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
        QCoreApplication::sendEvent(canvas.view.get(), &up);
        QCOMPARE(canvas.graphic(moved)->x(), 103.0);
        QCoreApplication::sendEvent(canvas.view.get(), &down);
        canvas.release({127, 250}, Qt::ControlModifier);
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("107,230"));
    }

    void escapeTakesBackWhatSnapped()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 70, 40));
        canvas.setGuides(QStringLiteral("x 103, y 230"));
        const auto before = canvas.values();
        canvas.press({320, 320});
        canvas.move({127, 250});
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.graphic(moved)->pos(), QPointF(300, 300));
        QCOMPARE(canvas.values(), before);
        QVERIFY(!canvas.showsLineAt(103, 20));
        canvas.release({127, 250});
        QCOMPARE(canvas.steps(), 0);
    }

    void backAtTheStartNothingHasMoved()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 70, 40));
        canvas.setGuides(QStringLiteral("x 302"));
        canvas.press({320, 320});
        canvas.move({350, 350});
        canvas.move({320, 320});
        canvas.release({320, 320});
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("300,300"));
        QCOMPARE(canvas.steps(), 0);
    }

    void aDraggedSideSnapsAndTheOthersStay()
    {
        SnappingCanvas canvas;
        DesignerObject* resized = canvas.addRectangle(QRectF(100, 100, 100, 80));
        canvas.setGuides(QStringLiteral("x 253, y 52"));
        canvas.select({resized});
        canvas.drag({200, 140}, {250, 143});
        QCOMPARE(canvas.value(resized, "position"), QStringLiteral("100,100"));
        QCOMPARE(canvas.value(resized, "size"), QStringLiteral("153,80"));
        canvas.drag({253, 100}, {300, 50});
        QCOMPARE(canvas.value(resized, "position"), QStringLiteral("100,52"));
        QCOMPARE(canvas.value(resized, "size"), QStringLiteral("200,128"));
        QCOMPARE(canvas.steps(), 2);
    }

    void aKeptRatioIsKeptWhereTheLeadingSideSnaps()
    {
        SnappingCanvas canvas;
        DesignerObject* resized = canvas.addRectangle(QRectF(100, 100, 100, 50));
        canvas.set(resized, "keepRatio", QStringLiteral("2"));
        canvas.setGuides(QStringLiteral("x 253, y 177"));
        canvas.select({resized});
        canvas.drag({200, 150}, {250, 175}); // the width leads: 153 wide
        QCOMPARE(canvas.value(resized, "size"), QStringLiteral("153,76.5"));
        QVERIFY(canvas.steps() == 1);
    }

    void aBorderBelongsToWhatIsAligned()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 70, 40), 4);
        canvas.setGuides(QStringLiteral("x 100"));
        canvas.drag({320, 320}, {125, 260}); // the border's outer side to 103
        QCOMPARE(canvas.outerRect(moved).left(), 100.0);
    }

    void whatStandsOnWholePixelsStaysThere()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 71, 41), 1);
        canvas.setGuides(QStringLiteral("x 100"));
        canvas.drag({320, 320}, {123, 260});
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("100,240"));
    }

    void aDraggedPointSnaps()
    {
        SnappingCanvas canvas;
        DesignerObject* point =
            canvas.add("IrregularPolygon", {{QStringLiteral("position"), QStringLiteral("200,200")}});
        canvas.setGuides(QStringLiteral("x 303, y 297"));
        canvas.select({point});
        const GraphicsItem* item = point->graphicsItem();
        QVERIFY(!item->pointHandles().isEmpty());
        const QPointF handle = item->graphic()->mapToScene(item->pointHandles().first());
        canvas.press(handle);
        canvas.move({300, 300});
        QCOMPARE(item->graphic()->mapToScene(item->pointHandles().first()), QPointF(303, 297));
        canvas.move({300, 300}, Qt::ControlModifier);
        QCOMPARE(item->graphic()->mapToScene(item->pointHandles().first()), QPointF(300, 300));
        canvas.key(Qt::Key_Escape);
        canvas.release({300, 300});
        QCOMPARE(canvas.steps(), 0);
    }

    void placingSnapsBothCorners()
    {
        SnappingCanvas canvas;
        canvas.setGuides(QStringLiteral("x 103, y 52, x 203"));
        canvas.view->setPlacementClass(QStringLiteral("Rectangle"));
        canvas.drag({100, 50}, {205, 130});
        QCOMPARE(canvas.selected().size(), 1);
        DesignerObject* placed = canvas.selected().first();
        QCOMPARE(canvas.outerRect(placed), QRectF(103, 52, 100, 78));
        canvas.view->setPlacementClass(QStringLiteral("Rectangle"));
        canvas.click({99, 400});
        QCOMPARE(canvas.outerRect(canvas.selected().first()).topLeft().x() + 0.0, 103.0);
    }

    void whatIsDraggedInFromThePaletteSnaps()
    {
        SnappingCanvas canvas;
        canvas.setGuides(QStringLiteral("x 103, y 52"));
        QMimeData data;
        data.setData(CanvasView::elementMimeType(), "Rectangle");
        const QPointF place = canvas.view->viewportTransform().map(QPointF(100, 200));
        QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(canvas.view->viewport(), &enter);
        QDragMoveEvent move(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(canvas.view->viewport(), &move);
        QVERIFY(canvas.showsLineAt(103, 300));
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(canvas.view->viewport(), &leave);
        QVERIFY(!canvas.showsLineAt(103, 300));
        QCoreApplication::sendEvent(canvas.view->viewport(), &enter);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(canvas.view->viewport(), &drop);
        QCOMPARE(canvas.selected().size(), 1);
        QCOMPARE(canvas.outerRect(canvas.selected().first()).left(), 103.0);
        QVERIFY(!canvas.showsLineAt(103, 300));
    }

    void theGridIsATargetOnlyWhereItIsDrawn()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 71, 41));
        canvas.setGrid({20, 16});
        QVERIFY(canvas.view->isGridDrawn());
        canvas.drag({320, 320}, {124, 260}); // to 104, 240
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("100,240"));
        canvas.setGrid({3, 3});
        QVERIFY(!canvas.view->isGridDrawn());
        canvas.drag({120, 260}, {164, 285});
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("144,265"));
    }

    void arrowsNeverSnap()
    {
        SnappingCanvas canvas;
        DesignerObject* moved = canvas.addRectangle(QRectF(300, 300, 71, 41));
        canvas.setGrid({20, 20});
        canvas.setGuides(QStringLiteral("x 303"));
        canvas.select({moved});
        canvas.key(Qt::Key_Right);
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("301,300"));
        canvas.key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(canvas.value(moved, "position"), QStringLiteral("301,310"));
    }

    void suspendedIsExactlyAsWithoutSnapping()
    {
        const bool held = rc::check("suspended", [] {
            SnappingCanvas snapping;
            CanvasFixture plain;
            for (CanvasFixture* canvas : {static_cast<CanvasFixture*>(&snapping), &plain}) {
                canvas->addRectangle(QRectF(100, 100, 133, 80), 3);
                canvas->addRectangle(QRectF(300, 150, 90, 120));
                canvas->addShape("Ellipse", QRectF(60, 300, 140, 100), 5);
            }
            snapping.setGuides(QStringLiteral("x 50, x 200, y 77"));
            CanvasAids aids = snapping.view->aids();
            aids.guidesLocked = true; // a press beside one is not about it
            snapping.view->setAids(aids);
            const int count = anyNumber(1, 8);
            for (int i = 0; i < count; ++i) {
                const QPointF from(anyNumber(40, 420), anyNumber(80, 420));
                const QPointF to(anyNumber(0, 800), anyNumber(0, 480));
                for (CanvasFixture* canvas : {static_cast<CanvasFixture*>(&snapping), &plain})
                    canvas->drag(from, to, Qt::ControlModifier);
                RC_ASSERT(snapping.values() == plain.values());
            }
        });
        QVERIFY(held);
    }

    void undoingAndRedoingSnappedDragsGivesEveryValueBack()
    {
        const bool held = rc::check("undo", [] {
            SnappingCanvas canvas;
            DesignerObject* first = canvas.addRectangle(QRectF(100.5, 100, 133.3, 80), 3);
            canvas.set(first, "keepRatio", QStringLiteral("1.5"));
            canvas.addRectangle(QRectF(300, 150, 90, 120), 1);
            canvas.addShape("Polygon", QRectF(250, 300, 111.1, 0), 3);
            DesignerObject* third = canvas.addRectangle(QRectF(500, 50, 60, 60), 1);
            canvas.addGroup({480, 40}, {third});
            canvas.setGuides(QStringLiteral("x 50, x 200.5, y 77"));
            canvas.setGrid({8, 8});
            canvas.stack()->clear();
            const auto start = canvas.values();
            const int count = anyNumber(1, 12);
            for (int i = 0; i < count; ++i) {
                const QPointF from(anyNumber(40, 600), anyNumber(40, 420));
                const QPointF to(anyNumber(0, 800), anyNumber(0, 480));
                canvas.click(from);
                canvas.press(from);
                canvas.move(0.5 * (from + to));
                canvas.release(to);
            }
            const auto end = canvas.values();
            while (canvas.stack()->canUndo())
                canvas.session->undo();
            RC_ASSERT(canvas.values() == start);
            while (canvas.stack()->canRedo())
                canvas.session->redo();
            RC_ASSERT(canvas.values() == end);
        });
        QVERIFY(held);
    }
};

QTEST_MAIN(tst_SnappingGestures)
#include "tst_SnappingGestures.moc"
