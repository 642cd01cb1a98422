#include "app/AppSettings.h"
#include "app/CanvasPanel.h"
#include "app/EditActions.h"
#include "app/ElementPalette.h"
#include "app/FileActions.h"
#include "app/HelpActions.h"
#include "app/MainWindow.h"
#include "app/MenuText.h"
#include "app/MessageBar.h"
#include "app/OutputActions.h"
#include "app/PreviewRunner.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectDocument.h"
#include "app/RecentFiles.h"
#include "app/ScreenTabs.h"
#include "app/Workspace.h"
#include "tests/app/FakePrompts.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTabBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::FakePrompts;

/// The window as a whole: projects come and go without loss, and its keys leave the canvas' own alone.
class tst_MainWindow : public QObject
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
        m_folder = std::make_unique<QTemporaryDir>();
        m_prompts = std::make_unique<FakePrompts>();
        m_window = std::make_unique<MainWindow>(m_prompts.get());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void theWindowStartsWithAnUntitledProjectThatCanBeEdited()
    {
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Untitled[*]")));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(session()->currentScreen());
        QCOMPARE(session()->project()->displaySize(), QSizeF(800, 480));
    }

    void theWindowLeavesRoomForTheFrameOfTheDesktop()
    {
        const QSize room = m_window->screen()->availableSize();
        QVERIFY(m_window->sizeHint().width() < room.width());
        QVERIFY(m_window->sizeHint().height() <= room.height() - 40);
    }

    void thePaletteScrollsOnlyWhereItsTilesDoNotFit()
    {
        const auto hidden = [](const ElementPalette& palette) {
            int count = 0;
            for (int row = 0; row < palette.count(); ++row)
                count += palette.viewport()->rect().contains(palette.visualItemRect(palette.item(row))) ? 0 : 1;
            return count;
        };
        ElementPalette palette;
        palette.resize(270, 360);
        palette.show();
        QVERIFY(QTest::qWaitForWindowExposed(&palette));
        QVERIFY(palette.count() > 9);
        QVERIFY(!palette.verticalScrollBar()->isVisible());
        QCOMPARE(hidden(palette), 0);
        palette.resize(270, 200);
        QTRY_VERIFY(palette.verticalScrollBar()->isVisible());
        QVERIFY(hidden(palette) > 0);
        palette.resize(270, 360);
        QTRY_VERIFY(!palette.verticalScrollBar()->isVisible());
        QTRY_COMPARE(hidden(palette), 0);
    }

    void theTitleShowsNameAndModification()
    {
        edit();
        QVERIFY(m_window->isWindowModified());
        session()->undo();
        QVERIFY(!m_window->isWindowModified());
        session()->setProperty(session()->project(), QStringLiteral("name"), QStringLiteral("Kettle"));
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Kettle[*]")));
    }

    void closingWithoutChangesAsksNothing()
    {
        QVERIFY(m_window->close());
        QVERIFY(m_prompts->asked.isEmpty());
    }

    void closingWithChangesAsksAndCancelKeepsTheWindow()
    {
        edit();
        m_prompts->saveAnswer = UserPrompts::SaveAnswer::Cancel;
        QVERIFY(!m_window->close());
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_prompts->asked, QStringList{QStringLiteral("save Untitled")});
        m_prompts->saveAnswer = UserPrompts::SaveAnswer::Discard;
        QVERIFY(m_window->close());
    }

    void closingWithSaveOfAnUntitledProjectAsksForAFolder()
    {
        edit();
        m_prompts->saveAnswer = UserPrompts::SaveAnswer::Save;
        QVERIFY(!m_window->close()); // no folder was chosen
        QVERIFY(m_window->isVisible());
        m_prompts->saveFolder = path("kettle");
        QVERIFY(m_window->close());
        QVERIFY(QFile::exists(path("kettle/project.json")));
    }

    void aFailedSaveTellsWhyAndKeepsTheWindow()
    {
        edit();
        m_prompts->saveAnswer = UserPrompts::SaveAnswer::Save;
        QFile blocker(path("blocker"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        m_prompts->saveFolder = path("blocker/inside");
        QVERIFY(!m_window->close());
        QVERIFY(m_window->isVisible());
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Error);
        QVERIFY(m_window->messageBar()->text().contains(QStringLiteral("not been saved")));
        // The way out that the bar offers.
        m_prompts->saveFolder = path("kettle");
        m_window->messageBar()->findChild<QPushButton*>()->click();
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->messageBar()->isHidden());
    }

    void newOpenAndCloseAskBeforeChangesAreLost()
    {
        edit();
        const QPointer<EditSession> before = session();
        m_prompts->newProject = NewProject{QStringLiteral("Oven"), QSizeF(480, 272)};
        m_window->fileActions()->newAction()->trigger();
        QCOMPARE(session(), before.data());
        m_prompts->project = path("anything");
        m_window->fileActions()->openAction()->trigger();
        QCOMPARE(session(), before.data());
        QCOMPARE(m_prompts->asked.filter(QStringLiteral("save ")).size(), 2);
        m_prompts->saveAnswer = UserPrompts::SaveAnswer::Discard;
        m_window->fileActions()->newAction()->trigger();
        QVERIFY(!before);
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Oven[*]")));
        QCOMPARE(session()->project()->displaySize(), QSizeF(480, 272));
    }

    void savedProjectsAreRememberedAndOpened()
    {
        edit();
        m_prompts->saveFolder = path("kettle");
        m_window->fileActions()->saveAction()->trigger();
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(QFileInfo(m_prompts->proposedFolder).fileName(), QStringLiteral("untitled"));
        QCOMPARE(m_window->fileActions()->recentFiles()->folders(), QStringList{path("kettle")});
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("kettle[*]")));
        m_window->fileActions()->newAction()->trigger(); // cancelled by the prompt
        m_prompts->newProject = NewProject{QStringLiteral("Oven"), QSizeF(480, 272)};
        m_window->fileActions()->newAction()->trigger();
        QVERIFY(m_window->openProject(path("kettle")));
        QVERIFY(session()->currentScreen()->element(QStringLiteral("rectangle1")));
    }

    void whatCannotBeOpenedIsExplained()
    {
        QVERIFY(!m_window->openProject(path("nowhere")));
        QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Error);
        QVERIFY(m_window->messageBar()->text().contains(QStringLiteral("nowhere")));
        QVERIFY(!m_window->problemsPanel()->problems().isEmpty());
        auto* dock = m_window->findChild<QDockWidget*>(QStringLiteral("ProblemsDock"));
        QVERIFY(!dock->isVisible());
        m_window->messageBar()->findChild<QPushButton*>()->click();
        QVERIFY(dock->isVisible());
    }

    void problemsOfScreensThatNobodyLooksAtAreFoundToo()
    {
        edit();
        session()->addScreen(QStringLiteral("second"));
        m_prompts->saveFolder = path("kettle");
        QVERIFY(m_window->fileActions()->save());
        QFile file(path("kettle/screens/second.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{ broken");
        file.close();
        QVERIFY(m_window->openProject(path("kettle")));
        QTRY_VERIFY(!m_window->problemsPanel()->problems().isEmpty());
        QCOMPARE(m_window->problemsPanel()->problems().size(), 1);
        QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Error);
        // The way to it: a row of the panel, and the marked tab.
        m_window->problemsPanel()->itemActivated(m_window->problemsPanel()->topLevelItem(0), 0);
        QCOMPARE(session()->currentScreen()->getIdName(), QStringLiteral("second"));
        const ScreenTabs* tabs = m_window->workspace()->canvasPanel()->tabs();
        QTRY_VERIFY(!tabs->tabIcon(1).isNull());
        QVERIFY(tabs->tabIcon(0).isNull());
        // The rest of the project can still be edited and saved, and the file stays as it is.
        session()->setCurrentScreen(session()->project()->screen(QStringLiteral("main")));
        edit();
        QVERIFY(m_window->fileActions()->save());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("{ broken"));
    }

    void anExportTellsWhereItWent()
    {
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("qml")));
        m_prompts->exportFolder = path("qml");
        action(QStringLiteral("Export QML…"))->trigger();
        QVERIFY2(QFile::exists(path("qml/Main.qml")), qPrintable(m_window->messageBar()->text()));
        QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Information);
        QVERIFY(m_window->messageBar()->text().contains(path("qml")));
    }

    void theGuideIsOpenedAsALocalFileAndItsAbsenceIsSaid()
    {
        m_opened.clear();
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
        m_window->findChild<QAction*>(QStringLiteral("help.showGuide"))->trigger();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        if (HelpActions::guideFile().isEmpty()) {
            QVERIFY(m_opened.isEmpty());
            QCOMPARE(m_window->messageBar()->text(), QStringLiteral("The user guide is not installed."));
        } else {
            QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(HelpActions::guideFile())});
            QVERIFY(m_window->messageBar()->isHidden());
        }
    }

    void aMissingViewerIsReported()
    {
        PreviewRunner runner(path("no-viewer"));
        QSignalSpy failed(&runner, &PreviewRunner::failed);
        QList<Problem> problems;
        QVERIFY(runner.start(session()->project(), {}, &problems));
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.first().first().toString().contains(QStringLiteral("no-viewer")));
    }

    void aViewerThatEndsWithAnErrorIsReported()
    {
        QFile viewer(path("viewer"));
        QVERIFY(viewer.open(QIODevice::WriteOnly));
        viewer.write("#!/bin/sh\necho first >&2\necho \"no display: $2 $3\" >&2\ntest -f \"$1/Main.qml\" && exit 3\n");
        viewer.close();
        QVERIFY(viewer.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        PreviewRunner runner(path("viewer"));
        QSignalSpy failed(&runner, &PreviewRunner::failed);
        QList<Problem> problems;
        QVERIFY(runner.start(session()->project(), QStringLiteral("main"), &problems));
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.first().first().toString().endsWith(QStringLiteral("no display: --screen main")));
    }

    void panelsAndWindowComeBackAsTheyWere()
    {
        auto* dock = m_window->findChild<QDockWidget*>(QStringLiteral("HistoryDock"));
        dock->hide();
        m_window->resize(1000, 700);
        QVERIFY(m_window->close());
        m_window = std::make_unique<MainWindow>(m_prompts.get());
        m_window->show();
        QVERIFY(!m_window->findChild<QDockWidget*>(QStringLiteral("HistoryDock"))->isVisible());
        QVERIFY(m_window->findChild<QDockWidget*>(QStringLiteral("SheetDock"))->isVisible());
    }

    /// Canvas items use Alt with B, I, S, U, O, minus and equals.
    void noKeyOfTheWindowTakesOneOfTheCanvas()
    {
        const QString reserved = QString(MenuText::ReservedLetters);
        const QList<QMenu*> menus = m_window->findChildren<QMenu*>();
        QList<QAction*> actions = m_window->menuBar()->actions();
        QVERIFY(actions.size() >= 4);
        for (const QMenu* menu : menus)
            actions += menu->actions();
        actions += m_window->findChildren<QAction*>();
        for (const QAction* action : std::as_const(actions)) {
            const QChar letter = MenuText::mnemonic(action->text());
            QVERIFY2(letter.isNull() || !reserved.contains(letter), qPrintable(action->text()));
            const QList<QKeySequence> shortcuts = action->shortcuts();
            for (const QKeySequence& shortcut : shortcuts)
                checkShortcut(shortcut);
        }
        // Buttons, labels and tabs with an ampersand make shortcuts of their own.
        const QList<QAbstractButton*> buttons = m_window->findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons)
            checkShortcut(button->shortcut());
        const QList<QTabBar*> bars = m_window->findChildren<QTabBar*>();
        for (const QTabBar* bar : bars) {
            for (int i = 0; i < bar->count(); ++i)
                checkShortcut(QKeySequence::mnemonic(bar->tabText(i)));
        }
        const QList<QLabel*> labels = m_window->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->buddy())
                checkShortcut(QKeySequence::mnemonic(label->text()));
        }
    }

    void everyActionIsThereOnceAndNoShortcutIsAmbiguous()
    {
        QHash<QString, QString> users;
        const QList<QAction*> actions = m_window->findChildren<QAction*>();
        for (const QAction* action : actions) {
            const QList<QKeySequence> shortcuts = action->shortcuts();
            for (const QKeySequence& shortcut : shortcuts) {
                const QString key = shortcut.toString();
                QVERIFY2(!users.contains(key),
                         qPrintable(QStringLiteral("%1: %2 and %3").arg(key, users.value(key), action->text())));
                users.insert(key, action->text());
            }
        }
        QVERIFY(users.contains(QStringLiteral("Ctrl+S")));
    }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): no test
    void open(const QUrl& url) { m_opened.append(url); }

