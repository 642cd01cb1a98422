#include "tests/canvas/CanvasFixture.h"
#include "tests/canvas/PointItem.h"

#include "host/core/objects/UnknownElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

namespace {

/// The ids of the elements' items from back to front, as Qt stacks them.
QStringList stacked(const CanvasFixture& canvas)
{
    QStringList ids;
    const QList<QGraphicsItem*> items = canvas.scene()->items(Qt::AscendingOrder);
    for (QGraphicsItem* graphic : items) {
        const GraphicsItem* item = GraphicsItem::fromGraphic(graphic);
        if (item->dataObject() != canvas.screen)
            ids.append(item->dataObject()->getIdName());
    }
    return ids;
}

} // namespace

/// The scene of a screen: which items there are, in which order, and what their making leaves alone.
class tst_CanvasScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAddedElementGetsItsItemAndARemovedOneLosesIt()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.add("Rectangle");
        QCOMPARE(canvas.graphic(rectangle)->scene(), canvas.scene());
        QVERIFY(canvas.session->removeElements({rectangle}).changed);
        QVERIFY(!rectangle->graphicsItem());
        QVERIFY(canvas.session->undo().accepted);
        QCOMPARE(canvas.graphic(rectangle)->scene(), canvas.scene());
    }

    void theOrderIsThatOfTheList()
    {
        CanvasFixture canvas;
        QList<DesignerObject*> all;
        for (int i = 0; i < 4; ++i)
            all.append(canvas.add("Rectangle"));
        QCOMPARE(stacked(canvas).join(QLatin1Char(' ')), QStringLiteral("rectangle1 rectangle2 rectangle3 rectangle4"));
        canvas.session->reorder(all.at(0), 3);
        QCOMPARE(stacked(canvas).join(QLatin1Char(' ')), QStringLiteral("rectangle2 rectangle3 rectangle4 rectangle1"));
        canvas.session->reorder(all.at(3), 0);
        QCOMPARE(stacked(canvas).join(QLatin1Char(' ')), QStringLiteral("rectangle4 rectangle2 rectangle3 rectangle1"));
        canvas.session->reorder(all.at(2), 1);
        QCOMPARE(stacked(canvas).join(QLatin1Char(' ')), QStringLiteral("rectangle4 rectangle3 rectangle2 rectangle1"));
        canvas.session->removeElements({all.at(1)});
        canvas.session->undo();
        QCOMPARE(stacked(canvas).join(QLatin1Char(' ')), QStringLiteral("rectangle4 rectangle3 rectangle2 rectangle1"));
        while (canvas.stack()->canUndo())
            canvas.session->undo();
        QCOMPARE(stacked(canvas).join(QLatin1Char(' ')), QStringLiteral("rectangle1 rectangle2 rectangle3 rectangle4"));
    }

    void theOrderHoldsHoweverOftenItChanges()
    {
        CanvasFixture canvas;
        for (int i = 0; i < 5; ++i)
            canvas.add("Rectangle");
        ObjectListProperty* list = canvas.screen->childList();
        for (int i = 0; i < 200; ++i)
            canvas.screen->moveListItem(list, 3, 1);
        QStringList expected;
        for (const DesignerObject* object : list->items())
            expected.append(object->getIdName());
        QCOMPARE(stacked(canvas), expected);
    }

    void anElementOfAnUnknownClassHasNoItemAndIsPassedOver()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.add("Rectangle");
        auto* unknown = new UnknownElement;
        unknown->initialize();
        QVERIFY(canvas.screen->addListItem(canvas.screen->childList(), unknown, 0));
        QVERIFY(!unknown->graphicsItem());
        canvas.add("Rectangle");
        canvas.session->reorder(first, 2);
        QCOMPARE(stacked(canvas), QStringList({QStringLiteral("rectangle2"), QStringLiteral("rectangle1")}));
    }

    void onlyItsOwnScreenIsFollowed()
    {
        CanvasFixture canvas;
        Screen* other = nullptr;
        canvas.session->addScreen(QStringLiteral("other"), {}, &other);
        const CanvasScene* otherScene = canvas.session->scene(other);
        canvas.session->setCurrentScreen(canvas.screen);
        const DesignerObject* rectangle = canvas.add("Rectangle");
        QCOMPARE(canvas.graphic(rectangle)->scene(), canvas.session->scene(canvas.screen));
        QCOMPARE(otherScene->items().size(), 1);
    }

    void makingTheItemsNeitherRecordsNorModifies()
    {
        CanvasFixture canvas;
        canvas.addRectangle(QRectF(0, 0, 100, 75), 10);
        canvas.project->setSaved();
        DesignerObject* pasted = DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), nullptr);
        pasted->getProperty(QStringLiteral("border"))->fill(QStringLiteral("width: 8; color: #ff0000;"));
        pasted->getProperty(QStringLiteral("keepRatio"))->fill(QStringLiteral("2"));
        QVERIFY(canvas.screen->addListItem(canvas.screen->childList(), pasted, -1));
        QCOMPARE(canvas.value(pasted, "boundingSize"), QStringLiteral("108,83"));
        QCOMPARE(canvas.value(pasted, "size"), QStringLiteral("100,75"));
        QCOMPARE(canvas.steps(), 0);
        QVERIFY(!canvas.project->isModified());
    }

    void theScreensSizeAndColourAreShown()
    {
        CanvasFixture canvas;
        canvas.set(canvas.screen, "size", QStringLiteral("320,240"));
        canvas.set(canvas.screen, "color", QStringLiteral("#102030"));
        QCOMPARE(canvas.scene()->sceneRect(), QRectF(0, 0, 320, 240));
        QCOMPARE(
            canvas.view->grab().toImage().pixelColor(canvas.view->viewportTransform().map(QPointF(100, 100)).toPoint()),
            QColor(0x10, 0x20, 0x30));
        QVERIFY(!canvas.scene()->elementAt({100, 100}));
    }

    void theFrontmostElementIsFound()
    {
        CanvasFixture canvas;
        DesignerObject* back = canvas.addRectangle(QRectF(0, 0, 100, 100));
        DesignerObject* front = canvas.addRectangle(QRectF(50, 50, 100, 100));
        QCOMPARE(canvas.scene()->elementAt({75, 75}), front);
        QCOMPARE(canvas.scene()->elementAt({25, 25}), back);
        canvas.session->reorder(back, 1);
        QCOMPARE(canvas.scene()->elementAt({75, 75}), back);
    }

    void theSelectionIsAnnouncedOnceAndInZOrder()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle(QRectF(0, 0, 10, 10));
        DesignerObject* second = canvas.addRectangle(QRectF(50, 0, 10, 10));
        DesignerObject* third = canvas.addRectangle(QRectF(90, 0, 10, 10));
        canvas.select({second});
        QSignalSpy announced(canvas.scene(), &QGraphicsScene::selectionChanged);
        canvas.scene()->setSelectedObjects({third, first});
        QCOMPARE(announced.size(), 1);
        QCOMPARE(canvas.scene()->selectedObjects(), QList<DesignerObject*>({first, third}));
        canvas.scene()->setSelectedObjects({first, third});
        QCOMPARE(announced.size(), 1);
    }

    void itemsHearOfTheirSelection()
    {
        CanvasFixture canvas;
        DesignerObject* object = canvas.add("PointElement");
        canvas.select({});
        auto* item = dynamic_cast<Test::PointItem*>(object->graphicsItem());
        item->selections.clear();
        canvas.select({object});
        canvas.select({object});
        canvas.select({});
        QCOMPARE(item->selections, QList<bool>({true, false}));
    }

    void removingASelectedElementAnnouncesIt()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 10, 10));
        canvas.select({rectangle});
        canvas.session->removeElements({rectangle});
        QVERIFY(canvas.scene()->selectedObjects().isEmpty());
        QVERIFY(canvas.selected().isEmpty());
    }

    void theIndexGrowsWithTheScene()
    {
        CanvasFixture canvas;
        canvas.view->grab();
        const int before = canvas.scene()->bspTreeDepth();
        for (int i = 0; i < 1000; ++i) {
            DesignerObject* object =
                DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), nullptr);
            QVERIFY(canvas.screen->addListItem(canvas.screen->childList(), object, -1));
        }
        QVERIFY(canvas.scene()->bspTreeDepth() > before);
    }
};

QTEST_MAIN(tst_CanvasScene)
#include "tst_CanvasScene.moc"
