#include "tests/arrange/ArrangeTree.h"

#include "host/core/arrange/Grouping.h"
#include "host/core/objects/EditorMarks.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::anyNumber;
using Test::ArrangeTree;
using Test::CanvasFixture;

/// Grouping and ungrouping: nothing moves, the order stays, each is a step that undo takes back.
class tst_Grouping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGroupBeginsWhereItsContentDoes()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 120, 50, 50}, 4);
        DesignerObject* second = canvas.addRectangle({180, 90, 30, 30});
        DesignerObject* group = nullptr;
        QVERIFY(Grouping::group(canvas.session.get(), {first, second}, {}, &group).changed);
        QCOMPARE(canvas.value(group, "position"), QStringLiteral("100,90"));
        QCOMPARE(canvas.value(first, "position"), QStringLiteral("0,30"));
        QCOMPARE(canvas.value(second, "position"), QStringLiteral("80,0"));
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{group});
        QCOMPARE(canvas.steps(), 1);
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Group Elements"));
        canvas.session->undo();
        QCOMPARE(canvas.selected(), (QList<DesignerObject*>{first, second}));
        canvas.session->redo();
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{group});
    }

    void whatStandsOnWholePixelsStaysThereBesideTurnedElements()
    {
        CanvasFixture canvas;
        DesignerObject* turned = canvas.addRectangle({100, 100, 50, 30});
        canvas.set(turned, "rotation", QStringLiteral("angle: 30; fixedPoint: Center;"));
        DesignerObject* other = canvas.addRectangle({200, 150, 40, 40});
        DesignerObject* group = nullptr;
        // The origin of a turned element is elsewhere; only what is not turned says where whole pixels are.
        Grouping::group(canvas.session.get(), {turned, other}, {}, &group);
        QVERIFY(ArrangeTree::isSame({{QStringLiteral("a"), QPolygonF(QRectF(200, 150, 40, 40))}},
                                    {{QStringLiteral("a"), canvas.graphic(other)->mapToScene(QRectF(0, 0, 40, 40))}}));
        const QString position = canvas.value(other, "position");
        QVERIFY2(!position.contains(QLatin1Char('.')), qPrintable(position));
    }

    void aGroupStandsWhereItsFrontMostElementStood()
    {
        CanvasFixture canvas;
        QList<DesignerObject*> made;
        for (int i = 0; i < 5; ++i)
            made.append(canvas.addRectangle(QRectF(50 * i, 0, 40, 40)));
        DesignerObject* group = nullptr;
        Grouping::group(canvas.session.get(), {made.at(3), made.at(1)}, QStringLiteral("pair"), &group);
        const QVector<DesignerObject*> expected{made.at(0), made.at(2), group, made.at(4)};
        QCOMPARE(canvas.screen->childList()->items(), expected);
        QCOMPARE(group->childList()->items(), (QVector<DesignerObject*>{made.at(1), made.at(3)}));
        QCOMPARE(group->getIdName(), QStringLiteral("pair"));
    }

    void elementsOfDifferentParentsMeetInTheParentOfTheFrontMost()
    {
        CanvasFixture canvas;
        DesignerObject* below = canvas.addRectangle({10, 10, 40, 40});
        DesignerObject* first = canvas.addRectangle({100, 100, 40, 40});
        DesignerObject* second = canvas.addRectangle({200, 100, 40, 40});
        DesignerObject* owner = canvas.addGroup({100, 100}, {first, second});
        DesignerObject* group = nullptr;
        Grouping::group(canvas.session.get(), {below, second}, {}, &group);
        QCOMPARE(group->parentObject(), owner);
        QCOMPARE(canvas.graphic(below)->scenePos(), QPointF(10, 10));
        QCOMPARE(canvas.graphic(first)->scenePos(), QPointF(100, 100));
    }

    void fewerThanTwoElementsMakeNoGroup()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({10, 10, 40, 40});
        DesignerObject* second = canvas.addRectangle({100, 10, 40, 40});
        QVERIFY(!Grouping::group(canvas.session.get(), {first}).accepted);
        QVERIFY(!Grouping::group(canvas.session.get(), {canvas.screen}).accepted);
        QVERIFY(!Grouping::group(canvas.session.get(), {}).accepted);
        canvas.session->setLocked({first}, true);
        canvas.stack()->clear();
        QVERIFY(Grouping::groupable({first, second}).isEmpty());
        QVERIFY(!Grouping::group(canvas.session.get(), {first, second}).accepted);
        QCOMPARE(canvas.steps(), 0);
    }

    void anIdThatIsTakenOrUnusableIsRefused()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({10, 10, 40, 40});
        DesignerObject* second = canvas.addRectangle({100, 10, 40, 40});
        QVERIFY(!Grouping::group(canvas.session.get(), {first, second}, QStringLiteral("rectangle1")).accepted);
        QVERIFY(!Grouping::group(canvas.session.get(), {first, second}, QStringLiteral("no id")).accepted);
        QCOMPARE(canvas.steps(), 0);
    }

    void ungroupingATurnedGroupLeavesThePictureAsItIs()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 60, 40});
        canvas.set(first, "rotation", QStringLiteral("angle: 20; fixedPoint: BottomLeft;"));
        DesignerObject* second = canvas.addRectangle({200, 150, 80, 30});
        DesignerObject* group = canvas.addGroup({90, 80}, {first, second});
        canvas.set(group, "rotation", QStringLiteral("angle: 30; fixedPoint: Center;"));
        const QPolygonF before = canvas.graphic(second)->mapToScene(QRectF(0, 0, 80, 30));
        QVERIFY(Grouping::ungroup(canvas.session.get(), {group}).changed);
        QCOMPARE(canvas.steps(), 1);
        QCOMPARE(canvas.selected(), (QList<DesignerObject*>{first, second}));
        QCOMPARE(canvas.value(first, "rotation"), QStringLiteral("angle: 50; fixedPoint: BottomLeft;"));
        QCOMPARE(canvas.value(second, "rotation"), QStringLiteral("angle: 30; fixedPoint: Center;"));
        QVERIFY(ArrangeTree::isSame({{QStringLiteral("a"), before}},
                                    {{QStringLiteral("a"), canvas.graphic(second)->mapToScene(QRectF(0, 0, 80, 30))}}));
        canvas.session->undo();
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{group});
    }

    void whatWasHiddenWithItsGroupStaysHidden()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 60, 40});
        DesignerObject* group = canvas.addGroup({90, 80}, {first});
        canvas.session->setHidden({group}, true);
        Grouping::ungroup(canvas.session.get(), {group});
        QVERIFY(EditorMarks::isHidden(first));
        QVERIFY(!canvas.graphic(first)->isVisible());
    }

    void lockedGroupsStayTogether()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 60, 40});
        DesignerObject* group = canvas.addGroup({90, 80}, {first});
        canvas.session->setLocked({group}, true);
        canvas.stack()->clear();
        QVERIFY(Grouping::ungroupable({group}).isEmpty());
        QVERIFY(!Grouping::ungroup(canvas.session.get(), {group}).changed);
        QCOMPARE(first->parentObject(), group);
    }

    void inTreesWithoutTurnsEveryNumberStaysWhole()
    {
        const bool held = rc::check("whole numbers", [] {
            ArrangeTree tree(false);
            Grouping::group(tree.canvas.session.get(), ArrangeTree::anyOf(tree.all()));
            Grouping::ungroup(tree.canvas.session.get(), ArrangeTree::anyOf(tree.all()));
            const QList<DesignerObject*> all = tree.all();
            for (const DesignerObject* object : all)
                RC_ASSERT(!CanvasFixture::value(object, "position").contains(QLatin1Char('.')));
        });
        QVERIFY(held);
    }

    void nothingMovesWhateverIsGroupedAndUngrouped()
    {
        const bool held = rc::check("grouping keeps the picture", [] {
            ArrangeTree tree(true);
            EditSession* session = tree.canvas.session.get();
            const auto corners = tree.corners();
            const QByteArray start = tree.saved();
            const int count = anyNumber(1, 6);
            for (int i = 0; i < count; ++i) {
                const QList<DesignerObject*> some = ArrangeTree::anyOf(tree.all());
                const QStringList order = tree.order();
                const int steps = tree.canvas.stack()->index();
                if (anyNumber(0, 2) == 0) {
                    const EditResult result = Grouping::group(session, some);
                    RC_ASSERT(result.changed == !Grouping::groupable(some).isEmpty() || result.changed);
                } else {
                    (void)Grouping::ungroup(session, some);
                    RC_ASSERT(tree.order() == order);
                }
                RC_ASSERT(tree.canvas.stack()->index() <= steps + 1);
                RC_ASSERT(ArrangeTree::isSame(tree.corners(), corners));
            }
            const QByteArray end = tree.saved();
            while (tree.canvas.stack()->canUndo())
                session->undo();
            RC_ASSERT(tree.saved() == start);
            RC_ASSERT(ArrangeTree::isSame(tree.corners(), corners));
            while (tree.canvas.stack()->canRedo())
                session->redo();
            RC_ASSERT(tree.saved() == end);
            RC_ASSERT(ArrangeTree::isSame(tree.corners(), corners));
        });
        QVERIFY(held);
    }
};

QTEST_MAIN(tst_Grouping)
#include "tst_Grouping.moc"
