#include "tests/canvas/CanvasFixture.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/commands/UndoCommand.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/TransformOrigin.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::CanvasFixture;

namespace {

int handleAt(const DesignerObject* object, const QPointF& scenePos)
{
    bool handled = false;
    const int handle = object->graphicsItem()->getResizeHandle(scenePos, &handled);
    Q_ASSERT(handled);
    return handle;
}

} // namespace

/// What every canvas item has from its base: the frame's hit test, tooltips, the outer size, and writing back.
class tst_GraphicsItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachCornerAndSideHasItsNumber_data()
    {
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<int>("handle");
        QTest::newRow("top left") << QPointF(100, 100) << 0;
        QTest::newRow("top") << QPointF(150, 100) << 1;
        QTest::newRow("top right") << QPointF(200, 100) << 2;
        QTest::newRow("left") << QPointF(100, 140) << 3;
        QTest::newRow("centre") << QPointF(150, 140) << 4;
        QTest::newRow("right") << QPointF(200, 140) << 5;
        QTest::newRow("bottom left") << QPointF(100, 180) << 6;
        QTest::newRow("bottom") << QPointF(150, 180) << 7;
        QTest::newRow("bottom right") << QPointF(200, 180) << 8;
        QTest::newRow("exactly 5 from a corner") << QPointF(103, 98) << 0;
        QTest::newRow("a corner and two sides: the corner") << QPointF(197, 102) << 2;
        QTest::newRow("further than 5: the side") << QPointF(106, 100) << 1;
        QTest::newRow("5 beside a side") << QPointF(205, 140) << 5;
        QTest::newRow("more than 5 beside a side") << QPointF(205.01, 140) << 4;
        // Half the height is 40, so that a side reaches 35 from its middle.
        QTest::newRow("the end of a side") << QPointF(205, 175) << 5;
        QTest::newRow("between a side's end and the corner") << QPointF(205, 175.01) << 4;
        QTest::newRow("far away") << QPointF(500, 400) << 4;
    }

    void eachCornerAndSideHasItsNumber()
    {
        QFETCH(QPointF, at);
        CanvasFixture canvas;
        const DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 80));
        QTEST(handleAt(rectangle, at), "handle");
    }

    void handlesSitOnTheOuterEdgeOfTheBorder()
    {
        CanvasFixture canvas;
        const DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 80), 20);
        QCOMPARE(handleAt(rectangle, {90, 90}), 0);
        QCOMPARE(handleAt(rectangle, {210, 190}), 8);
        QCOMPARE(handleAt(rectangle, {100, 100}), 4);
    }

    void anItemTooSmallOnTheScreenHasNoHandles()
    {
        CanvasFixture canvas;
        const DesignerObject* wide = canvas.addRectangle(QRectF(100, 100, 100, 10));
        QCOMPARE(handleAt(wide, {100, 100}), 4);
        QVERIFY(!wide->graphicsItem()->hasFrameHandles());
        const DesignerObject* enough = canvas.addRectangle(QRectF(300, 100, 10.5, 10.5));
        QCOMPARE(handleAt(enough, {300, 100}), 0);
        canvas.view->setZoom(1.1);
        QCOMPARE(handleAt(wide, {100, 100}), 0);
        canvas.view->setZoom(0.5);
        QCOMPARE(handleAt(enough, {300, 100}), 4);
    }

    void sideSpansNeverGetNegative()
    {
        CanvasFixture canvas;
        // Half a side is 5.5 and the hit width 5: a side reaches half a pixel about its middle.
        const DesignerObject* small = canvas.addRectangle(QRectF(100, 100, 11, 11));
        QCOMPARE(handleAt(small, {101, 105.5}), 3);
        QCOMPARE(handleAt(small, {100, 105.8}), 3);
        QCOMPARE(handleAt(small, {100, 106.1}), 6);
    }

    void hitWidthFollowsTheZoom()
    {
        CanvasFixture canvas;
        const DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 80));
        canvas.view->setZoom(4);
        QCOMPARE(rectangle->graphicsItem()->detectionWidth(), 1.25);
        QCOMPARE(handleAt(rectangle, {102, 100}), 1);
        QCOMPARE(handleAt(rectangle, {101.25, 100}), 0);
    }

    void aRotatedItemHasNoHandlesButAWholeTurnIsNone()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 80));
        for (const int angle : {360, -360, 0}) {
            canvas.set(rectangle, "rotation", QStringLiteral("angle: %1; fixedPoint: Center;").arg(angle));
            QCOMPARE(handleAt(rectangle, {200, 180}), 8);
        }
        canvas.set(rectangle, "rotation", QStringLiteral("angle: 90; fixedPoint: Center;"));
        QCOMPARE(handleAt(rectangle, {200, 180}), 4);
        QCOMPARE(canvas.graphic(rectangle)->toolTip(), QStringLiteral("Rectangle: rectangle1"));
    }

    void theSelectedItemTellsWhatTheHandleDoes_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("name");
        QTest::newRow("Rectangle") << QByteArray("Rectangle") << QStringLiteral("Rectangle: rectangle1");
        QTest::newRow("Ellipse") << QByteArray("Ellipse") << QStringLiteral("Ellipse: ellipse1");
        QTest::newRow("Polygon") << QByteArray("Polygon") << QStringLiteral("Polygon (Regular): polygon1");
    }

    void theSelectedItemTellsWhatTheHandleDoes()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, name);
        CanvasFixture canvas;
        DesignerObject* object = canvas.addShape(element, QRectF(100, 100, 100, 80), 3);
        const QGraphicsItem* item = canvas.graphic(object);
        const QRectF frame = canvas.outerRect(object);
        // Painting lets the text of the handle under the mouse be.
        const auto toolTip = [&canvas, item] {
            const QString before = item->toolTip();
            canvas.view->grab();
            return item->toolTip() == before ? before : QStringLiteral("painted over: ") + before;
        };
        canvas.view->grab();
        QCOMPARE(item->toolTip(), name);
        for (int handle = 0; handle <= 8; ++handle) {
            const QPointF at = fixedPointPosition(static_cast<TransformOrigin>(handle), frame);
            canvas.select({});
            canvas.move(at);
            QCOMPARE(toolTip(), name);
            canvas.select({object});
            canvas.move(at);
            const bool corner = handle % 2 == 0;
            const QString expected = handle == Center ? name
                                     : corner         ? QStringLiteral("Drag this point to resize")
                                                      : QStringLiteral("Drag this line to resize");
            QCOMPARE(toolTip(), expected);
            // Nor does painting during a drag.
            canvas.press(at);
            canvas.move(at + QPointF(9, 9));
            QCOMPARE(toolTip(), expected);
            canvas.move(at);
            canvas.release(at);
            QCOMPARE(toolTip(), expected);
            canvas.move(frame.bottomRight() + QPointF(50, 50));
            QCOMPARE(toolTip(), name);
        }
        QCOMPARE(canvas.steps(), 0);
        // A rotated element has no handles to tell of.
        canvas.set(object, "rotation", QStringLiteral("angle: 90; fixedPoint: Center;"));
        canvas.move(canvas.graphic(object)->mapToScene(item->boundingRect().topLeft()));
        QCOMPARE(toolTip(), name);
    }

    void theNameToolTipFollowsTheId()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 80));
        canvas.view->grab();
        QCOMPARE(canvas.graphic(rectangle)->toolTip(), QStringLiteral("Rectangle: rectangle1"));
        QVERIFY(canvas.session->rename(rectangle, QStringLiteral("logo")).accepted);
        QCOMPARE(canvas.graphic(rectangle)->toolTip(), QStringLiteral("Rectangle: logo"));
    }

    void theOuterSizeIsKeptWithoutNoise()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 100, 75), 3);
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("103,78"));
        canvas.set(rectangle, "size", QStringLiteral("33.333333333333336,75"));
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("36.333333,78"));
        QSignalSpy changes(canvas.project, &Project::objectPropertyChanged);
        canvas.set(rectangle, "size", QStringLiteral("33.33333331,75"));
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("36.333333,78"));
        QCOMPARE(changes.size(), 1);
    }

    void writingTheOuterSizeDoesNotChangeTheContent()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 100, 75));
        canvas.set(rectangle, "border", QStringLiteral("width: 7; color: #000000;"));
        QCOMPARE(canvas.value(rectangle, "size"), QStringLiteral("100,75"));
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("107,82"));
    }

    void theKeptRatioIsReadFromTheElement()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 50));
        for (const char* off : {"0", "-2", "abc"}) {
            canvas.set(rectangle, "keepRatio", QLatin1String(off));
            rectangle->graphicsItem()->resizeGraphicsItem(8, QSizeF(40, 70), {});
            QCOMPARE(canvas.graphic(rectangle)->boundingRect().size(), QSizeF(40, 70));
        }
        canvas.set(rectangle, "keepRatio", QStringLiteral("2"));
        rectangle->graphicsItem()->resizeGraphicsItem(8, QSizeF(60, 70), {});
        QCOMPARE(canvas.graphic(rectangle)->boundingRect().size(), QSizeF(60, 30));
        rectangle->graphicsItem()->resizeGraphicsItem(7, QSizeF(60, 70), {});
        QCOMPARE(canvas.graphic(rectangle)->boundingRect().size(), QSizeF(140, 70));
    }

    void theItemTurnsAboutTheFixedPointOfItsContent()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 50), 10);
        QGraphicsItem* item = canvas.graphic(rectangle);
        canvas.set(rectangle, "rotation", QStringLiteral("angle: 90; fixedPoint: BottomRight;"));
        QCOMPARE(item->mapToScene(QPointF(100, 50)), QPointF(200, 150));
        QCOMPARE(item->mapToScene(QPointF(0, 50)), QPointF(200, 50));
        // The fixed point stays on the content when that grows.
        canvas.set(rectangle, "size", QStringLiteral("200,50"));
        QCOMPARE(item->mapToScene(QPointF(200, 50)), QPointF(300, 150));
        QCOMPARE(rectangle->graphicsItem()->getShape().boundingRect(), QRectF(195, -155, 60, 210));
    }

    void anItemWithoutRotationCarriesNoTransformation()
    {
        CanvasFixture canvas;
        const DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 50));
        QVERIFY(canvas.graphic(rectangle)->transformOriginPoint().isNull());
    }

    void onlyWhatDiffersIsWrittenBack()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 50));
        GraphicsItem* item = rectangle->graphicsItem();
        UndoCommand nothing;
        item->updateResizedDataObjects(8, &nothing);
        QCOMPARE(nothing.childCommandCount(), 0);
        item->setItemPosition({12.5, 7});
        item->rotateByMouse(30);
        UndoCommand two;
        item->updateResizedDataObjects(8, &two);
        QCOMPARE(two.childCommandCount(), 2);
        QVERIFY(!item->updateDataObject({}, &two));
    }

    void theDataObjectForgetsAnItemThatGoes()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 50));
        QVERIFY(rectangle->graphicsItem());
        canvas.scene()->displaceObject(rectangle);
        QVERIFY(!rectangle->graphicsItem());
    }
};

QTEST_MAIN(tst_GraphicsItem)
#include "tst_GraphicsItem.moc"
