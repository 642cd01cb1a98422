#include "tests/canvas/CanvasFixture.h"
#include "tests/canvas/PointItem.h"

#include "host/common/FrameResize.h"
#include "host/core/values/ValueConversion.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::CanvasFixture;

namespace {

constexpr int Handles[] = {0, 1, 2, 3, 5, 6, 7, 8};

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

/// The rows of a test of all elements, or of the elements of any size (and not the polygon).
void addElementRows(const QByteArrayList& elements = CanvasFixture::frameElements())
{
    QTest::addColumn<QByteArray>("element");
    for (const QByteArray& element : elements)
        QTest::newRow(element.constData()) << element;
}

/// The same for each handle, with several borders, kept ratios (0: none) and zooms. A polygon always keeps its own.
void addHandleRows(const QList<double>& zooms)
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("border");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("zoom");
    const QByteArrayList elements = CanvasFixture::frameElements();
    for (const QByteArray& element : elements) {
        const QList<double> ratios = element == "Polygon" ? QList<double>{0} : QList<double>{0, 1.37};
        for (const int handle : Handles) {
            for (const int border : {0, 1, 3, 10}) {
                for (const double ratio : ratios) {
                    for (const double zoom : zooms) {
                        QTest::addRow("%s, handle %d, border %d, ratio %g, zoom %g", element.constData(), handle,
                                      border, ratio, zoom)
                            << element << handle << border << ratio << zoom;
                    }
                }
            }
        }
    }
}

} // namespace

