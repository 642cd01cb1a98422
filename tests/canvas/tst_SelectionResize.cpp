#include "tests/canvas/CanvasFixture.h"

#include "host/core/arrange/ElementPlaces.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

namespace {

int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

QRectF seen(const DesignerObject* object)
{
    return ElementPlaces::outerBounds(object, ElementPlaces::placeOf(object).toScene);
}

QRectF seen(const QList<DesignerObject*>& objects)
{
    QRectF all;
    for (const DesignerObject* object : objects)
        all |= seen(object);
    return all;
}

} // namespace

/// Several selected elements have one frame, whose handles scale them together.
class tst_SelectionResize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesAndSizesScaleTogetherInOneStep()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 100, 50});
        DesignerObject* second = canvas.addRectangle({250, 200, 50, 100});
        canvas.select({first, second});
        canvas.press({300, 300});
        canvas.move({400, 300});
        QCOMPARE(canvas.value(first, "size"), QStringLiteral("100,50"));
        QVERIFY(!canvas.view->pendingChanges().isEmpty());
        canvas.move({500, 400});
        canvas.release({500, 400});
        QCOMPARE(canvas.value(first, "position"), QStringLiteral("100,100"));
        QCOMPARE(canvas.value(first, "size"), QStringLiteral("200,75"));
        QCOMPARE(canvas.value(first, "boundingSize"), QStringLiteral("200,75"));
        QCOMPARE(canvas.value(second, "position"), QStringLiteral("400,250"));
        QCOMPARE(canvas.value(second, "size"), QStringLiteral("100,150"));
        QCOMPARE(canvas.steps(), 1);
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Resize 2 Elements"));
        QCOMPARE(canvas.selected(), (QList<DesignerObject*>{first, second}));
        canvas.session->undo();
        QCOMPARE(canvas.value(second, "position"), QStringLiteral("250,200"));
        QCOMPARE(canvas.value(second, "size"), QStringLiteral("50,100"));
    }

    void aSideMovesWhatItTouchesAndLeavesTheOtherAxisAlone_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QRectF>("frame");
        QTest::newRow("left") << QPointF(100, 200) << QPointF(0, 230) << QRectF(0, 100, 300, 200);
        QTest::newRow("right") << QPointF(300, 200) << QPointF(350, 10) << QRectF(100, 100, 250, 200);
        QTest::newRow("top") << QPointF(200, 100) << QPointF(250, 150) << QRectF(100, 150, 200, 150);
        QTest::newRow("bottom") << QPointF(200, 300) << QPointF(0, 400) << QRectF(100, 100, 200, 300);
    }

    void aSideMovesWhatItTouchesAndLeavesTheOtherAxisAlone()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QRectF, frame);
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 100, 50}, 0);
        DesignerObject* second = canvas.addRectangle({250, 200, 50, 100}, 0);
        canvas.select({first, second});
        canvas.drag(from, to);
        QCOMPARE(seen({first, second}), frame);
        QCOMPARE(canvas.steps(), 1);
    }

    void shiftKeepsTheRatioFromTheMomentItIsPressed()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 100, 50});
        DesignerObject* second = canvas.addRectangle({250, 150, 50, 50});
        canvas.select({first, second});
        canvas.press({300, 200});
        canvas.move({500, 210}, Qt::ShiftModifier);
        canvas.release({500, 210}, Qt::ShiftModifier);
        QCOMPARE(seen({first, second}), QRectF(100, 100, 400, 200));
        QCOMPARE(canvas.value(first, "size"), QStringLiteral("200,100"));
    }

    void backWhereItWasGrabbedNothingHasChanged()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100.3, 100.7, 99.9, 50.1}, 3);
        DesignerObject* second = canvas.addShape("Polygon", {250, 150, 53.3, 0}, 2);
        canvas.set(first, "keepRatio", QStringLiteral("1.7"));
        canvas.select({first, second});
        const auto before = canvas.values();
        const QPointF corner = seen({first, second}).bottomRight();
        canvas.press(corner);
        canvas.move(corner + QPointF(57, 33));
        canvas.move(corner - QPointF(120, 90));
        canvas.move(corner);
        canvas.release(corner);
        QCOMPARE(canvas.values(), before);
        QCOMPARE(canvas.steps(), 0);
    }

    void escapeTakesItBack()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 100, 50}, 3);
        DesignerObject* second = canvas.addShape("Ellipse", {250, 150, 53.3, 40}, 2);
        canvas.select({first, second});
        const auto before = canvas.values();
        const QPointF corner = seen({first, second}).bottomRight();
        canvas.press(corner);
        canvas.move(corner + QPointF(57, 33));
        QVERIFY(seen({first, second}).bottomRight() != corner);
        canvas.key(Qt::Key_Escape);
        canvas.release(corner + QPointF(57, 33));
        QCOMPARE(canvas.values(), before);
        QCOMPARE(seen({first, second}).bottomRight(), corner);
        QCOMPARE(canvas.steps(), 0);
    }

    void elementsKeepTheirOwnRules()
    {
        CanvasFixture canvas;
        DesignerObject* keeping = canvas.addRectangle({100, 100, 100, 50});
        canvas.set(keeping, "keepRatio", QStringLiteral("2"));
        DesignerObject* tiny = canvas.addRectangle({250, 100, 4, 4});
        DesignerObject* corner = canvas.addRectangle({280, 180, 20, 20});
        canvas.select({keeping, tiny, corner});
        canvas.drag({300, 150}, {200, 150}); // the middle of the right side
        const QSizeF kept = seen(keeping).size();
        QVERIFY(qAbs(kept.width() / kept.height() - 2) < 1e-6);
        QVERIFY(seen(tiny).width() >= 1);
        QCOMPARE(seen(corner).right(), 200.);
    }

    void groupsOnlyMove()
    {
        CanvasFixture canvas;
        DesignerObject* member = canvas.addRectangle({100, 100, 40, 40});
        DesignerObject* group = canvas.addGroup({100, 100}, {member});
        DesignerObject* other = canvas.addRectangle({300, 200, 100, 100});
        canvas.select({group, other});
        canvas.drag({100, 100}, {50, 50});
        QCOMPARE(seen(group), QRectF(50, 50, 40, 40));
        QCOMPARE(canvas.value(member, "size"), QStringLiteral("40,40"));
        QCOMPARE(canvas.value(member, "position"), QStringLiteral("0,0"));
    }

    void turnedElementsKeepTheirAngle()
    {
        CanvasFixture canvas;
        DesignerObject* turned = canvas.addRectangle({100, 100, 80, 20});
        canvas.set(turned, "rotation", QStringLiteral("angle: 90; fixedPoint: Center;"));
        DesignerObject* other = canvas.addRectangle({300, 200, 100, 100});
        canvas.select({turned, other});
        const QRectF frame = seen({turned, other});
        canvas.drag(frame.bottomRight(), frame.bottomRight() + QPointF(frame.width(), 0));
        // Twice as wide as seen: its own height.
        QCOMPARE(canvas.value(turned, "size"), QStringLiteral("80,40"));
        QCOMPARE(canvas.value(turned, "rotation"), QStringLiteral("angle: 90; fixedPoint: Center;"));
        QVERIFY(qAbs(seen(turned).left() - frame.left()) < 1e-6);
    }

    void wholePixelsStayWhole()
    {
        const bool held = rc::check("whole pixels", [] {
            CanvasFixture canvas;
            QList<DesignerObject*> all;
            const int count = anyNumber(2, 6);
            for (int i = 0; i < count; ++i) {
                all.append(canvas.addRectangle(
                    QRectF(anyNumber(50, 500), anyNumber(50, 300), anyNumber(12, 120), anyNumber(12, 90)),
                    2 * anyNumber(0, 3)));
            }
            canvas.select(all);
            const auto before = canvas.values();
            const QRectF frame = seen(all);
            const QPointF to(anyNumber(0, 790), anyNumber(0, 470));
            canvas.drag(frame.bottomRight(), to);
            RC_ASSERT(canvas.steps() <= 1);
            for (const DesignerObject* object : all) {
                RC_ASSERT(!CanvasFixture::value(object, "position").contains(QLatin1Char('.')));
                RC_ASSERT(!CanvasFixture::value(object, "boundingSize").contains(QLatin1Char('.')));
            }
            const auto after = canvas.values();
            if (canvas.steps() == 1) {
                canvas.session->undo();
                RC_ASSERT(canvas.values() == before);
                canvas.session->redo();
                RC_ASSERT(canvas.values() == after);
            }
        });
        QVERIFY(held);
    }

    void everyKindOfElementTakesPartAndIsTakenBack_data()
    {
        QTest::addColumn<QByteArray>("className");
        for (const char* name : {"Ellipse", "Polygon", "TextBox", "Line", "IrregularPolygon", "PathElement", "Image",
                                 "LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"})
            QTest::newRow(name) << QByteArray(name);
    }

    void everyKindOfElementTakesPartAndIsTakenBack()
    {
        QFETCH(QByteArray, className);
        for (const char* rotation : {"angle: 0; fixedPoint: Center;", "angle: 25; fixedPoint: TopLeft;"}) {
            CanvasFixture canvas;
            DesignerObject* other = canvas.addRectangle({450, 300, 60, 40});
            DesignerObject* element =
                canvas.add(className.constData(), {{QStringLiteral("position"), QStringLiteral("300,100")}});
            canvas.set(element, "rotation", QLatin1String(rotation));
            canvas.select({element, other});
            const auto before = canvas.values();
            const QRectF start = seen(element);
            const QPointF corner = seen({element, other}).bottomRight();
            canvas.press(corner);
            canvas.move(corner + QPointF(90, 60));
            QVERIFY(seen(element).width() > start.width());
            canvas.move(corner - QPointF(120, 90));
            QVERIFY(seen(element).width() < start.width());
            canvas.key(Qt::Key_Escape);
            canvas.release(corner);
            QCOMPARE(canvas.values(), before);
            QCOMPARE(seen(element), start);
            canvas.drag(corner, corner + QPointF(90, 60));
            QCOMPARE(canvas.steps(), 1);
            const auto after = canvas.values();
            const QRectF end = seen(element);
            QVERIFY(end.width() > start.width());
            canvas.session->undo();
            QCOMPARE(canvas.values(), before);
            canvas.session->redo();
            QCOMPARE(canvas.values(), after);
            QVERIFY((seen(element).bottomRight() - end.bottomRight()).manhattanLength() < 1e-6);
        }
    }

    void lockedElementsStayOutOfIt()
    {
        CanvasFixture canvas;
        DesignerObject* locked = canvas.addRectangle({100, 100, 40, 40});
        DesignerObject* first = canvas.addRectangle({200, 100, 40, 40});
        DesignerObject* second = canvas.addRectangle({300, 200, 40, 40});
        canvas.session->setLocked({locked}, true);
        canvas.select({locked, first, second});
        canvas.drag({340, 240}, {480, 380});
        QCOMPARE(canvas.value(locked, "size"), QStringLiteral("40,40"));
        QCOMPARE(canvas.value(locked, "position"), QStringLiteral("100,100"));
        QCOMPARE(seen({first, second}), QRectF(200, 100, 280, 280));
    }

    void thereIsOneFrameAndNoHandlesOfTheElements()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 80, 80});
        DesignerObject* second = canvas.addRectangle({300, 200, 80, 80});
        const QImage without = canvas.view->grab().toImage();
        canvas.select({first, second});
        const QImage with = canvas.view->grab().toImage();
        const auto changedBeside = [&](const QPointF& corner, const QPoint& side) {
            const QPoint at = canvas.view->viewportTransform().map(corner).toPoint() + side * 4;
            return with.pixel(at) != without.pixel(at);
        };
        QVERIFY(changedBeside({100, 100}, {-1, -1}));
        QVERIFY(changedBeside({380, 280}, {1, 1}));
        QVERIFY(changedBeside({380, 100}, {1, -1}));
        QVERIFY(changedBeside({240, 100}, {0, -1}));
        QVERIFY(!changedBeside({180, 180}, {1, 1}));
        QVERIFY(!changedBeside({300, 200}, {-1, -1}));
        // Where a handle of one of them would be its element is only moved.
        canvas.drag({177, 177}, {187, 187});
        QCOMPARE(canvas.value(first, "size"), QStringLiteral("80,80"));
        canvas.view->setSelectionFrame(false);
        canvas.select({first, second});
        canvas.drag({190, 190}, {210, 200});
        QCOMPARE(canvas.value(first, "size"), QStringLiteral("100,90"));
    }
};

QTEST_MAIN(tst_SelectionResize)
#include "tst_SelectionResize.moc"
