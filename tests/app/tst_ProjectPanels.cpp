#include "tests/app/ImageWindow.h"

#include "app/FindPanel.h"
#include "app/FontPanel.h"
#include "app/ProblemIndicator.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectPanels.h"
#include "app/ScreenActions.h"
#include "app/ScreenListModel.h"
#include "app/ScreenTabs.h"
#include "app/ScreenThumbnails.h"
#include "app/ScreensPanel.h"

#include "host/core/editors/PropertyEditor.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ProblemMonitor.h"
#include "host/core/sheet/PropertySheet.h"

#include <QAbstractItemModelTester>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QStandardPaths>
#include <QToolButton>
#include <QTreeWidget>

using namespace Korvex::Meridane::Designer;
using Test::ImageWindow;

/// The panels of screens, fonts, found places and problems in the window.
class tst_ProjectPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }
    void init() { m_window = std::make_unique<ImageWindow>(); }
    void cleanup() { m_window.reset(); }

    void screensAreListedWithPicturesThatFollowChanges()
    {
        show("ScreensDock");
        const QAbstractItemModelTester tester(screens()->screenModel());
        QTRY_VERIFY(!thumbnail(0).isNull());
        QCOMPARE(thumbnail(0).pixelColor(5, 5), QColor(Qt::white));
        m_window->session()->setProperty(screen(0), QStringLiteral("color"), QStringLiteral("#ff0000"));
        QTRY_COMPARE(thumbnail(0).pixelColor(5, 5), QColor(Qt::red));
        m_window->session()->undo();
        QTRY_COMPARE(thumbnail(0).pixelColor(5, 5), QColor(Qt::white));
        m_window->session()->addScreen(QStringLiteral("second"));
        QCOMPARE(rows(), (QStringList{QStringLiteral("main"), QStringLiteral("second")}));
        QTRY_VERIFY(!thumbnail(1).isNull());
    }

    void noPictureIsDrawnDuringAGesture()
    {
        show("ScreensDock");
        QTRY_VERIFY(!thumbnail(0).isNull());
        const ScreenThumbnails* thumbnails = screens()->screenModel()->thumbnails();
        QTest::qWait(600);
        const int before = thumbnails->drawnCount();
        m_window->session()->setProperty(screen(0), QStringLiteral("color"), QStringLiteral("#00ff00"));
        m_window->stack()->setBlocked(true);
        QTest::qWait(1000);
        QCOMPARE(thumbnails->drawnCount(), before);
        m_window->stack()->setBlocked(false);
        QTRY_COMPARE(thumbnail(0).pixelColor(5, 5), QColor(Qt::green));
    }

    void theKeysOfTheListShowRenameMoveAndRemove()
    {
        m_window->session()->addScreen(QStringLiteral("second"));
        m_window->session()->addScreen(QStringLiteral("third"));
        show("ScreensDock");
        screens()->setFocus();
        QTRY_VERIFY(screens()->hasFocus());
        QCOMPARE(screens()->currentRow(), screen(2)); // the one that is shown
        QTest::keyClick(screens(), Qt::Key_Up);
        QTest::keyClick(screens(), Qt::Key_Return);
        QCOMPARE(m_window->session()->currentScreen(), screen(1));
        QTest::keyClick(screens(), Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows(), (QStringList{QStringLiteral("second"), QStringLiteral("main"), QStringLiteral("third")}));
        QCOMPARE(screens()->currentIndex().row(), 0);
        QTest::keyClick(screens(), Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier); // no further
        QTest::keyClick(screens(), Qt::Key_F2);
        auto* line = screens()->findChild<QLineEdit*>();
        QVERIFY(line && line->hasFocus());
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("first"));
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(screen(0)->getIdName(), QStringLiteral("first"));
        const int steps = m_window->stack()->count();
        QTest::keyClick(screens(), Qt::Key_Delete);
        QCOMPARE(rows(), (QStringList{QStringLiteral("main"), QStringLiteral("third")}));
        QCOMPARE(m_window->stack()->count(), steps + 1);
        m_window->session()->undo();
        QCOMPARE(rows().size(), 3);
    }

    void aRowIsDraggedToAnotherPlace()
    {
        m_window->session()->addScreen(QStringLiteral("second"));
        m_window->session()->addScreen(QStringLiteral("third"));
        ScreenListModel* model = screens()->screenModel();
        const QAbstractItemModelTester tester(model);
        const std::unique_ptr<QMimeData> data(model->mimeData({model->index(0)}));
        QVERIFY(!model->canDropMimeData(data.get(), Qt::CopyAction, 3, 0, {}));
        (void)model->dropMimeData(data.get(), Qt::MoveAction, 3, 0, {});
        QCOMPARE(rows(), (QStringList{QStringLiteral("second"), QStringLiteral("third"), QStringLiteral("main")}));
        const std::unique_ptr<QMimeData> last(model->mimeData({model->index(2)}));
        (void)model->dropMimeData(last.get(), Qt::MoveAction, 1, 0, {});
        QCOMPARE(rows(), (QStringList{QStringLiteral("second"), QStringLiteral("main"), QStringLiteral("third")}));
        m_window->session()->undo();
        m_window->session()->undo();
        QCOMPARE(rows().constFirst(), QStringLiteral("main"));
    }

    void theMenuOfAScreenIsAboutThatScreen()
    {
        m_window->session()->addScreen(QStringLiteral("second"));
        QMenu menu;
        panels()->screenActions()->fillMenu(&menu, screen(0));
        choose(menu, "Duplicate");
        QCOMPARE(rows(), (QStringList{QStringLiteral("main"), QStringLiteral("main1"), QStringLiteral("second")}));
        m_window->prompts.screenSize = ScreenSize{QSizeF(100, 50), true};
        choose(menu, "Resize…");
        QCOMPARE(m_window->prompts.asked.constLast(), QStringLiteral("size of main"));
        QCOMPARE(screen(0)->size(), QSizeF(100, 50));
        m_window->prompts.screenSize.reset(); // the dialog is left
        const int steps = m_window->stack()->count();
        choose(menu, "Resize…");
        QCOMPARE(m_window->stack()->count(), steps);
        choose(menu, "Move Back");
        QCOMPARE(rows().constFirst(), QStringLiteral("main1"));
        choose(menu, "Remove");
        QCOMPARE(rows(), (QStringList{QStringLiteral("main1"), QStringLiteral("second")}));
        choose(menu, "Duplicate"); // of a screen that is gone
        QCOMPARE(rows().size(), 2);
    }

    void theButtonsAboveTheListActOnTheCurrentRow()
    {
        show("ScreensDock");
        press("Add a Screen");
        QCOMPARE(rows(), (QStringList{QStringLiteral("main"), QStringLiteral("screen1")}));
        screens()->setCurrentIndex(screens()->screenModel()->index(0));
        press("Duplicate");
        QCOMPARE(rows(), (QStringList{QStringLiteral("main"), QStringLiteral("main1"), QStringLiteral("screen1")}));
        screens()->setCurrentIndex(screens()->screenModel()->index(2));
        press("Remove");
        press("Remove");
        press("Remove");
        QVERIFY(rows().isEmpty());
        QVERIFY(!button("Duplicate")->isEnabled() && button("Add a Screen")->isEnabled());
    }

    void aTabAsksForTheMenuOfItsScreen()
    {
        m_window->session()->addScreen(QStringLiteral("second"));
        ScreenTabs* tabs = m_window->window->workspace()->canvasPanel()->tabs();
        QTRY_COMPARE(tabs->count(), 2);
        tabs->disconnect(panels()->screenActions()); // a menu would wait for somebody
        QList<Screen*> asked;
        connect(tabs, &ScreenTabs::menuRequested, this, [&asked](Screen* about) { asked.append(about); });
        const QPoint at = tabs->tabRect(0).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, tabs->mapToGlobal(at));
        QApplication::sendEvent(tabs, &event);
        QCOMPARE(asked, QList<Screen*>{screen(0)});
        tabs->disconnect(this);
    }

    void theScreenActionsAreEnabledWhenTheyCanAct()
    {
        QVERIFY(action("screen.duplicate")->isEnabled() && action("screen.resize")->isEnabled());
        QVERIFY(!action("screen.moveForward")->isEnabled() && !action("screen.moveBack")->isEnabled());
        action("screen.duplicate")->trigger();
        QVERIFY(action("screen.moveForward")->isEnabled() && !action("screen.moveBack")->isEnabled());
        action("screen.moveForward")->trigger();
        QCOMPARE(rows(), (QStringList{QStringLiteral("main1"), QStringLiteral("main")}));
        m_window->stack()->setBlocked(true);
        QVERIFY(!action("screen.duplicate")->isEnabled() && !action("screen.remove")->isEnabled());
        m_window->stack()->setBlocked(false);
        action("screen.remove")->trigger();
        action("screen.remove")->trigger();
        QVERIFY(rows().isEmpty());
        QVERIFY(!action("screen.duplicate")->isEnabled() && !action("screen.remove")->isEnabled()
                && !action("screen.rename")->isEnabled());
    }

    void fontsAreImportedShownAndRemoved()
    {
        show("FontsDock");
        m_window->prompts.fonts = {fontFile(), m_window->file("none.ttf", "no font")};
        panels()->fonts()->importRequested();
        QCOMPARE(m_window->session()->project()->fontResources().size(), 1);
        QVERIFY2(m_window->message().contains(QLatin1String("none.ttf")), qUtf8Printable(m_window->message()));
        QListWidget* list = panels()->fonts()->list();
        QCOMPARE(list->count(), 1);
        const QString font = list->item(0)->text();
        QCOMPARE(panels()->fonts()->selectedFont(), font);
        QCOMPARE(list->item(0)->toolTip(), QStringLiteral("Panel Segments"));

        // While something uses it, it stays; the places are told.
        DesignerObject* label = nullptr;
        QVERIFY(m_window->session()
                    ->addElement(QStringLiteral("TextBox"), screen(0), QStringLiteral("label"),
                                 {{QStringLiteral("font"), QStringLiteral("family: Panel Segments; pixelSize: 20;")}},
                                 &label)
                    .accepted);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->count(), 1);
        QVERIFY2(m_window->message().contains(QLatin1String("main/label")), qUtf8Printable(m_window->message()));
        panels()->fonts()->usesAction()->trigger();
        QTRY_COMPARE(places(), QStringList{QStringLiteral("main/label")});

        m_window->session()->removeElements({label});
        const int steps = m_window->stack()->count();
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->count(), 0);
        QCOMPARE(m_window->stack()->count(), steps + 1);
        m_window->session()->undo();
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->toolTip(), QStringLiteral("Panel Segments"));
    }

    void aTextIsFoundAndAClickLeadsToThePlace()
    {
        DesignerObject* tile = add("tile", {{QStringLiteral("color"), QStringLiteral("#123456")}});
        m_window->session()->addScreen(QStringLiteral("second"));
        QTest::keyClick(m_window->canvas(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        FindPanel* find = panels()->find();
        QTRY_VERIFY(find->line()->hasFocus());
        QTest::keyClicks(find->line(), QStringLiteral("#123456"));
        QTest::keyClick(find->line(), Qt::Key_Return);
        QTRY_COMPARE(places(), QStringList{QStringLiteral("main/tile")});
        QCOMPARE(find->status(), QStringLiteral("1 place"));
        QTreeWidget* results = find->results();
        QTest::mouseClick(results->viewport(), Qt::LeftButton, {},
                          results->visualRect(results->model()->index(0, 0)).center());
        QCOMPARE(m_window->session()->currentScreen(), screen(0));
        QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{tile});
        const PropertySheet* sheet = m_window->window->workspace()->sheet();
        QTRY_VERIFY(sheet->editor(QStringLiteral("color"))->isAncestorOf(QApplication::focusWidget()));
        find->editText();
        QTest::keyClicks(find->line(), QStringLiteral("nowhere to be found"));
        QTest::keyClick(find->line(), Qt::Key_Return);
        QTRY_COMPARE(find->status(), QStringLiteral("Nothing was found."));
    }

    void referencesOfAColorAreListed()
    {
        add("tile", {{QStringLiteral("color"), QStringLiteral("#123456")}});
        add("other", {{QStringLiteral("border"), QStringLiteral("width: 1; color: #123456;")}});
        panels()->find()->showReferences(QStringLiteral("#123456"));
        QTRY_COMPARE(places(), (QStringList{QStringLiteral("main/tile"), QStringLiteral("main/other")}));
    }

    void referencesOfTheSelectedImageAreListed()
    {
        const QString image = m_window->import(m_window->picture("logo.png", Qt::red));
        m_window->addImage(image);
        m_window->showPanel();
        m_window->list()->selectImages({image});
        m_window->list()->setFocus();
        QTest::keyClick(m_window->list(), Qt::Key_F12, Qt::ShiftModifier);
        QTRY_COMPARE(places(), QStringList{QStringLiteral("main/image1")});
        QCOMPARE(panels()->find()->line()->text(), image);
    }

    void problemsAppearWhileSomebodyWorksAndLeadToTheirPlace()
    {
        auto* indicator = m_window->window->findChild<ProblemIndicator*>();
        QTRY_COMPARE(indicator->text(), QStringLiteral("No problems"));
        DesignerObject* tile = add("tile", {{QStringLiteral("cornerRadius"), QStringLiteral("0")}});
        m_window->session()->setProperty(tile, QStringLiteral("position"), QStringLiteral("5000,0"));
        QTRY_COMPARE(indicator->text(), QStringLiteral("1 problem"));
        QDockWidget* dock = m_window->window->findChild<QDockWidget*>(QStringLiteral("ProblemsDock"));
        QCOMPARE(dock->windowTitle(), QStringLiteral("Problems (1)"));
        QVERIFY(!dock->isVisible());
        QTest::mouseClick(indicator, Qt::LeftButton);
        QVERIFY(dock->isVisible());
        ProblemsPanel* problems = m_window->window->problemsPanel();
        QCOMPARE(problems->problems().size(), 1);
        m_window->session()->setSelection({});
        QTest::mouseClick(problems->viewport(), Qt::LeftButton, {},
                          problems->visualRect(problems->model()->index(0, 0)).center());
        QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{tile});
        // The link mends it as one step.
        const int steps = m_window->stack()->count();
        QCOMPARE(problems->topLevelItem(0)->text(1), QStringLiteral("Move onto the screen"));
        const QModelIndex link = problems->model()->index(0, 1);
        QTRY_VERIFY(problems->viewport()->rect().contains(problems->visualRect(link).center()));
        QTest::mouseClick(problems->viewport(), Qt::LeftButton, {}, problems->visualRect(link).center());
        QCOMPARE(m_window->stack()->count(), steps + 1);
        QVERIFY(problems->problems().isEmpty());
        QCOMPARE(indicator->text(), QStringLiteral("No problems"));
        m_window->session()->undo();
        QTRY_COMPARE(indicator->text(), QStringLiteral("1 problem"));
    }

    void aMissingImageIsReplacedByAnotherFile()
    {
        const QString image = m_window->import(m_window->picture("logo.png", Qt::red));
        m_window->addImage(image);
        QVERIFY(QFile::remove(m_window->session()->project()->imagesPath() + QLatin1Char('/') + image));
        (void)panels()->monitor()->checkAll();
        ProblemsPanel* problems = m_window->window->problemsPanel();
        QTreeWidgetItem* row = nullptr;
        for (int i = 0; i < problems->topLevelItemCount(); ++i) {
            if (problems->topLevelItem(i)->text(1) == QStringLiteral("Choose another…"))
                row = problems->topLevelItem(i);
        }
        QVERIFY(row);
        m_window->prompts.replacement = m_window->picture("new.png", Qt::blue);
        problems->setCurrentItem(row);
        QTest::keyClick(problems, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_window->prompts.asked.constLast(), QStringLiteral("replace ") + image);
        QVERIFY(problems->problems().isEmpty());
    }

    void anotherProjectIsCheckedAndListedAnew()
    {
        m_window->session()->setProperty(add("tile", {}), QStringLiteral("position"), QStringLiteral("5000,0"));
        auto* indicator = m_window->window->findChild<ProblemIndicator*>();
        QTRY_COMPARE(indicator->text(), QStringLiteral("1 problem"));
        m_window->document()->create(QStringLiteral("Other"), QSizeF(100, 100));
        QCOMPARE(indicator->text(), QStringLiteral("No problems"));
        QVERIFY(m_window->window->problemsPanel()->problems().isEmpty());
        QCOMPARE(rows(), QStringList{QStringLiteral("main")});
    }

    void everythingHasANameForScreenReaders()
    {
        for (const char* dock : {"ScreensDock", "FontsDock", "FindDock", "ProblemsDock"}) {
            const QList<QWidget*> widgets = m_window->window->findChild<QDockWidget*>(QString::fromLatin1(dock))
                                                ->widget()
                                                ->findChildren<QWidget*>();
            for (const QWidget* widget : widgets) {
                if ((widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().startsWith(QLatin1String("qt_")))
                    QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
            }
        }
    }

private:
    ProjectPanels* panels() const { return m_window->window->projectPanels(); }
    ScreensPanel* screens() const { return panels()->screens(); }
    Screen* screen(int index) const { return m_window->session()->project()->screens().at(index); }
    QAction* action(const char* name) const { return m_window->window->findChild<QAction*>(QString::fromLatin1(name)); }
    void show(const char* dock) const
    {
        auto* found = m_window->window->findChild<QDockWidget*>(QString::fromLatin1(dock));
        found->show();
        found->raise();
        QTRY_VERIFY(!found->visibleRegion().isEmpty());
    }
    QImage thumbnail(int row) const
    {
        return screens()->screenModel()->index(row).data(ScreenListModel::ThumbnailRole).value<QImage>();
    }
    QStringList rows() const
    {
        QStringList ids;
        for (int row = 0; row < screens()->screenModel()->rowCount(); ++row)
            ids.append(screens()->screenModel()->index(row).data().toString());
        return ids;
    }
    QStringList places() const
    {
        QStringList objects;
        const QTreeWidget* results = panels()->find()->results();
        for (int i = 0; i < results->topLevelItemCount() && !panels()->find()->isSearching(); ++i)
            objects.append(results->topLevelItem(i)->text(0));
        return objects;
    }
    DesignerObject* add(const char* id, const QMap<QString, QString>& properties) const
    {
        DesignerObject* added = nullptr;
        m_window->session()->addElement(QStringLiteral("Rectangle"), screen(0), QString::fromLatin1(id), properties,
                                        &added);
        return added;
    }
    QToolButton* button(const char* name) const
    {
        const QList<QToolButton*> buttons = screens()->parentWidget()->findChildren<QToolButton*>();
        for (QToolButton* found : buttons) {
            if (found->accessibleName() == QString::fromUtf8(name))
                return found;
        }
        return nullptr;
    }
    void press(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    static void choose(const QMenu& menu, const char* text)
    {
        for (QAction* entry : menu.actions()) {
            if (entry->text() == QString::fromUtf8(text))
                entry->trigger();
        }
    }
    static QString fontFile() { return QStringLiteral(MERIDANE_FONT); }

    std::unique_ptr<ImageWindow> m_window;
};

QTEST_MAIN(tst_ProjectPanels)
#include "tst_ProjectPanels.moc"