/// Resizing by the eight handles of the frame.
class tst_FrameGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (!m_canvas)
            return;
        m_canvas->view->cancelGesture(); // of a row that failed half-way
        m_canvas->session->removeElements(m_canvas->scene()->selectableElements());
        m_canvas->stack()->clear();
        m_canvas->view->setZoom(1);
    }

    void cleanupTestCase() { m_canvas.reset(); }

    void theSideOppositeTheHandleStays_data() { addHandleRows({0.25, 0.5, 1.0, 1.3, 4.0, 16.0}); }

    void theSideOppositeTheHandleStays()
    {
        QFETCH(QByteArray, element);
        QFETCH(int, handle);
        QFETCH(int, border);
        QFETCH(double, zoom);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(210.1, 170.7, 133.3, 91.9), border);
        const double ratio = keepRatio(object);
        canvas.view->setZoom(zoom);
        canvas.select({object});
        const QRectF before = canvas.outerRect(object);
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
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Resize ") + object->getIdName());

        const QRectF after = canvas.outerRect(object);
        const auto kept = cornerKeptBy(handle);
        QVERIFY2(near(fixedPointPosition(kept, after), fixedPointPosition(kept, before)), "the kept corner");
        if (ratio > 0)
            QVERIFY(std::abs(after.width() / after.height() - ratio) < 1e-9);
        const bool widthDrives = ratio == 0 ? handleChangesWidth(handle) : handle != Top && handle != Bottom;
        if (widthDrives)
            QVERIFY(near(after.width(), before.width() + std::abs(way.x())));
        else
            QVERIFY(near(after.height(), before.height() + std::abs(way.y())));
        if (ratio == 0) {
            const QStringList sizeBefore =
                valuesBefore.value(object->getIdName() + QStringLiteral(".size")).split(QLatin1Char(','));
            const QStringList size = canvas.value(object, "size").split(QLatin1Char(','));
            QCOMPARE(size.at(0) == sizeBefore.at(0), !handleChangesWidth(handle));
            QCOMPARE(size.at(1) == sizeBefore.at(1), !handleChangesHeight(handle));
        }
        QCOMPARE(canvas.value(object, "boundingSize"),
                 ValueConversion::toString(QSizeF(roundedTo6(after.width()), roundedTo6(after.height()))));
        QCOMPARE(canvas.graphic(object)->sceneBoundingRect(), after);

        const auto valuesAfter = canvas.values();
        canvas.session->undo();
        QCOMPARE(canvas.values(), valuesBefore);
        QCOMPARE(canvas.graphic(object)->sceneBoundingRect(), before);
        canvas.session->redo();
        QCOMPARE(canvas.values(), valuesAfter);
        QCOMPARE(canvas.graphic(object)->sceneBoundingRect(), after);
    }

    void itNeverGetsSmallerThanItsBorderAllowsNorCreeps_data() { addHandleRows({0.25, 1.0, 16.0}); }

    void itNeverGetsSmallerThanItsBorderAllowsNorCreeps()
    {
        QFETCH(QByteArray, element);
        QFETCH(int, handle);
        QFETCH(int, border);
        QFETCH(double, zoom);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(210.1, 170.7, 133.3, 91.9), border);
        const double ratio = keepRatio(object);
        canvas.view->setZoom(zoom);
        canvas.select({object});
        const QRectF before = canvas.outerRect(object);
        const auto valuesBefore = canvas.values();
        const double smallest = object->graphicsItem()->minSize();
        QCOMPARE(smallest, 1.0 + border);

        // Over the opposite side and on, and to and fro there.
        const QPointF grab = handlePoint(before, handle);
        const QPointF in = before.center() - grab;
        const TransformOrigin kept = cornerKeptBy(handle);
        canvas.press(grab);
        for (const double way : {0.3, 1.9, 2.0, 2.1, 7.0, 2.5, 30.0}) {
            canvas.move(grab + way * in);
            const QRectF now = canvas.graphic(object)->sceneBoundingRect();
            QVERIFY(near(fixedPointPosition(kept, now), fixedPointPosition(kept, before)));
            QVERIFY(now.width() > smallest - 1e-9 && now.height() > smallest - 1e-9);
        }
        canvas.release(grab + 30 * in);
        QCOMPARE(canvas.steps(), 1);
        const QRectF after = canvas.outerRect(object);
        QVERIFY(near(fixedPointPosition(kept, after), fixedPointPosition(kept, before)));
        if (element != "Polygon") {
            if (ratio > 0)
                QVERIFY(near(std::min(after.width(), after.height()), smallest));
            else
                QVERIFY(near(after.width(), handleChangesWidth(handle) ? smallest : before.width())
                        && near(after.height(), handleChangesHeight(handle) ? smallest : before.height()));
        }
        canvas.session->undo();
        QCOMPARE(canvas.values(), valuesBefore);
    }

    void longWaysDoNotDrift_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<int>("handle");
        const QByteArrayList elements = CanvasFixture::frameElements();
        for (const QByteArray& element : elements) {
            for (const int handle : Handles)
                QTest::addRow("%s, handle %d", element.constData(), handle) << element << handle;
        }
    }

    void longWaysDoNotDrift()
    {
        QFETCH(QByteArray, element);
        QFETCH(int, handle);
        CanvasFixture& canvas = shared();
        DesignerObject* object =
            canvas.addShape(element, QRectF(300.0 + 1.0 / 3, 250.0 + 1.0 / 7, 100.0 / 3, 200.0 / 7), 3);
        if (element != "Polygon")
            canvas.set(object, "keepRatio", QStringLiteral("1.1"));
        canvas.select({object});
        const QRectF before = canvas.outerRect(object);
        const QPointF grab = handlePoint(before, handle);
        canvas.press(grab);
        for (int i = 0; i < 2000; ++i)
            canvas.move(grab + QPointF(-(i % 97) * 0.913, (i % 31) * 0.377));
        canvas.release(grab + QPointF(-20, -20));
        const auto kept = cornerKeptBy(handle);
        const QPointF drift = fixedPointPosition(kept, canvas.outerRect(object)) - fixedPointPosition(kept, before);
        QVERIFY2(near(drift, {}), qPrintable(QStringLiteral("%1, %2").arg(drift.x()).arg(drift.y())));
    }

    void backAtTheStartItIsExactlyAsItWas_data() { addElementRows(); }

    void backAtTheStartItIsExactlyAsItWas()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(310.0 / 3, 320.0 / 3, 100.0 / 3, 200.0 / 7), 3);
        canvas.select({object});
        const auto before = canvas.values();
        for (const int handle : Handles) {
            const QPointF grab = handlePoint(canvas.outerRect(object), handle);
            canvas.press(grab);
            canvas.move(grab + QPointF(31, 17));
            QVERIFY(canvas.values() != before); // the outer size is live
            canvas.move(grab);
            canvas.release(grab);
            QCOMPARE(canvas.values(), before);
            QCOMPARE(canvas.steps(), 0);
        }
    }

    void aDragAlongASideMakesNoStep_data() { addElementRows(); }

    void aDragAlongASideMakesNoStep()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(310.0 / 3, 320.0 / 3, 100.0 / 3, 200.0 / 7), 3);
        canvas.select({object});
        const auto before = canvas.values();
        for (const int handle : {int(Left), int(Right), int(Top), int(Bottom)}) {
            const QPointF grab = handlePoint(canvas.outerRect(object), handle);
            const QPointF along = handleChangesWidth(handle) ? QPointF(0, 13) : QPointF(-13, 0);
            canvas.drag(grab, grab + along);
            QCOMPARE(canvas.values(), before);
            QCOMPARE(canvas.steps(), 0);
            // Also on a way round.
            canvas.press(grab);
            canvas.move(grab + QPointF(31, 17));
            canvas.release(grab + along);
            QCOMPARE(canvas.values(), before);
            QCOMPARE(canvas.steps(), 0);
        }
    }

    void aRotatedElementIsMovedAndNotResized_data() { addElementRows(); }

    void aRotatedElementIsMovedAndNotResized()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        for (const double angle : {30.0, 90.0, 180.0, 359.9, -45.0, 720.0}) {
            DesignerObject* object = canvas.addShape(element, QRectF(310.1, 170.7, 133.3, 91.9), 3);
            canvas.set(object, "rotation", QStringLiteral("angle: %1; fixedPoint: BottomLeft;").arg(angle));
            auto values = canvas.values();
            for (const int handle : Handles) {
                canvas.select({object});
                const QPointF grab =
                    canvas.graphic(object)->mapToScene(handlePoint(canvas.graphic(object)->boundingRect(), handle));
                bool handled = false;
                QCOMPARE(object->graphicsItem()->getResizeHandle(grab, &handled), int(Center));
                canvas.drag(grab, grab + QPointF(40, 25));
                // A corner that belongs to the shape has moved it.
                values.insert(object->getIdName() + QStringLiteral(".position"), canvas.value(object, "position"));
                QCOMPARE(canvas.values(), values);
            }
            const int steps = canvas.steps();
            const QPointF position = ValueConversion::toPoint(canvas.value(object, "position"));
            const QPointF middle = canvas.graphic(object)->mapToScene(canvas.graphic(object)->boundingRect().center());
            canvas.drag(middle, middle + QPointF(40, 25));
            QCOMPARE(canvas.steps(), steps + 1);
            QVERIFY(near(ValueConversion::toPoint(canvas.value(object, "position")), position + QPointF(40, 25)));
            values.insert(object->getIdName() + QStringLiteral(".position"), canvas.value(object, "position"));
            QCOMPARE(canvas.values(), values);
            cleanup();
        }
    }

    void aWholeTurnIsNoRotation_data() { addElementRows(); }

    void aWholeTurnIsNoRotation()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        for (const double angle : {360.0, -360.0}) {
            for (const int handle : Handles) {
                DesignerObject* object = canvas.addShape(element, QRectF(310.1, 170.7, 133.3, 91.9), 3);
                canvas.set(object, "rotation", QStringLiteral("angle: %1; fixedPoint: Right;").arg(angle));
                canvas.select({object});
                const auto values = canvas.values();
                const QRectF before = canvas.outerRect(object);
                const QPointF grab = handlePoint(before, handle);
                const QPointF out = grab - before.center();
                canvas.drag(grab, grab + QPointF(std::round(0.4 * out.x()), std::round(0.4 * out.y())));
                QCOMPARE(canvas.steps(), 1);
                const QRectF after = canvas.outerRect(object);
                QVERIFY(after.width() > before.width() + 20 || after.height() > before.height() + 10);
                const auto kept = cornerKeptBy(handle);
                QVERIFY(near(fixedPointPosition(kept, after), fixedPointPosition(kept, before)));
                QVERIFY(canvas.value(object, "rotation")
                        == values.value(object->getIdName() + QStringLiteral(".rotation")));
                canvas.session->undo();
                QCOMPARE(canvas.values(), values);
                cleanup();
            }
        }
    }

    void aDerivedOuterSizeIsPartOfTheStep_data() { addElementRows({"Rectangle", "Ellipse"}); }

    void aDerivedOuterSizeIsPartOfTheStep()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(100, 100, 100, 75), 4);
        canvas.select({object});
        canvas.drag({202, 177}, {222, 197});
        QCOMPARE(canvas.value(object, "boundingSize"), QStringLiteral("124,99"));
        QCOMPARE(canvas.value(object, "size"), QStringLiteral("120,95"));
        QCOMPARE(canvas.value(object, "position"), QStringLiteral("100,100"));
        canvas.session->undo();
        QCOMPARE(canvas.value(object, "boundingSize"), QStringLiteral("104,79"));
        QCOMPARE(canvas.steps(), 1);
    }

    void theOuterSizeIsShownWhileDragging_data() { addElementRows({"Rectangle", "Ellipse"}); }

    void theOuterSizeIsShownWhileDragging()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(100, 100, 100, 75), 4);
        canvas.select({object});
        QSignalSpy readouts(canvas.view.get(), &CanvasView::readoutChanged);
        canvas.press({98, 98});
        canvas.move({88, 93});
        QVERIFY(object->graphicsItem()->isChangingSize());
        QCOMPARE(canvas.value(object, "boundingSize"), QStringLiteral("114,84"));
        QCOMPARE(canvas.value(object, "size"), QStringLiteral("100,75"));
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("x 90, y 95, 114 × 84"));
        canvas.key(Qt::Key_Escape);
        QVERIFY(!object->graphicsItem()->isChangingSize());
        QCOMPARE(canvas.value(object, "boundingSize"), QStringLiteral("104,79"));
        QCOMPARE(canvas.graphic(object)->sceneBoundingRect(), QRectF(98, 98, 104, 79));
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

    void aSizeThatDoesNotConvertIsGivenByAResizeAndByEscapeTakenBack_data()
    {
        addElementRows({"Rectangle", "Ellipse"});
    }

    void aSizeThatDoesNotConvertIsGivenByAResizeAndByEscapeTakenBack()
    {
        QFETCH(QByteArray, element);
        CanvasFixture& canvas = shared();
        DesignerObject* object = canvas.addShape(element, QRectF(100, 100, 100, 75));
        canvas.set(object, "size", QStringLiteral("broken"));
        canvas.select({object});
        canvas.press({200, 175});
        canvas.move({250, 200});
        canvas.key(Qt::Key_Escape);
        canvas.release({250, 200});
        QCOMPARE(canvas.value(object, "size"), QStringLiteral("broken"));
        QCOMPARE(canvas.graphic(object)->boundingRect(), QRectF(0, 0, 100, 75));
        canvas.drag({200, 175}, {250, 200});
        QCOMPARE(canvas.value(object, "size"), QStringLiteral("150,100"));
    }

private:
    static double roundedTo6(double value) { return std::round(value * 1e6) / 1e6; }

    /// Gives \a object the row's ratio; the ratio that it keeps then, or 0.
    double keepRatio(DesignerObject* object)
    {
        QFETCH(double, ratio);
        if (object->className() == QLatin1String("Polygon")) {
            const QSizeF size = CanvasFixture::outerRect(object).size();
            return size.width() / size.height();
        }
        m_canvas->set(object, "keepRatio", ValueConversion::toString(ratio));
        return ratio;
    }

    /// One canvas for the many rows, emptied after each: making a window is what takes time.
    CanvasFixture& shared()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<CanvasFixture>();
        return *m_canvas;
    }

    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_FrameGestures)
#include "tst_FrameGestures.moc"
