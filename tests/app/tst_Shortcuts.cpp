#include "app/MenuText.h"
#include "app/ShortcutSettings.h"
#include "app/ShortcutsDialog.h"
#include "tests/app/TestWindow.h"

#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"

#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

/// The keys of the actions: each has a name, its keys are its own, and the user can change them.
class tst_Shortcuts : public QObject
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

    void everyActionOfTheMenusHasANameAndATooltipWithItsKeys()
    {
        QSet<QString> names;
        int count = 0;
        const QList<QAction*> menus = m_test->window->menuBar()->actions();
        for (const QAction* menu : menus)
            count += checkMenu(menu->menu(), &names);
        QVERIFY(count > 35);
        QCOMPARE(int(names.size()), count); // no name twice
    }

    void noMnemonicStandsTwiceInAMenu()
    {
        QList<const QWidget*> bars{m_test->window->menuBar()};
        for (const QMenu* menu : m_test->window->findChildren<QMenu*>())
            bars.append(menu);
        for (const QWidget* bar : std::as_const(bars)) {
            QString letters;
            const QList<QAction*> actions = bar->actions();
            for (const QAction* action : actions) {
                const QChar letter = MenuText::mnemonic(action->text());
                QVERIFY2(letter.isNull() || !letters.contains(letter), qPrintable(action->text()));
                letters += letter;
            }
        }
    }

    void aRecordedKeyTakesEffectAtOnceAndAtTheNextStart()
    {
        {
            ShortcutsDialog dialog(m_test->window.get(), settings());
            record(&dialog, "screen.add", Qt::Key_J, Qt::ControlModifier);
            QCOMPARE(dialog.message(), QString());
        }
        QCOMPARE(m_test->action("screen.add")->shortcuts(), QList<QKeySequence>{QKeySequence(Qt::CTRL | Qt::Key_J)});
        QVERIFY(m_test->action("screen.add")->toolTip().contains(QStringLiteral("Ctrl+J")));
        QApplication::setActiveWindow(m_test->window.get());
        QTest::keyClick(m_test->window.get(), Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(m_test->session()->project()->screens().size(), 2);
        m_test = std::make_unique<TestWindow>(false);
        QVERIFY(m_test->show());
        QTest::keyClick(m_test->window.get(), Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(m_test->session()->project()->screens().size(), 2);
    }

    void aKeyOfAnotherActionIsTakenOnlyWhenTheUserSaysSo()
    {
        ShortcutsDialog dialog(m_test->window.get(), settings());
        record(&dialog, "screen.add", Qt::Key_D, Qt::ControlModifier);
        QVERIFY(dialog.message().contains(QStringLiteral("Duplicate")));
        QCOMPARE(m_test->action("edit.duplicate")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_D));
        QVERIFY(!m_test->action("screen.add")->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_D)));
        auto* takeOver = button(&dialog, QStringLiteral("Use It Here Instead"));
        QVERIFY(takeOver->isVisible());
        QTest::mouseClick(takeOver, Qt::LeftButton);
        QCOMPARE(m_test->action("screen.add")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_D));
        QVERIFY(m_test->action("edit.duplicate")->shortcuts().isEmpty());
        // Going back takes it from the one that has it now.
        dialog.choose(m_test->action("edit.duplicate"));
        QTest::mouseClick(button(&dialog, QStringLiteral("Reset")), Qt::LeftButton);
        QCOMPARE(m_test->action("edit.duplicate")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_D));
        QVERIFY(m_test->action("screen.add")->shortcuts().isEmpty());
    }

    void keysThatTheCanvasNeedsAreRefusedWithAReason_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("arrow") << int(Qt::Key_Left) << int(Qt::NoModifier);
        QTest::newRow("Shift+arrow") << int(Qt::Key_Up) << int(Qt::ShiftModifier);
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << int(Qt::NoModifier);
        QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier);
        QTest::newRow("letter") << int(Qt::Key_X) << int(Qt::NoModifier);
        QTest::newRow("Alt+B") << int(Qt::Key_B) << int(Qt::AltModifier);
        QTest::newRow("Alt+-") << int(Qt::Key_Minus) << int(Qt::AltModifier);
        QTest::newRow("menu") << int(Qt::Key_F) << int(Qt::AltModifier);
    }

    void keysThatTheCanvasNeedsAreRefusedWithAReason()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        ShortcutsDialog dialog(m_test->window.get(), settings());
        const QList<QKeySequence> before = m_test->action("screen.add")->shortcuts();
        record(&dialog, "screen.add", Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QVERIFY(!dialog.message().isEmpty());
        QCOMPARE(m_test->action("screen.add")->shortcuts(), before);
        QVERIFY(!button(&dialog, QStringLiteral("Use It Here Instead"))->isVisible());
    }

    void theProgramsOwnKeysAreNeverRefused()
    {
        const QList<QAction*> actions = settings()->actions();
        for (const QAction* action : actions) {
            const QList<QKeySequence> own = settings()->ownShortcuts(action);
            for (const QKeySequence& keys : own)
                QCOMPARE(settings()->refusal(action, keys), QString());
        }
    }

    void keysAreClearedAndAllAreReset()
    {
        ShortcutsDialog dialog(m_test->window.get(), settings());
        dialog.show();
        dialog.choose(m_test->action("edit.redo"));
        QTest::mouseClick(button(&dialog, QStringLiteral("Clear")), Qt::LeftButton);
        QVERIFY(m_test->action("edit.redo")->shortcuts().isEmpty());
        record(&dialog, "edit.undo", Qt::Key_F11, Qt::ControlModifier);
        QCOMPARE(m_test->action("edit.undo")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_F11));
        QTest::mouseClick(button(&dialog, QStringLiteral("Reset All")), Qt::LeftButton);
        const QList<QAction*> actions = settings()->actions();
        for (const QAction* action : actions)
            QVERIFY2(!settings()->isChanged(action), qPrintable(action->objectName()));
        QCOMPARE(m_test->action("edit.redo")->shortcuts().size(), 2);
        QVERIFY(AppSettings().childGroups().filter(QStringLiteral("shortcuts")).isEmpty());
    }

    void theListIsSearchedByNameAndByKey()
    {
        ShortcutsDialog dialog(m_test->window.get(), settings());
        auto* search = dialog.findChild<QLineEdit*>();
        auto* list = dialog.findChild<QTreeWidget*>();
        search->setText(QStringLiteral("ctrl+d"));
        QCOMPARE(shownCommands(list), QStringList{QStringLiteral("Duplicate")});
        search->setText(QStringLiteral("redo"));
        QCOMPARE(shownCommands(list), QStringList{QStringLiteral("Redo")});
        QCOMPARE(list->currentItem()->text(0), QStringLiteral("Redo"));
    }

    void nonsenseInTheSettingsIsPassedOver()
    {
        AppSettings().setValue(QStringLiteral("shortcuts/screen.add"),
                               QStringList{QStringLiteral("Left"), QStringLiteral("??"), QStringLiteral("Ctrl+J")});
        AppSettings().setValue(QStringLiteral("shortcuts/no.such"), QStringLiteral("Ctrl+S"));
        m_test = std::make_unique<TestWindow>(false);
        QCOMPARE(m_test->action("screen.add")->shortcuts(), QList<QKeySequence>{QKeySequence(Qt::CTRL | Qt::Key_J)});
        QCOMPARE(m_test->action("file.save")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    }

private:
    ShortcutSettings* settings() const { return m_test->window->shortcutSettings(); }

    static QPushButton* button(const QDialog* dialog, const QString& text)
    {
        const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text() == text)
                return button;
        }
        qFatal("No button \"%s\"", qPrintable(text));
        return nullptr;
    }

    void record(ShortcutsDialog* dialog, const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers) const
    {
        dialog->show();
        dialog->choose(m_test->action(name));
        dialog->recorder()->setFocus();
        QTest::keyClick(dialog->recorder(), key, modifiers);
        QCoreApplication::processEvents();
    }

    static QStringList shownCommands(const QTreeWidget* list)
    {
        QStringList shown;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            for (int row = 0; row < list->topLevelItem(i)->childCount(); ++row) {
                if (!list->topLevelItem(i)->child(row)->isHidden())
                    shown.append(list->topLevelItem(i)->child(row)->text(0));
            }
        }
        return shown;
    }

    static int checkMenu(QMenu* menu, QSet<QString>* names)
    {
        Q_EMIT menu->aboutToShow();
        int count = 0;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            if (action->isSeparator())
                continue;
            if (action->menu()) {
                // Its entries are the user's own folders.
                if (action->menu()->objectName() != QLatin1String("RecentMenu"))
                    count += checkMenu(action->menu(), names);
                continue;
            }
            ++count;
            const QByteArray text = action->text().toUtf8();
            check(!action->text().isEmpty(), "an action without text");
            check(action->objectName().contains(QLatin1Char('.')), text);
            check(!action->toolTip().isEmpty(), text);
            const QString keys = action->shortcut().toString(QKeySequence::NativeText);
            check(action->toolTip().contains(keys), text);
            names->insert(action->objectName());
        }
        return count;
    }

    static void check(bool holds, const QByteArray& what) { QVERIFY2(holds, what.constData()); }

    std::unique_ptr<TestWindow> m_test;
};

QTEST_MAIN(tst_Shortcuts)
#include "tst_Shortcuts.moc"
