#include "app/CommandPalette.h"
#include "app/FileActions.h"
#include "app/RecentFiles.h"
#include "tests/app/TestWindow.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

/// Commands are found by their names and done, with the keyboard alone.
class tst_CommandPalette : public QObject
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
        palette()->hide();
    }

    void cleanup() { m_test.reset(); }

    void itsKeysOpenItFromEverywhere_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("Ctrl+K") << int(Qt::Key_K) << int(Qt::ControlModifier);
        QTest::newRow("Ctrl+Shift+P") << int(Qt::Key_P) << int(Qt::ControlModifier | Qt::ShiftModifier);
    }

    void itsKeysOpenItFromEverywhere()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        m_test->action("view.editProperties")->trigger();
        QLineEdit field(m_test->window.get());
        field.show();
        QWidget* starts[] = {m_test->window->findChild<QWidget*>(QStringLiteral("ProjectTree")), &field,
                             m_test->window->workspace()->canvas(), QApplication::focusWidget()};
        for (QWidget* start : starts) {
            start->setFocus();
            QTest::keyClick(start, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
            QVERIFY2(palette()->isVisible(), start->metaObject()->className());
            QVERIFY(palette()->field()->hasFocus());
            QVERIFY(palette()->found().size() > 20);
            palette()->dismiss();
        }
    }

    void enterDoesWhatWasFound()
    {
        type("add new scr");
        QCOMPARE(palette()->found().first().id, QStringLiteral("action:screen.add"));
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        QVERIFY(!palette()->isVisible());
        QCOMPARE(m_test->session()->project()->screens().size(), 2);
    }

    void theArrowsChooseAnother()
    {
        type("screen");
        const int count = int(palette()->found().size());
        QVERIFY(count > 2);
        QTest::keyClick(palette()->field(), Qt::Key_Down);
        QCOMPARE(palette()->list()->currentIndex().row(), 1);
        QTest::keyClick(palette()->field(), Qt::Key_Up);
        QTest::keyClick(palette()->field(), Qt::Key_Up);
        QCOMPARE(palette()->list()->currentIndex().row(), count - 1);
    }

    void escapeGivesTheFocusBack()
    {
        auto* tree = m_test->window->findChild<QWidget*>(QStringLiteral("ProjectTree"));
        tree->setFocus();
        type("zoom");
        QTest::keyClick(palette()->field(), Qt::Key_Escape);
        QVERIFY(!palette()->isVisible());
        QVERIFY(tree->hasFocus());
    }

    void aClickElsewhereClosesItAndKeepsTheFocusThere()
    {
        type("zoom");
        auto* tree = m_test->window->findChild<QWidget*>(QStringLiteral("ProjectTree"));
        tree->setFocus(Qt::MouseFocusReason);
        QVERIFY(!palette()->isVisible());
        QVERIFY(tree->hasFocus());
    }

    void whatCannotBeDoneIsShownAndDoesNothing()
    {
        QVERIFY(!m_test->action("edit.undo")->isEnabled());
        type("undo");
        QCOMPARE(palette()->found().first().id, QStringLiteral("action:edit.undo"));
        QVERIFY(!palette()->found().first().enabled);
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        QVERIFY(palette()->isVisible());
        QVERIFY(CommandPalette::recentCommands().isEmpty());
    }

    void elementsAreInserted()
    {
        type("insert rect");
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        QCOMPARE(m_test->session()->currentScreen()->childList()->items().size(), 1);
    }

    void elementsOfAllReadScreensAreSelected()
    {
        DesignerObject* added = nullptr;
        m_test->session()->addElement(QStringLiteral("Rectangle"), m_test->session()->currentScreen(),
                                      QStringLiteral("labelTarget"), {}, &added);
        m_test->session()->addScreen(QStringLiteral("second"));
        QCOMPARE(m_test->session()->currentScreen()->getIdName(), QStringLiteral("second"));
        type("labtar");
        QCOMPARE(palette()->found().first().text, QStringLiteral("Select labelTarget"));
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        QCOMPARE(m_test->session()->selection(), QList<DesignerObject*>{added});
        type("go second");
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        QCOMPARE(m_test->session()->currentScreen()->getIdName(), QStringLiteral("second"));
    }

    void recentProjectsAreOpenedAndMissingOnesAreNot()
    {
        m_test->prompts.saveFolder = m_test->path("kettle");
        QVERIFY(m_test->window->fileActions()->save());
        m_test->window->fileActions()->recentFiles()->add(m_test->path("gone"));
        m_test->window->fileActions()->createSized({100, 100});
        type("open gone");
        QCOMPARE(palette()->found().first().text, QStringLiteral("Open gone"));
        QVERIFY(!palette()->found().first().enabled);
        palette()->dismiss();
        type("kettle");
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        QCOMPARE(m_test->session()->project()->folder(), m_test->path("kettle"));
    }

    void whatWasUsedLastComesFirstAlsoInTheNextWindow()
    {
        type("zoom in");
        QTest::keyClick(palette()->field(), Qt::Key_Return);
        type("");
        QCOMPARE(palette()->found().first().id, QStringLiteral("action:view.zoomIn"));
        m_test = std::make_unique<TestWindow>(false);
        QVERIFY(m_test->show());
        type("");
        QCOMPARE(palette()->found().first().id, QStringLiteral("action:view.zoomIn"));
    }

    void everyNamedActionOfTheMenusIsThere()
    {
        QSet<QString> ids;
        for (const QMenu* menu : m_test->window->findChildren<QMenu*>()) {
            for (const QAction* action : menu->actions()) {
                if (!action->objectName().isEmpty() && !action->menu())
                    ids.insert(action->text().remove(QLatin1Char('&')).remove(QChar(0x2026)));
            }
        }
        QVERIFY(ids.size() > 30);
        for (const QString& text : std::as_const(ids)) {
            type("");
            palette()->field()->setText(text);
            const QList<Command> found = palette()->found();
            QVERIFY2(std::any_of(found.cbegin(), found.cend(),
                                 [&text](const Command& command) { return command.text == text; }),
                     qPrintable(text));
        }
    }

    void tenThousandElementsOpenItWithoutAWait()
    {
        EditSession* session = m_test->session();
        Screen* screen = session->currentScreen();
        for (int i = 0; i < 10000; ++i) {
            auto* element = DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), screen);
            element->setIdName(QStringLiteral("lamp%1").arg(i));
            QVERIFY(screen->addListItem(screen->childList(), element, -1));
        }
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(m_test->window.get(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        const qint64 opening = timer.restart();
        QTest::keyClicks(palette()->field(), QStringLiteral("lamp777"));
        const qint64 typing = timer.elapsed();
        qInfo("opening %lld ms, seven letters %lld ms", opening, typing);
        QVERIFY(palette()->found().first().text.contains(QLatin1String("lamp777")));
        QVERIFY2(opening < 1000 && typing < 2000, "A person would wait.");
    }

private:
    CommandPalette* palette() const { return m_test->window->commandPalette(); }

    void type(const char* text) const
    {
        if (palette()->isVisible())
            palette()->dismiss();
        m_test->action("help.findCommand")->trigger();
        QVERIFY(palette()->field()->hasFocus());
        QTest::keyClicks(palette()->field(), QLatin1String(text));
    }

    std::unique_ptr<TestWindow> m_test;
};

QTEST_MAIN(tst_CommandPalette)
#include "tst_CommandPalette.moc"
