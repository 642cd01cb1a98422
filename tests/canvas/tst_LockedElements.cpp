#include "tests/canvas/CanvasFixture.h"

#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/project/ElementJson.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// What it means on the canvas that elements are locked or hidden.
class tst_LockedElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMouseReachesThroughWhatIsLocked()
    {
        CanvasFixture canvas;
        DesignerObject* below = canvas.addRectangle({100, 100, 100, 80});
        DesignerObject* above = canvas.addRectangle({120, 110, 40, 40});
        canvas.session->setLocked({above}, true);
        canvas.click({140, 130});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{below});
        canvas.drag({140, 130}, {150, 135});
        QCOMPARE(canvas.value(below, "position"), QStringLiteral("110,105"));
        QCOMPARE(canvas.value(above, "position"), QStringLiteral("120,110"));
        canvas.select({});
        for (int i = 0; i < 3; ++i) {
            canvas.click({140, 130}, Qt::ControlModifier);
            QCOMPARE(canvas.selected(), QList<DesignerObject*>{below});
        }
        QCOMPARE(canvas.scene()->elementsAt({140, 130}), QList<DesignerObject*>{below});
        canvas.session->setLocked({below}, true);
        canvas.click({140, 130});
        QVERIFY(canvas.selected().isEmpty());
    }

    void noWayOfSelectingOnTheCanvasReachesLockedOrHiddenElements_data()
    {
        QTest::addColumn<bool>("hide");
        QTest::newRow("locked") << false;
        QTest::newRow("hidden") << true;
    }

    void noWayOfSelectingOnTheCanvasReachesLockedOrHiddenElements()
    {
        QFETCH(bool, hide);
        CanvasFixture canvas;
        DesignerObject* free = canvas.addRectangle({100, 100, 50, 50});
        DesignerObject* other = canvas.addRectangle({200, 100, 50, 50});
        if (hide)
            canvas.session->setHidden({other}, true);
        else
            canvas.session->setLocked({other}, true);
        const QList<DesignerObject*> freeAlone{free};
        canvas.drag({50, 50}, {300, 200});
        QCOMPARE(canvas.selected(), freeAlone);
        canvas.select({});
        canvas.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(canvas.selected(), freeAlone);
        for (int i = 0; i < 3; ++i) {
            canvas.key(Qt::Key_Tab);
            QCOMPARE(canvas.selected(), freeAlone);
        }
        canvas.click({225, 125});
        QVERIFY(canvas.selected().isEmpty());
    }

    void whatIsLockedOrHiddenIsNoLongerSelected()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 50, 50});
        DesignerObject* second = canvas.addRectangle({200, 100, 50, 50});
        DesignerObject* third = canvas.addRectangle({300, 100, 50, 50});
        canvas.select({first, second, third});
        canvas.session->setLocked({first}, true);
        QCOMPARE(canvas.selected(), (QList<DesignerObject*>{second, third}));
        QVERIFY(!canvas.graphic(first)->isSelected());
        canvas.session->setHidden({second}, true);
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{third});
        canvas.session->undo();
        canvas.session->undo();
        canvas.select({first, second});
        canvas.session->redo();
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{second});
    }

    void lockedElementsSelectedElsewhereKeepTheirPlaceAndShowNoHandles()
    {
        CanvasFixture canvas;
        DesignerObject* locked = canvas.addRectangle({100, 100, 100, 80});
        DesignerObject* free = canvas.addRectangle({300, 100, 100, 80});
        canvas.session->setLocked({locked}, true);
        const QImage without = canvas.view->grab().toImage();
        canvas.select({locked});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{locked});
        const QImage with = canvas.view->grab().toImage();
        const QTransform toView = canvas.view->viewportTransform();
        // The frame is drawn, but beside its corners there is nothing.
        QVERIFY(with != without);
        const QPoint besideTheCorner = toView.map(QPointF(100, 100)).toPoint() - QPoint(3, 3);
        QCOMPARE(with.pixel(besideTheCorner), without.pixel(besideTheCorner));
        const int before = canvas.steps();
        canvas.drag({200, 180}, {220, 200}); // what would be a corner
        canvas.select({locked, free});
        canvas.key(Qt::Key_Right);
        canvas.drag({350, 140}, {360, 150});
        QCOMPARE(canvas.value(locked, "position"), QStringLiteral("100,100"));
        QCOMPARE(canvas.value(locked, "size"), QStringLiteral("100,80"));
        QCOMPARE(canvas.value(free, "position"), QStringLiteral("311,110"));
        canvas.select({locked});
        canvas.key(Qt::Key_Delete);
        QVERIFY(canvas.screen->element(locked->getIdName()));
        QCOMPARE(canvas.steps(), before + 2);
    }

    void propertiesOfLockedElementsCanBeEdited()
    {
        CanvasFixture canvas;
        DesignerObject* locked = canvas.addRectangle({100, 100, 100, 80});
        canvas.session->setLocked({locked}, true);
        QVERIFY(canvas.session->setProperty(locked, QStringLiteral("position"), QStringLiteral("5,6")).changed);
        QCOMPARE(canvas.graphic(locked)->pos(), QPointF(5, 6));
    }

    void groupsPassLockAndSightOnToWhatIsInThem()
    {
        CanvasFixture canvas;
        DesignerObject* inner = canvas.addRectangle({100, 100, 60, 60});
        DesignerObject* group = canvas.addGroup({100, 100}, {inner});
        canvas.session->setLocked({group}, true);
        canvas.click({130, 130});
        QVERIFY(canvas.selected().isEmpty());
        canvas.select({inner});
        canvas.drag({130, 130}, {140, 140});
        QCOMPARE(canvas.value(inner, "position"), QStringLiteral("0,0"));
        canvas.session->setLocked({group}, false);
        canvas.session->setHidden({group}, true);
        QVERIFY(!canvas.graphic(inner)->isVisible());
        canvas.session->undo();
        QVERIFY(canvas.graphic(inner)->isVisible());
    }

    void aLockedMemberMovesWithItsGroup()
    {
        CanvasFixture canvas;
        DesignerObject* locked = canvas.addRectangle({100, 100, 60, 60});
        DesignerObject* free = canvas.addRectangle({200, 100, 60, 60});
        DesignerObject* group = canvas.addGroup({100, 100}, {locked, free});
        canvas.session->setLocked({locked}, true);
        canvas.click({130, 130});
        QVERIFY(canvas.selected().isEmpty());
        canvas.drag({230, 130}, {240, 140});
        QCOMPARE(canvas.value(group, "position"), QStringLiteral("110,110"));
    }

    void hiddenElementsAreRenderedAllTheSame()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle({100, 100, 60, 60});
        DesignerObject* member = canvas.addRectangle({300, 100, 60, 60});
        DesignerObject* group = canvas.addGroup({300, 100}, {member});
        canvas.set(rectangle, "color", QStringLiteral("#ff0000"));
        canvas.set(member, "color", QStringLiteral("#0000ff"));
        const QImage shown = ScreenRenderer::render(canvas.scene());
        const QImage seen = canvas.view->grab().toImage();
        canvas.session->setHidden({rectangle, group}, true);
        QCOMPARE(ScreenRenderer::render(canvas.scene()), shown);
        const QImage hidden = canvas.view->grab().toImage();
        const QPoint place = canvas.view->viewportTransform().map(QPointF(130, 130)).toPoint();
        QCOMPARE(seen.pixelColor(place), QColor(Qt::red));
        QCOMPARE(hidden.pixelColor(place), QColor(Qt::white));
    }

    void eachIsOneStepThatUndoTakesBackByteForByte()
    {
        CanvasFixture canvas;
        DesignerObject* first = canvas.addRectangle({100, 100, 60, 60});
        DesignerObject* second = canvas.addRectangle({200, 100, 60, 60});
        const QJsonObject before = ElementJson::write(canvas.screen);
        QVERIFY(canvas.session->setLocked({first, second}, true).changed);
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Lock 2 Elements"));
        QVERIFY(canvas.session->setHidden({second}, true).changed);
        QCOMPARE(canvas.stack()->undoText(), QStringLiteral("Hide rectangle2"));
        QCOMPARE(canvas.steps(), 2);
        QVERIFY(!canvas.session->setHidden({second}, true).changed);
        QCOMPARE(canvas.steps(), 2);
        const QJsonObject after = ElementJson::write(canvas.screen);
        QVERIFY(before != after);
        canvas.session->undo();
        canvas.session->undo();
        QCOMPARE(ElementJson::write(canvas.screen), before);
        QVERIFY(canvas.graphic(second)->isVisible());
        canvas.session->redo();
        canvas.session->redo();
        QCOMPARE(ElementJson::write(canvas.screen), after);
    }

    void aScreenOpenedWithHiddenElementsShowsNoneOfThem()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle({100, 100, 60, 60});
        canvas.session->setHidden({rectangle}, true);
        CanvasScene again(canvas.screen);
        QVERIFY(again.items(QPointF(130, 130)).isEmpty() || !again.elementAt({130, 130}));
        QVERIFY(EditorMarks::isHidden(rectangle));
    }

    void whatWasSelectedWhileHiddenIsFramedWhenItIsShown()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle({100, 100, 60, 60});
        canvas.session->setHidden({rectangle}, true);
        canvas.select({rectangle});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{rectangle});
        canvas.session->setHidden({rectangle}, false);
        QVERIFY(canvas.graphic(rectangle)->isSelected());
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{rectangle});
    }

    void thousandsOfElementsAreLockedHiddenAndShownInNoTime()
    {
        CanvasFixture canvas;
        QList<DesignerObject*> all;
        for (int i = 0; i < 4000; ++i)
            all.append(canvas.addRectangle({double(i % 80) * 10, double(i / 80) * 10, 8, 8}));
        QElapsedTimer clock;
        const auto taken = [&clock](const char* what) {
            const qint64 time = clock.restart();
            qInfo("%s: %lld ms", what, time);
            return time;
        };
        canvas.select(all);
        clock.start();
        canvas.session->setLocked(all, true);
        QVERIFY(taken("locking") < 2000);
        QVERIFY(canvas.selected().isEmpty());
        canvas.session->undo();
        QVERIFY(taken("undoing it") < 2000);
        canvas.select(all);
        clock.start();
        canvas.session->redo();
        QVERIFY(taken("locking again") < 2000);
        QVERIFY(canvas.selected().isEmpty());
        canvas.session->undo();

        canvas.session->setHidden(all, true);
        canvas.select(all);
        QCOMPARE(canvas.selected().size(), all.size());
        clock.start();
        canvas.session->setHidden(all, false);
        QVERIFY(taken("showing") < 2000);
        QVERIFY(canvas.graphic(all.constFirst())->isSelected() && canvas.graphic(all.constLast())->isSelected());
        canvas.session->undo();
        QVERIFY(taken("hiding") < 2000);
        canvas.session->redo();
        QVERIFY(taken("showing again") < 2000);
    }
};

QTEST_MAIN(tst_LockedElements)
#include "tst_LockedElements.moc"
