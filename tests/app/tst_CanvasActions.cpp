#include "app/AppSettings.h"
#include "app/CanvasActions.h"
#include "app/CanvasMenu.h"
#include "app/CanvasSettings.h"
#include "app/GridDialog.h"
#include "app/GuidePopup.h"
#include "app/MainWindow.h"
#include "app/ProjectDocument.h"
#include "app/Workspace.h"
#include "tests/app/FakePrompts.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QStandardPaths>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::FakePrompts;

/// Snapping, grid, rulers, guides and the context menu, by the actions of the window.
class tst_CanvasActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        QFile::remove(AppSettings::filePath());
        open();
    }

    void cleanup() { m_window.reset(); }

    void theApplicationSnapsAndHasRulersAtFirst()
    {
        QVERIFY(aids().snapping);
        QVERIFY(aids().rulers);
        QVERIFY(aids().readout);
        QVERIFY(!aids().grid);
        QVERIFY(action("canvas.snap")->isChecked());
        QVERIFY(!action("canvas.showGrid")->isChecked());
    }

    void theSwitchesWorkAndAreRemembered()
    {
        action("canvas.snap")->trigger();
        action("canvas.showGrid")->trigger();
        action("canvas.showRulers")->trigger();
        action("canvas.lockGuides")->trigger();
        action("canvas.gridOf16")->trigger();
        const CanvasAids chosen = aids();
        QVERIFY(!chosen.snapping);
        QVERIFY(chosen.grid);
        QVERIFY(!chosen.rulers);
        QVERIFY(chosen.guidesLocked);
        QCOMPARE(chosen.gridSpacing, QSizeF(16, 16));
        QCOMPARE(session()->undoStack()->count(), 0);
        m_window.reset();
        open();
        QCOMPARE(aids(), chosen);
        QVERIFY(action("canvas.gridOf16")->isChecked());
        QVERIFY(!action("canvas.snap")->isChecked());
        // A new project has them, too.
        m_window->document()->create(QStringLiteral("other"), QSizeF(320, 240));
        QCOMPARE(aids(), chosen);
    }

    void aSpacingOfOnesOwnIsAskedFor()
    {
        action("canvas.gridOfOtherSpacing")->trigger();
        auto* dialog = m_window->findChild<GridDialog*>();
        QVERIFY(dialog);
        const QList<QDoubleSpinBox*> fields = dialog->findChildren<QDoubleSpinBox*>();
        QCOMPARE(fields.size(), 2);
        fields.at(0)->setValue(12);
        fields.at(1)->setValue(7.5);
        dialog->accept();
        QCOMPARE(aids().gridSpacing, QSizeF(12, 7.5));
        QVERIFY(aids().grid);
        QVERIFY(action("canvas.gridOfOtherSpacing")->isChecked());
        QTRY_VERIFY(!m_window->findChild<GridDialog*>());
        action("canvas.gridOfOtherSpacing")->trigger();
        m_window->findChild<GridDialog*>()->reject();
        QCOMPARE(aids().gridSpacing, QSizeF(12, 7.5));
    }

    void nonsenseInTheSettingsIsPassedOver()
    {
        {
            AppSettings settings;
            settings.setValue(QStringLiteral("canvas/gridWidth"), QStringLiteral("nan"));
            settings.setValue(QStringLiteral("canvas/gridHeight"), -5);
        }
        QCOMPARE(CanvasSettings::load().gridSpacing, QSizeF(10, 10));
    }

    void guidesAreAddedByTheirNumber()
    {
        action("canvas.addGuide")->trigger();
        auto* popup = canvas()->findChild<GuidePopup*>();
        QVERIFY(popup);
        auto* field = popup->findChild<QDoubleSpinBox*>();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLocale().toString(50.5));
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(guides(), QStringLiteral("x 50.5"));
        QCOMPARE(session()->undoStack()->undoText(), QStringLiteral("Add Guide"));
        session()->undo();
        QCOMPARE(guides(), QString());
    }

    void aDoubleClickedGuideIsMovedByItsNumber()
    {
        canvas()->guides()->add({Qt::Horizontal, 40});
        const QPoint place = canvas()->viewportTransform().map(QPointF(100, 40)).toPoint();
        QTest::mouseDClick(canvas()->viewport(), Qt::LeftButton, {}, place);
        auto* popup = canvas()->findChild<GuidePopup*>();
        QVERIFY(popup);
        auto* field = popup->findChild<QDoubleSpinBox*>();
        QCOMPARE(field->value(), 40.0);
        field->setValue(75.25);
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(guides(), QStringLiteral("y 75.25"));
        QCOMPARE(session()->undoStack()->count(), 2);

        QTRY_VERIFY(!canvas()->findChild<GuidePopup*>());
        Q_EMIT canvas()->guideActivated(0);
        popup = canvas()->findChild<GuidePopup*>();
        popup->findChild<QDoubleSpinBox*>()->setValue(3);
        QTest::keyClick(popup, Qt::Key_Escape);
        QCOMPARE(guides(), QStringLiteral("y 75.25"));
        QTRY_VERIFY(!canvas()->findChild<GuidePopup*>());
    }

    void guidesAreClearedWhereThereAreSome()
    {
        QVERIFY(!action("canvas.clearGuides")->isEnabled());
        canvas()->guides()->add({Qt::Horizontal, 40});
        canvas()->guides()->add({Qt::Vertical, 10});
        QVERIFY(action("canvas.clearGuides")->isEnabled());
        action("canvas.clearGuides")->trigger();
        QCOMPARE(guides(), QString());
        QVERIFY(!action("canvas.clearGuides")->isEnabled());
        session()->undo();
        QCOMPARE(guides(), QStringLiteral("y 40, x 10"));
        // The guides belong to the screen.
        session()->addScreen();
        QVERIFY(!action("canvas.clearGuides")->isEnabled());
    }

    void zoomToSelectionNeedsOne()
    {
        QVERIFY(!action("view.zoomToSelection")->isEnabled());
        DesignerObject* element = add(QRectF(500, 300, 60, 40));
        session()->setSelection({element});
        QVERIFY(action("view.zoomToSelection")->isEnabled());
        const double before = canvas()->zoom();
        action("view.zoomToSelection")->trigger();
        QVERIFY(canvas()->zoom() > before);
        session()->setSelection({session()->currentScreen()});
        QVERIFY(!action("view.zoomToSelection")->isEnabled());
    }

    void theContextMenuSelectsWhatLiesBeneath()
    {
        DesignerObject* below = add(QRectF(100, 100, 200, 150));
        DesignerObject* above = add(QRectF(150, 120, 100, 80));
        session()->setSelection({});
        const QPoint place = canvas()->viewportTransform().map(QPointF(180, 150)).toPoint();
        auto* menus = canvas()->findChild<CanvasMenu*>();
        QVERIFY(menus);
        const std::unique_ptr<QMenu> menu(menus->make(place));
        QMenu* under = menu->actions().constFirst()->menu();
        QVERIFY(under);
        QCOMPARE(under->actions().size(), 2);
        QCOMPARE(under->actions().at(0)->text(), above->getIdName());
        QCOMPARE(under->actions().at(1)->text(), below->getIdName());
        QVERIFY(!under->actions().at(0)->icon().isNull());
        under->actions().at(1)->hover();
        QCOMPARE(canvas()->outlined(), below);
        under->actions().at(1)->trigger();
        QCOMPARE(session()->selection(), QList<DesignerObject*>{below});
        const std::unique_ptr<QMenu> elsewhere(menus->make(QPoint(3, 3)));
        QVERIFY(!elsewhere->actions().constFirst()->isEnabled());
    }

    void theContextMenuOffersOnlyWhatCanAct()
    {
        DesignerObject* element = add(QRectF(100, 100, 200, 150));
        auto* menus = canvas()->findChild<CanvasMenu*>();
        QVERIFY(menus);
        const auto names = [menus] {
            QStringList names;
            const std::unique_ptr<QMenu> menu(menus->make(QPoint(3, 3)));
            const QList<QAction*> entries = menu->actions();
            for (const QAction* entry : entries)
                names.append(entry->objectName());
            return names;
        };
        session()->setSelection({element});
        QStringList offered = names();
        for (const char* name :
             {"edit.cut", "edit.copy", "edit.duplicate", "edit.delete", "edit.rename", "arrange.lock"})
            QVERIFY2(offered.contains(QLatin1String(name)), name);
        QVERIFY(!offered.contains(QStringLiteral("arrange.ungroup")));
        session()->setSelection({});
        offered = names();
        for (const char* name : {"edit.cut", "edit.delete", "edit.duplicate", "arrange.group", "arrange.lock"})
            QVERIFY2(!offered.contains(QLatin1String(name)), name);
        QVERIFY(offered.contains(QStringLiteral("edit.selectAll")));
        QVERIFY(offered.contains(QStringLiteral("screen.add")));
    }

    void aClickBesideTheElementsLetsGoOfAScreenChosenInTheTree()
    {
        (void)add(QRectF(100, 100, 200, 150));
        session()->setSelection({session()->currentScreen()});
        QVERIFY(action("edit.delete")->isEnabled());
        const QPoint ground = canvas()->viewportTransform().map(QPointF(20, 20)).toPoint();
        QTest::mouseClick(canvas()->viewport(), Qt::LeftButton, {}, ground);
        QVERIFY(session()->selection().isEmpty());
        QVERIFY(!action("edit.delete")->isEnabled());
    }

    void theRightButtonShowsTheMenu()
    {
        DesignerObject* element = add(QRectF(100, 100, 200, 150));
        session()->setSelection({});
        const QPoint place = canvas()->viewportTransform().map(QPointF(150, 150)).toPoint();
        QTest::mousePress(canvas()->viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, canvas()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(canvas()->viewport(), &event);
        QTest::mouseRelease(canvas()->viewport(), Qt::RightButton, {}, place);
        auto* menu = canvas()->findChild<QMenu*>(QStringLiteral("CanvasMenu"));
        QVERIFY(menu);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(session()->selection(), QList<DesignerObject*>{element});
        menu->close();
    }

private:
    void open()
    {
        m_window = std::make_unique<MainWindow>(&m_prompts);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTest::qWait(50);
    }
    [[nodiscard]] CanvasView* canvas() const { return m_window->workspace()->canvas(); }
    [[nodiscard]] EditSession* session() const { return m_window->workspace()->session(); }
    [[nodiscard]] const CanvasAids& aids() const { return canvas()->aids(); }
    [[nodiscard]] QAction* action(const char* name) const
    {
        auto* found = m_window->findChild<QAction*>(QLatin1String(name));
        if (!found)
            qFatal("there is no action %s", name);
        return found;
    }
    [[nodiscard]] QString guides() const { return session()->currentScreen()->editorMark(QStringLiteral("guides")); }
    [[nodiscard]] DesignerObject* add(const QRectF& rect) const
    {
        DesignerObject* added = nullptr;
        const auto text = [](double a, double b) { return QStringLiteral("%1,%2").arg(a).arg(b); };
        session()->addElement(QStringLiteral("Rectangle"), session()->currentScreen(), {},
                              {{QStringLiteral("position"), text(rect.x(), rect.y())},
                               {QStringLiteral("size"), text(rect.width(), rect.height())}},
                              &added);
        return added;
    }

    FakePrompts m_prompts;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_CanvasActions)
#include "tst_CanvasActions.moc"