private:
    EditSession* session() const { return m_window->document()->session(); }

    void edit() const
    {
        const EditResult result =
            session()->addElement(QStringLiteral("Rectangle"), session()->currentScreen(), {}, {});
        QVERIFY2(result.changed, qPrintable(result.message));
    }

    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    QAction* action(const QString& text) const
    {
        const QList<QAction*> actions = m_window->findChildren<QAction*>();
        for (QAction* action : actions) {
            QString plain = action->text();
            if (plain.remove(QLatin1Char('&')) == text)
                return action;
        }
        qFatal("No action \"%s\"", qPrintable(text));
        return nullptr;
    }

    void checkShortcut(const QKeySequence& shortcut) const
    {
        const QString reserved = QString(MenuText::ReservedLetters).toUpper();
        for (int i = 0; i < shortcut.count(); ++i) {
            const QKeyCombination key = shortcut[uint(i)];
            if (key.keyboardModifiers() != Qt::AltModifier)
                continue;
            const int code = key.key();
            QVERIFY2(code != Qt::Key_Minus && code != Qt::Key_Equal && code != Qt::Key_Plus
                         && !(code < 128 && reserved.contains(QChar(code))),
                     qPrintable(shortcut.toString()));
        }
    }

    QList<QUrl> m_opened;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakePrompts> m_prompts;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
