#include "app/CanvasPanel.h"
#include "app/CardGrid.h"
#include "app/FileActions.h"
#include "app/PanelSizes.h"
#include "app/ProjectThumbnails.h"
#include "app/RecentFiles.h"
#include "app/StartPage.h"
#include "tests/app/TestWindow.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QDirIterator>
#include <QDockWidget>
#include <QMenu>
#include <QPushButton>
#include <QStandardPaths>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

/// The page in place of the canvas before there is something to work on.
class tst_StartPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(TestWindow::isolate());
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        m_test = std::make_unique<TestWindow>();
        QVERIFY(m_test->show());
    }

    void cleanup() { m_test.reset(); }

    void itTakesThePlaceOfCanvasAndPanelsUntilEscape()
    {
        m_test->window->findChild<QDockWidget*>(QStringLiteral("HistoryDock"))->hide();
        open();
        QVERIFY(!m_test->window->workspace()->canvasPanel()->isVisible());
        QVERIFY(!dock("SheetDock")->isVisible());
        QTest::keyClick(page()->panels(), Qt::Key_Escape);
        QTRY_VERIFY(!page());
        QVERIFY(m_test->window->workspace()->canvas()->hasFocus());
        QVERIFY(dock("SheetDock")->isVisible());
        QVERIFY(!dock("HistoryDock")->isVisible()); // as it was before
    }

    void aWindowThatStartsWithItHasTheKeyboardThere()
    {
        m_test = std::make_unique<TestWindow>();
        m_test->window->showStartPage();
        QVERIFY(m_test->show());
        QTest::qWait(20); // what fits the screen into the window is late
        QVERIFY(page()->panels()->hasFocus());
    }

    void aCommonPanelIsOneEnterAway()
    {
        open();
        CardGrid* panels = page()->panels();
        QCOMPARE(panels->count(), int(PanelSizes.size()) + 1);
        panels->setFocus();
        QTest::keyClick(panels, Qt::Key_Right);
        QCOMPARE(panels->currentRow(), 1);
        QTest::keyClick(panels, Qt::Key_Return);
        QTRY_VERIFY(!page());
        QCOMPARE(m_test->session()->project()->displaySize(), QSizeF(480, 272));
        QVERIFY(m_test->prompts.asked.isEmpty());
        QVERIFY(!m_test->window->isWindowModified());
    }

    void anotherSizeIsAskedForAndCancellingStays()
    {
        open();
        QListWidgetItem* other = page()->panels()->item(page()->panels()->count() - 1);
        QTest::mouseClick(page()->panels()->viewport(), Qt::LeftButton, {},
                          page()->panels()->visualItemRect(other).center());
        QTRY_COMPARE(m_test->prompts.asked, QStringList{QStringLiteral("new Untitled")});
        QVERIFY(page());
        m_test->prompts.newProject = NewProject{QStringLiteral("Oven"), QSizeF(640, 200)};
        QTest::mouseClick(page()->panels()->viewport(), Qt::LeftButton, {},
                          page()->panels()->visualItemRect(other).center());
        QTRY_VERIFY(!page());
        QCOMPARE(m_test->session()->project()->name(), QStringLiteral("Oven"));
    }

    void unsavedWorkIsNotLost()
    {
        edit();
        open();
        page()->panels()->setFocus();
        QTest::keyClick(page()->panels(), Qt::Key_Return);
        QTRY_COMPARE(m_test->prompts.asked, QStringList{QStringLiteral("save Untitled")});
        QVERIFY(page()); // cancelled
        QVERIFY(m_test->window->isWindowModified());
    }

    void recentProjectsAreOpened()
    {
        saveAndRemember();
        open();
        CardGrid* recent = page()->recentProjects();
        QCOMPARE(recent->count(), 1);
        QCOMPARE(recent->item(0)->text(), QStringLiteral("kettle"));
        QVERIFY(recent->hasFocus()); // what people come for
        QTest::keyClick(recent, Qt::Key_Return);
        QTRY_VERIFY(!page());
        QCOMPARE(m_test->session()->project()->folder(), m_test->path("kettle"));
    }

    void aSavedProjectIsShownWithItsFirstScreen()
    {
        edit();
        saveAndRemember();
        QTRY_VERIFY(!ProjectThumbnails::stored(m_test->path("kettle")).isNull());
        const QImage picture = ProjectThumbnails::stored(m_test->path("kettle"));
        QCOMPARE(picture.size(), QSize(384, 230));
        const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
        QVERIFY(ProjectThumbnails::file(m_test->path("kettle")).startsWith(cache));
        bool shown = false; // the rectangle's colour
        for (int x = 0; x < picture.width(); ++x)
            shown |= picture.pixelColor(x, picture.height() / 2) == QColor(248, 151, 29);
        QVERIFY(shown);
    }

    void aMissingProjectIsDimmedAndGoesFromTheList()
    {
        m_test->window->fileActions()->recentFiles()->add(m_test->path("gone"));
        open();
        CardGrid* recent = page()->recentProjects();
        QVERIFY(recent->item(0)->data(CardGrid::DimmedRole).toBool());
        QVERIFY(recent->item(0)->data(CardGrid::DetailRole).toString().contains(QStringLiteral("remove from list")));
        QTest::keyClick(recent, Qt::Key_Return);
        QTRY_COMPARE(recent->count(), 0);
        QVERIFY(m_test->window->fileActions()->recentFiles()->folders().isEmpty());
        QVERIFY(page());
    }

    void delTakesAProjectOffTheListAndNotFromTheDisk()
    {
        saveAndRemember();
        open();
        QTest::keyClick(page()->recentProjects(), Qt::Key_Delete);
        QTRY_COMPARE(page()->recentProjects()->count(), 0);
        QVERIFY(QFile::exists(m_test->path("kettle/project.json")));
    }

    void theMenuOfAProjectTakesItOffTheList()
    {
        saveAndRemember();
        open();
        CardGrid* recent = page()->recentProjects();
        Q_EMIT recent->customContextMenuRequested(recent->visualItemRect(recent->item(0)).center());
        auto* menu = page()->findChild<QMenu*>();
        QVERIFY(menu && menu->isVisible());
        QCOMPARE(menu->actions().size(), 2);
        menu->actions().last()->trigger();
        menu->close();
        QTRY_COMPARE(recent->count(), 0);
        QVERIFY(QFile::exists(m_test->path("kettle/project.json")));
    }

    void anExampleIsOpenedAsACopyThatLeavesItUntouched()
    {
        open();
        CardGrid* examples = page()->examples();
        QVERIFY(examples->count() >= 2);
        QListWidgetItem* thermostat = examples->findItems(QStringLiteral("Thermostat"), Qt::MatchExactly).value(0);
        QVERIFY(thermostat);
        const QString folder = thermostat->data(CardGrid::ValueRole).toString();
        const QHash<QString, QByteArray> before = contentOf(folder);
        QVERIFY(before.size() > 2);
        examples->setFocus();
        examples->setCurrentItem(thermostat);
        QTest::keyClick(examples, Qt::Key_Return);
        QTRY_VERIFY(!page());
        QVERIFY(m_test->window->document()->isUntitled());
        QVERIFY(!m_test->window->isWindowModified());
        QCOMPARE(m_test->session()->project()->name(), QStringLiteral("Thermostat"));
        QVERIFY(!m_test->session()->currentScreen()->childList()->items().isEmpty());
        QVERIFY(m_test->window->fileActions()->recentFiles()->folders().isEmpty());
        edit();
        m_test->prompts.saveFolder = m_test->path("mine");
        QVERIFY(m_test->window->fileActions()->save());
        QVERIFY(QFile::exists(m_test->path("mine/project.json")));
        QCOMPARE(contentOf(folder), before);
    }

    void examplesGetTheirPictures()
    {
        const QString cache = QFileInfo(ProjectThumbnails::file(QStringLiteral("/any"))).absolutePath();
        QDir(cache).removeRecursively();
        open();
        CardGrid* examples = page()->examples();
        for (int i = 0; i < examples->count(); ++i) {
            const QString folder = examples->item(i)->data(CardGrid::ValueRole).toString();
            QTRY_VERIFY_WITH_TIMEOUT(!ProjectThumbnails::stored(folder).isNull(), 20000);
        }
    }

    void whateverIsDoneToTheProjectShowsIt()
    {
        open();
        edit();
        QTRY_VERIFY(!page());
        QVERIFY(m_test->window->workspace()->canvasPanel()->isVisible());
    }

    void tabGoesThroughAllOfIt()
    {
        saveAndRemember();
        open();
        page()->panels()->setFocus();
        QSet<QWidget*> reached;
        for (int i = 0; i < 12; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            reached.insert(QApplication::focusWidget());
        }
        QVERIFY(reached.contains(page()->recentProjects()));
        QVERIFY(reached.contains(page()->examples()));
        QVERIFY(reached.contains(page()->panels()));
        const QList<QPushButton*> buttons = page()->findChildren<QPushButton*>();
        for (QPushButton* button : buttons)
            QVERIFY(reached.contains(button));
    }

    void theArrowsLeadFromOnePartToTheNext()
    {
        saveAndRemember();
        open();
        page()->panels()->setFocus();
        QTest::keyClick(page()->panels(), Qt::Key_Down);
        QVERIFY(page()->recentProjects()->hasFocus());
        QTest::keyClick(page()->recentProjects(), Qt::Key_Down);
        QVERIFY(page()->examples()->hasFocus());
        QTest::keyClick(page()->examples(), Qt::Key_Up);
        QVERIFY(page()->recentProjects()->hasFocus());
    }

    void theWindowComesBackWithItsPanelsAfterQuittingFromIt()
    {
        open();
        QVERIFY(m_test->window->close());
        m_test = std::make_unique<TestWindow>(false);
        QVERIFY(m_test->show());
        QVERIFY(dock("SheetDock")->isVisible());
        QVERIFY(dock("PaletteDock")->isVisible());
    }

private:
    StartPage* page() const { return m_test->window->startPage(); }
    QDockWidget* dock(const char* name) const { return m_test->window->findChild<QDockWidget*>(QLatin1String(name)); }

    void open() const
    {
        m_test->action("file.startPage")->trigger();
        QVERIFY(page() && page()->isVisible());
    }

    void edit() const
    {
        const EditResult result =
            m_test->session()->addElement(QStringLiteral("Rectangle"), m_test->session()->currentScreen(), {},
                                          {{QStringLiteral("position"), QStringLiteral("300,200")},
                                           {QStringLiteral("size"), QStringLiteral("200,80")}});
        QVERIFY2(result.changed, qPrintable(result.message));
    }

    void saveAndRemember() const
    {
        m_test->prompts.saveFolder = m_test->path("kettle");
        QVERIFY(m_test->window->fileActions()->save());
    }

    static QHash<QString, QByteArray> contentOf(const QString& folder)
    {
        QHash<QString, QByteArray> content;
        QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                content.insert(file.fileName(), file.readAll());
        }
        return content;
    }

    std::unique_ptr<TestWindow> m_test;
};

QTEST_MAIN(tst_StartPage)
#include "tst_StartPage.moc"
