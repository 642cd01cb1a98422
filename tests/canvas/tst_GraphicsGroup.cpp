#include "tests/canvas/CanvasFixture.h"
#include "tests/canvas/PointItem.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Groups on the canvas: their outline, and how they are hit, moved and turned as one.
class tst_GraphicsGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOutlineIsThatOfTheChildren()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle(QRectF(100, 100, 50, 50), 4);
        DesignerObject* second = canvas.addRectangle(QRectF(200, 150, 50, 50));
        const DesignerObject* group = canvas.addGroup({90, 80}, {first, second});
        QCOMPARE(canvas.graphic(group)->sceneBoundingRect(), QRectF(98, 98, 152, 102));
        canvas.set(second, "position", QStringLiteral("200,20"));
        QCOMPARE(canvas.graphic(group)->sceneBoundingRect(), QRectF(98, 98, 242, 54));
        canvas.set(first, "size", QStringLiteral("50,100"));
        QCOMPARE(canvas.graphic(group)->sceneBoundingRect(), QRectF(98, 98, 242, 104));
        QVERIFY(canvas.session->removeElements({second}).changed);
        QCOMPARE(canvas.graphic(group)->sceneBoundingRect(), QRectF(98, 98, 54, 104));
        QVERIFY(canvas.session->undo().accepted);
        QCOMPARE(canvas.graphic(group)->sceneBoundingRect(), QRectF(98, 98, 242, 104));
    }

    void aClickOnAChildSelectsItsGroupUnlessTheChildIsSelected()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.addRectangle(QRectF(100, 100, 50, 50));
        DesignerObject* group = canvas.addGroup({100, 100}, {child});
        canvas.click({120, 120});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{group});
        canvas.select({child});
        canvas.click({120, 120});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{child});
    }

    void theGapBetweenTheChildrenIsEmptyGround()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle(QRectF(100, 100, 20, 20));
        DesignerObject* second = canvas.addRectangle(QRectF(200, 200, 20, 20));
        DesignerObject* group = canvas.addGroup({0, 0}, {first, second});
        canvas.select({group});
        canvas.click({160, 160});
        QVERIFY(canvas.selected().isEmpty());
    }

    void aGroupAndItsChildMoveOnceTogether()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.addRectangle(QRectF(100, 100, 50, 50));
        DesignerObject* group = canvas.addGroup({90, 90}, {child});
        canvas.select({group, child});
        canvas.drag({125, 125}, {145, 155});
        QCOMPARE(canvas.value(group, "position"), QStringLiteral("110,120"));
        QCOMPARE(canvas.value(child, "position"), QStringLiteral("10,10"));
        QCOMPARE(canvas.steps(), 1);
    }

    void aChildOfATurnedGroupFollowsTheMouse()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.addRectangle(QRectF(100, 100, 50, 50));
        DesignerObject* group = canvas.addGroup({100, 100}, {child});
        canvas.set(group, "rotation", QStringLiteral("angle: 90; fixedPoint: TopLeft;"));
        canvas.select({child});
        const QPointF middle = canvas.graphic(child)->mapToScene(QPointF(25, 25));
        canvas.drag(middle, middle + QPointF(30, 0));
        QCOMPARE(canvas.graphic(child)->mapToScene(QPointF(25, 25)), middle + QPointF(30, 0));
        QCOMPARE(canvas.value(child, "position"), QStringLiteral("0,-30"));
    }

    void aGroupTurnsAboutTheRectangleThatTheExportGivesIt()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.addRectangle(QRectF(120, 140, 60, 40));
        DesignerObject* group = canvas.addGroup({100, 100}, {child});
        QCOMPARE(group->graphicsItem()->contentRect(), QRectF(0, 0, 80, 80));
        canvas.set(group, "rotation", QStringLiteral("angle: 180; fixedPoint: Center;"));
        QCOMPARE(canvas.graphic(child)->mapToScene(QPointF(0, 0)), QPointF(160, 140));
    }

    void turnedElementsInNestedGroupsCountUnturnedAsInTheExport()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.addRectangle(QRectF(100, 100, 100, 20));
        canvas.set(child, "rotation", QStringLiteral("angle: 90; fixedPoint: TopLeft;"));
        DesignerObject* inner = canvas.addGroup({100, 100}, {child});
        DesignerObject* outer = canvas.addGroup({100, 100}, {inner});
        QCOMPARE(inner->graphicsItem()->contentRect(), QRectF(0, 0, 100, 20));
        QCOMPARE(outer->graphicsItem()->contentRect(), QRectF(0, 0, 100, 20));
        QVERIFY(outer->toQml(0).contains(QStringLiteral("width: 100")));
        QVERIFY(outer->toQml(0).contains(QStringLiteral("height: 20")));
    }

    void childrenHearOfTheSelectionOfTheirGroup()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.add("PointElement");
        DesignerObject* group = canvas.addGroup({0, 0}, {child});
        auto* item = dynamic_cast<Test::PointItem*>(child->graphicsItem());
        item->selections.clear();
        canvas.select({group});
        canvas.select({});
        QCOMPARE(item->selections, QList<bool>({true, false}));
    }

    void aGroupCannotBeResizedButTurned()
    {
        CanvasFixture canvas;
        DesignerObject* child = canvas.addRectangle(QRectF(100, 100, 100, 100));
        const DesignerObject* group = canvas.addGroup({0, 0}, {child});
        QVERIFY(!group->graphicsItem()->hasFrameHandles());
        QVERIFY(group->graphicsItem()->isRotatable());
    }
};

QTEST_MAIN(tst_GraphicsGroup)
#include "tst_GraphicsGroup.moc"
