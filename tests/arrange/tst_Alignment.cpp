#include "tests/arrange/ArrangeTree.h"

#include "host/core/arrange/Alignment.h"
#include "host/core/arrange/ElementPlaces.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::anyNumber;
using Test::ArrangeTree;
using Test::CanvasFixture;

/// Aligning, distributing and sizing elements on a canvas.
class tst_Alignment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void severalAreAlignedWithTheOutermostOfThem_data()
    {
        QTest::addColumn<int>("edge");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::newRow("left") << int(AlignEdge::Left) << "100,100"
                              << "100,200";
        QTest::newRow("center") << int(AlignEdge::Center) << "150,100"
                                << "175,200";
        QTest::newRow("right") << int(AlignEdge::Right) << "200,100"
                               << "250,200";
        QTest::newRow("top") << int(AlignEdge::Top) << "100,100"
                             << "250,100";
        QTest::newRow("middle") << int(AlignEdge::Middle) << "100,150"
                                << "250,160";
        QTest::newRow("bottom") << int(AlignEdge::Bottom) << "100,200"
                                << "250,220";
    }

    void severalAreAlignedWithTheOutermostOfThem()
    {
        QFETCH(int, edge);
        QFETCH(QString, first);
        QFETCH(QString, second);
        CanvasFixture canvas;
        DesignerObject* a = canvas.addRectangle({100, 100, 100, 40});
        DesignerObject* b = canvas.addRectangle({250, 200, 50, 20});
        if (edge == int(AlignEdge::Middle) || edge == int(AlignEdge::Bottom))
            canvas.set(b, "position", QStringLiteral("250,220"));
        QVERIFY(Alignment::align(canvas.session.get(), {a, b}, AlignEdge(edge)).changed);
        QCOMPARE(canvas.value(a, "position"), first);
        QCOMPARE(canvas.value(b, "position"), second);
        QCOMPARE(canvas.steps(), 1);
        QVERIFY(!Alignment::align(canvas.session.get(), {a, b}, AlignEdge(edge)).changed);
        QCOMPARE(canvas.steps(), 1);
    }

    void aSingleElementIsAlignedWithItsScreen()
    {
        CanvasFixture canvas;
        DesignerObject* element = canvas.addRectangle({100, 100, 101, 40}, 2);
        EditSession* session = canvas.session.get();
        QVERIFY(Alignment::align(session, {element}, AlignEdge::Right).changed);
        // The border belongs to what is seen.
        QCOMPARE(canvas.value(element, "position"), QStringLiteral("698,100"));
        QVERIFY(Alignment::align(session, {element}, AlignEdge::Bottom).changed);
        QCOMPARE(canvas.value(element, "position"), QStringLiteral("698,439"));
        // Halfway between two pixels it stays on whole ones.
        QVERIFY(Alignment::align(session, {element}, AlignEdge::Center).changed);
        QCOMPARE(canvas.value(element, "position"), QStringLiteral("350,439"));
        QVERIFY(!Alignment::align(session, {element}, AlignEdge::Center).changed);
    }

    void turnedElementsAreAlignedByWhatIsSeenOfThem()
    {
        CanvasFixture canvas;
        DesignerObject* turned = canvas.addRectangle({100, 100, 100, 20});
        canvas.set(turned, "rotation", QStringLiteral("angle: 90; fixedPoint: TopLeft;"));
        DesignerObject* other = canvas.addRectangle({200, 150, 50, 50});
        // It now covers 80 to 100 across and 100 to 200 down.
        Alignment::align(canvas.session.get(), {turned, other}, AlignEdge::Left);
        QCOMPARE(canvas.value(other, "position"), QStringLiteral("80,150"));
        QCOMPARE(canvas.value(turned, "position"), QStringLiteral("100,100"));
        Alignment::align(canvas.session.get(), {turned, other}, AlignEdge::Bottom);
        QCOMPARE(canvas.value(other, "position"), QStringLiteral("80,150"));
    }

    void elementsOfAGroupAreAlignedInItsCoordinates()
    {
        CanvasFixture canvas;
        DesignerObject* a = canvas.addRectangle({100, 100, 100, 40});
        DesignerObject* b = canvas.addRectangle({250, 200, 50, 20});
        DesignerObject* group = canvas.addGroup({100, 100}, {a, b});
        canvas.set(group, "rotation", QStringLiteral("angle: 30; fixedPoint: TopLeft;"));
        Alignment::align(canvas.session.get(), {a, b}, AlignEdge::Top);
        QCOMPARE(canvas.value(a, "position"), QStringLiteral("0,0"));
        QCOMPARE(canvas.value(b, "position"), QStringLiteral("150,0"));
    }

    void elementsOfDifferentGroupsAreAlignedOnTheScreen()
    {
        CanvasFixture canvas;
        DesignerObject* a = canvas.addRectangle({100, 100, 100, 40});
        DesignerObject* b = canvas.addRectangle({250, 200, 50, 20});
        DesignerObject* group = canvas.addGroup({200, 150}, {b});
        canvas.set(group, "rotation", QStringLiteral("angle: 90; fixedPoint: TopLeft;"));
        Alignment::align(canvas.session.get(), {a, b}, AlignEdge::Left);
        const QRectF seen = ElementPlaces::outerBounds(b, ElementPlaces::placeOf(b).toScene);
        QVERIFY(qAbs(seen.left() - 100) < 1e-6);
        QCOMPARE(canvas.value(a, "position"), QStringLiteral("100,100"));
    }

    void lockedElementsCountAndStay()
    {
        CanvasFixture canvas;
        DesignerObject* locked = canvas.addRectangle({100, 100, 100, 40});
        DesignerObject* free = canvas.addRectangle({250, 200, 50, 20});
        canvas.session->setLocked({locked}, true);
        Alignment::align(canvas.session.get(), {locked, free}, AlignEdge::Left);
        QCOMPARE(canvas.value(free, "position"), QStringLiteral("100,200"));
        Alignment::align(canvas.session.get(), {locked, free}, AlignEdge::Bottom);
        QCOMPARE(canvas.value(locked, "position"), QStringLiteral("100,100"));
    }

    void whatLiesBetweenIsDistributedOnWholePixels()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({0, 0, 20, 20});
        DesignerObject* last = canvas.addRectangle({180, 0, 20, 20});
        DesignerObject* second = canvas.addRectangle({30, 0, 30, 20});
        DesignerObject* third = canvas.addRectangle({120, 0, 11, 20});
        QVERIFY(
            Alignment::distribute(canvas.session.get(), {first, last, second, third}, Qt::Horizontal, SpacingKind::Gaps)
                .changed);
        // 119 pixels of room in three gaps.
        QCOMPARE(canvas.value(second, "position"), QStringLiteral("60,0"));
        QCOMPARE(canvas.value(third, "position"), QStringLiteral("129,0"));
        QCOMPARE(canvas.value(first, "position"), QStringLiteral("0,0"));
        QCOMPARE(canvas.value(last, "position"), QStringLiteral("180,0"));
        QCOMPARE(canvas.steps(), 1);
        QVERIFY(
            !Alignment::distribute(canvas.session.get(), {first, second}, Qt::Vertical, SpacingKind::Gaps).accepted);
    }

    void allMoveTogetherToTheMiddleOfTheScreen()
    {
        CanvasFixture canvas;
        DesignerObject* a = canvas.addRectangle({10, 10, 100, 40});
        DesignerObject* b = canvas.addRectangle({150, 20, 51, 80});
        QVERIFY(Alignment::centerOnScreen(canvas.session.get(), {a, b}).changed);
        QCOMPARE(canvas.value(a, "position"), QStringLiteral("305,195"));
        QCOMPARE(canvas.value(b, "position"), QStringLiteral("445,205"));
        QCOMPARE(canvas.steps(), 1);
        QVERIFY(!Alignment::centerOnScreen(canvas.session.get(), {a, b}).changed);
    }

    void theFrontMostElementGivesTheSize()
    {
        CanvasFixture canvas;
        DesignerObject* back = canvas.addRectangle({10, 10, 100, 40}, 4);
        DesignerObject* keeping = canvas.addRectangle({10, 100, 100, 50});
        canvas.set(keeping, "keepRatio", QStringLiteral("2"));
        DesignerObject* front = canvas.addRectangle({150, 20, 60, 80});
        EditSession* session = canvas.session.get();
        QVERIFY(Alignment::makeSameSize(session, {front, back, keeping}, Alignment::Dimension::Width).changed);
        QCOMPARE(canvas.value(back, "size"), QStringLiteral("56,40"));
        QCOMPARE(canvas.value(keeping, "size"), QStringLiteral("60,30"));
        QCOMPARE(canvas.value(front, "size"), QStringLiteral("60,80"));
        QVERIFY(Alignment::makeSameSize(session, {front, back}, Alignment::Dimension::Both).changed);
        QCOMPARE(canvas.value(back, "boundingSize"), QStringLiteral("60,80"));
        QCOMPARE(canvas.steps(), 2);
        QVERIFY(!Alignment::makeSameSize(session, {front, back}, Alignment::Dimension::Height).changed);
        QVERIFY(!Alignment::makeSameSize(session, {front}, Alignment::Dimension::Height).accepted);
    }

    void edgesMeetWhateverTheTree()
    {
        const bool held = rc::check("aligned as seen", [] {
            ArrangeTree tree(true);
            const QList<DesignerObject*> some = ArrangeTree::anyOf(tree.topLevel());
            RC_PRE(some.size() > 1);
            const auto bounds = [](const DesignerObject* object) {
                return ElementPlaces::outerBounds(object, ElementPlaces::placeOf(object).toScene);
            };
            QRectF reference;
            for (const DesignerObject* object : some)
                reference |= bounds(object);
            const QByteArray start = tree.saved();
            const bool right = anyNumber(0, 2) == 0;
            const EditResult result =
                Alignment::align(tree.canvas.session.get(), some, right ? AlignEdge::Right : AlignEdge::Top);
            RC_ASSERT(result.accepted);
            for (const DesignerObject* object : some) {
                const double miss =
                    right ? bounds(object).right() - reference.right() : bounds(object).top() - reference.top();
                RC_ASSERT(std::abs(miss) < 1e-6);
            }
            if (result.changed)
                tree.canvas.session->undo();
            RC_ASSERT(tree.saved() == start);
        });
        QVERIFY(held);
    }
};

QTEST_MAIN(tst_Alignment)
#include "tst_Alignment.moc"
