#include "tests/canvas/CanvasFixture.h"
#include "tests/canvas/PointItem.h"

#include "host/common/FrameResize.h"
#include "host/core/values/ValueConversion.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::CanvasFixture;

namespace {

QPointF handlePoint(const QRectF& frame, int handle)
{
    return fixedPointPosition(static_cast<TransformOrigin>(handle), frame);
}

bool near(double a, double b)
{
    return std::abs(a - b) <= 1e-9;
}

bool near(const QPointF& a, const QPointF& b)
{
    return near(a.x(), b.x()) && near(a.y(), b.y());
}

} // namespace

/// Resizing by the eight handles of the frame.
class tst_FrameGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSideOppositeTheHandleStays_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<int>("border");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<double>("zoom");
        for (const int handle : {0, 1, 2, 3, 5, 6, 7, 8}) {
            for (const int border : {0, 1, 3, 10}) {
                for (const double ratio : {0.0, 1.37}) {
                    for (const double zoom : {0.25, 1.0, 1.3, 16.0}) {
                        QTest::addRow("handle %d, border %d, ratio %g, zoom %g", handle, border, ratio, zoom)
                            << handle << border << ratio << zoom;
                    }
                }
            }
        }
    }

    void theSideOppositeTheHandleStays()
    {
        QFETCH(int, handle);
        QFETCH(int, border);
        QFETCH(double, ratio);
        QFETCH(double, zoom);
        CanvasFixture& canvas = shared();
        DesignerObject* rectangle = canvas.addRectangle(QRectF(210.1, 170.7, 133.3, 91.9), border);
        canvas.set(rectangle, "keepRatio", ValueConversion::toString(ratio));
        canvas.view->setZoom(zoom);
        canvas.select({rectangle});
        const QRectF before = canvas.outerRect(rectangle);
        const QString sizeBefore = canvas.value(rectangle, "size");
        const auto valuesBefore = canvas.values();

        // Grabbed a little beside the handle: the frame does not jump to the mouse.
        const QPointF grab = handlePoint(before, handle) + QPointF(1, -1) / zoom;
        const QPointF out = handlePoint(before, handle) - before.center();
        const QPointF way(std::round(0.4 * out.x()), std::round(0.4 * out.y()));
        canvas.press(grab);
        for (int i = 1; i <= 7; ++i)
            canvas.move(grab + way * i / 7.0);
        canvas.release(grab + way);
        QCOMPARE(canvas.steps(), 1);
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Resize ") + rectangle->getIdName());

        const QRectF after = canvas.outerRect(rectangle);
        const auto kept = cornerKeptBy(handle);
        QVERIFY2(near(fixedPointPosition(kept, after), fixedPointPosition(kept, before)), "the kept corner");
        if (ratio > 0)
            QVERIFY(std::abs(after.width() / after.height() - ratio) < 1e-9);
        const bool widthDrives = ratio == 0 ? handleChangesWidth(handle) : handle != Top && handle != Bottom;
        if (widthDrives)
            QVERIFY(near(after.width(), before.width() + std::abs(way.x())));
        else
            QVERIFY(near(after.height(), before.height() + std::abs(way.y())));
        if (ratio == 0 && !handleChangesWidth(handle))
            QCOMPARE(canvas.value(rectangle, "size").section(QLatin1Char(','), 0, 0),
                     sizeBefore.section(QLatin1Char(','), 0, 0));
        QCOMPARE(canvas.value(rectangle, "boundingSize"),
                 ValueConversion::toString(QSizeF(roundedTo6(after.width()), roundedTo6(after.height()))));
        QCOMPARE(canvas.graphic(rectangle)->sceneBoundingRect(), after);

        const auto valuesAfter = canvas.values();
        canvas.session->undo();
        QCOMPARE(canvas.values(), valuesBefore);
        QCOMPARE(canvas.graphic(rectangle)->sceneBoundingRect(), before);
        canvas.session->redo();
        QCOMPARE(canvas.values(), valuesAfter);
        QCOMPARE(canvas.graphic(rectangle)->sceneBoundingRect(), after);
        canvas.session->removeElements({rectangle});
        canvas.stack()->clear();
        canvas.view->setZoom(1);
    }

    void longWaysDoNotDrift()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle =
            canvas.addRectangle(QRectF(200.0 + 1.0 / 3, 150.0 + 1.0 / 7, 100.0 / 3, 200.0 / 7), 3);
        canvas.set(rectangle, "keepRatio", QStringLiteral("1.1"));
        canvas.select({rectangle});
        const QRectF before = canvas.outerRect(rectangle);
        canvas.press(before.topLeft());
        for (int i = 0; i < 2000; ++i)
            canvas.move(before.topLeft() + QPointF(-(i % 97) * 0.913, (i % 31) * 0.377));
        canvas.release(before.topLeft() + QPointF(-20, -20));
        QVERIFY(near(canvas.outerRect(rectangle).bottomRight(), before.bottomRight()));
    }

    void backAtTheStartItIsExactlyAsItWas()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(10.0 / 3, 20.0 / 3, 100.0 / 3, 200.0 / 7), 3);
        canvas.select({rectangle});
        const auto before = canvas.values();
        const QPointF corner = canvas.outerRect(rectangle).bottomRight();
        canvas.press(corner);
        canvas.move(corner + QPointF(31, 17));
        canvas.move(corner);
        canvas.release(corner);
        QCOMPARE(canvas.values(), before);
        QCOMPARE(canvas.steps(), 0);
    }

    void itNeverGetsSmallerThanItsBorderAllows()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 50, 50), 3);
        canvas.select({rectangle});
        const QRectF before = canvas.outerRect(rectangle);
        canvas.drag(before.topLeft(), before.bottomRight() + QPointF(200, 200));
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("1,1"));
        QCOMPARE(canvas.outerRect(rectangle).bottomRight(), before.bottomRight());
    }

    void aDerivedOuterSizeIsPartOfTheStep()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 75), 4);
        canvas.select({rectangle});
        canvas.drag({202, 177}, {222, 197});
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("124,99"));
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("120,95"));
        QCOMPARE(canvas.value(rectangle, "position"), QStringLiteral("100,100"));
        canvas.session->undo();
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("104,79"));
        QCOMPARE(canvas.steps(), 1);
    }

    void theOuterSizeIsShownWhileDragging()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 75), 4);
        canvas.select({rectangle});
        QSignalSpy readouts(canvas.view.get(), &CanvasView::readoutChanged);
        canvas.press({98, 98});
        canvas.move({88, 93});
        QVERIFY(rectangle->graphicsItem()->isChangingSize());
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("114,84"));
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("100,75"));
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("x 90, y 95, 114 × 84"));
        canvas.key(Qt::Key_Escape);
        QVERIFY(!rectangle->graphicsItem()->isChangingSize());
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("104,79"));
        QCOMPARE(canvas.graphic(rectangle)->sceneBoundingRect(), QRectF(98, 98, 104, 79));
        canvas.release({88, 93});
        QCOMPARE(canvas.steps(), 0);
    }

    void anUnselectedElementIsMovedInsteadOfResized()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 75));
        canvas.drag({198, 173}, {218, 193});
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("100,75"));
        QCOMPARE(canvas.value(rectangle, "position"), QStringLiteral("120,120"));
    }

    void anElementThatCannotBeResizedIsMoved()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 75));
        rectangle->graphicsItem()->setResizable(false);
        canvas.select({rectangle});
        canvas.drag({198, 173}, {218, 193});
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("100,75"));
        QCOMPARE(canvas.value(rectangle, "position"), QStringLiteral("120,120"));
    }

    void aFrameDragReachesTheHostsResizeAlsoWhereTheItemTakesPointNumbers()
    {
        CanvasFixture canvas;
        DesignerObject* points = canvas.add("PointElement", {{QStringLiteral("position"), QStringLiteral("100,100")}});
        canvas.select({points});
        canvas.drag({200, 140}, {300, 140}); // the right side, handle 5
        QCOMPARE(canvas.value(points, "points"), QStringLiteral("0,0 200,0 200,80 0,80"));
        QCOMPARE(canvas.value(points, "boundingSize"), QStringLiteral("200,80"));
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Resize points1"));
        QCOMPARE(canvas.steps(), 1);
    }

    void aRefusedResizeIsTakenBackAndSaid()
    {
        CanvasFixture canvas;
        DesignerObject* points = canvas.add("PointElement", {{QStringLiteral("position"), QStringLiteral("100,100")}});
        canvas.select({points});
        canvas.drag({150, 140}, {160, 140});
        canvas.session->undo();
        const auto before = canvas.values();
        QSignalSpy refusals(canvas.session.get(), &EditSession::editRefused);
        canvas.drag({200, 140}, {1500, 140});
        QCOMPARE(refusals.size(), 1);
        QCOMPARE(refusals.first().first().toString(), QStringLiteral("Too far."));
        QCOMPARE(canvas.values(), before);
        QCOMPARE(canvas.graphic(points)->boundingRect(), QRectF(0, 0, 100, 80));
        QVERIFY(canvas.stack()->canRedo());
    }

    void aSizeThatDoesNotConvertIsGivenByAResizeAndByEscapeTakenBack()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 75));
        canvas.set(rectangle, "size", QStringLiteral("broken"));
        canvas.select({rectangle});
        canvas.press({200, 175});
        canvas.move({250, 200});
        canvas.key(Qt::Key_Escape);
        canvas.release({250, 200});
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("broken"));
        QCOMPARE(canvas.graphic(rectangle)->boundingRect(), QRectF(0, 0, 100, 75));
        canvas.drag({200, 175}, {250, 200});
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("150,100"));
    }

private:
    static double roundedTo6(double value) { return std::round(value * 1e6) / 1e6; }

    /// One canvas for the many rows: making a window is what takes time.
    CanvasFixture& shared()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<CanvasFixture>();
        return *m_canvas;
    }

    void cleanupTestCase() { m_canvas.reset(); }

    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_FrameGestures)
#include "tst_FrameGestures.moc"
