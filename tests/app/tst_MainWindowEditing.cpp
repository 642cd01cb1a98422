#include "app/AppSettings.h"
#include "app/CanvasPanel.h"
#include "app/EditActions.h"
#include "app/ElementPalette.h"
#include "app/HistoryPanel.h"
#include "app/MainWindow.h"
#include "app/MessageBar.h"
#include "app/ProjectDocument.h"
#include "app/ProjectTree.h"
#include "app/ProjectTreeModel.h"
#include "app/ScreenTabs.h"
#include "app/StatusReadout.h"
#include "app/Workspace.h"
#include "tests/app/FakePrompts.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyleHints>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::FakePrompts;

/// Palette, canvas, tree, tabs and history of the window work on one project and one selection.
class tst_MainWindowEditing : public QObject
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
        m_window = std::make_unique<MainWindow>(&m_prompts);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTest::qWait(50);
    }

    void cleanup() { m_window.reset(); }

    void thePaletteOffersEveryElementWithAPictureOfItsOwn()
    {
        const QStringList classes = DesignerFactory::instance()->elementClassNames();
        ElementPalette* palette = m_window->palettePanel();
        QCOMPARE(palette->count(), int(classes.size()));
        QSet<QString> pictures;
        for (const QString& className : classes) {
            const QListWidgetItem* tile = palette->tile(className);
            QVERIFY2(tile, qPrintable(className));
            QVERIFY(!tile->text().isEmpty());
            const QImage picture = tile->icon().pixmap(QSize(44, 34), 2).toImage();
            QCOMPARE(picture.size(), QSize(88, 68));
            QByteArray pixels(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
            QVERIFY2(!pictures.contains(QString::fromLatin1(pixels.toHex())), qPrintable(className));
            pictures.insert(QString::fromLatin1(pixels.toHex()));
        }
    }

    void aClickOnATileAndOneOnTheCanvasPlaceAnElement()
    {
        clickTile("Rectangle");
        QCOMPARE(canvas()->placementClass(), QStringLiteral("Rectangle"));
        QTest::mouseClick(canvas()->viewport(), Qt::LeftButton, {}, viewPoint(100, 60));
        const auto* element = screen()->element(QStringLiteral("rectangle1"));
        QVERIFY(element);
        const QPointF position = ValueConversion::toPoint(value(element, "position"));
        QVERIFY(qAbs(position.x() - 100) <= 2 && qAbs(position.y() - 60) <= 2);
        QVERIFY(canvas()->placementClass().isEmpty());
        QVERIFY(m_window->palettePanel()->armedClass().isEmpty());
        QVERIFY(m_window->palettePanel()->selectedItems().isEmpty());
        QCOMPARE(session()->selection(), QList<DesignerObject*>{screen()->element(QStringLiteral("rectangle1"))});
        QCOMPARE(m_window->editActions()->undoAction()->text().remove(QLatin1Char('&')),
                 QStringLiteral("Undo ") + session()->undoStack()->undoText());
    }

    void aSecondClickOrEscapeTakesTheTileBack()
    {
        clickTile("Rectangle");
        clickTile("Rectangle");
        QVERIFY(canvas()->placementClass().isEmpty());
        clickTile("Rectangle");
        QTest::keyClick(m_window->palettePanel(), Qt::Key_Escape);
        QVERIFY(canvas()->placementClass().isEmpty());
        clickTile("Rectangle");
        QTest::keyClick(canvas(), Qt::Key_Escape);
        QVERIFY(m_window->palettePanel()->armedClass().isEmpty());
    }

    void enterOnATilePutsAnElementIntoTheView()
    {
        ElementPalette* palette = m_window->palettePanel();
        palette->setCurrentItem(palette->tile(QStringLiteral("Rectangle")));
        QTest::keyClick(palette, Qt::Key_Return);
        QTest::keyClick(palette, Qt::Key_Return);
        const auto& items = screen()->childList()->items();
        QCOMPARE(items.size(), 2);
        QVERIFY(value(items.at(0), "position") != value(items.at(1), "position"));
        for (const DesignerObject* item : items) {
            const QPointF position = ValueConversion::toPoint(value(item, "position"));
            QVERIFY(QRectF(QPointF(), screen()->size()).contains(position));
        }
    }

    void treeAndCanvasShareTheSelection()
    {
        DesignerObject* first = add();
        DesignerObject* second = add();
        session()->setSelection({first, second});
        QCOMPARE(tree()->selectedObjects().size(), 2);
        session()->setSelection({first});
        QCOMPARE(tree()->selectedObjects(), QList<DesignerObject*>{first});
        clickRow(second, {});
        QCOMPARE(session()->selection(), QList<DesignerObject*>{second});
        clickRow(first, Qt::ControlModifier);
        QCOMPARE(session()->selection().size(), 2);
        session()->setSelection({});
        QVERIFY(tree()->selectedObjects().isEmpty());
    }

    void aRowOfAnotherScreenShowsThatScreen()
    {
        DesignerObject* first = add();
        session()->addScreen(QStringLiteral("other"));
        QTRY_COMPARE(tabs()->count(), 2);
        QCOMPARE(tabs()->currentIndex(), 1);
        clickRow(first, {});
        QCOMPARE(session()->currentScreen()->getIdName(), QStringLiteral("main"));
        QCOMPARE(session()->selection(), QList<DesignerObject*>{first});
        QCOMPARE(tabs()->currentIndex(), 0);
        tabs()->setCurrentIndex(1);
        QCOMPARE(session()->currentScreen()->getIdName(), QStringLiteral("other"));
        clickRow(session()->project()->screen(QStringLiteral("main")), {});
        QCOMPARE(session()->selection(), QList<DesignerObject*>{session()->project()->screen(QStringLiteral("main"))});
    }

    void f2RenamesInTheTreeAndRefusalsAreShown()
    {
        DesignerObject* first = add();
        session()->setSelection({first});
        rename(QStringLiteral("dial"));
        QCOMPARE(first->getIdName(), QStringLiteral("dial"));
        rename(QStringLiteral("no id!"));
        QCOMPARE(first->getIdName(), QStringLiteral("dial"));
        QVERIFY(!m_window->messageBar()->text().isEmpty());
        QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Error);
    }

    void f4GoesToTheFieldsOfTheSheet()
    {
        add();
        QTest::keyClick(m_window.get(), Qt::Key_F4);
        QWidget* sheet = m_window->findChild<QDockWidget*>(QStringLiteral("SheetDock"))->widget();
        // Tab goes on through the fields of the sheet, and through nothing else.
        for (int i = 0; i < 8; ++i) {
            QVERIFY(QApplication::focusWidget());
            QVERIFY2(sheet->isAncestorOf(QApplication::focusWidget()),
                     QApplication::focusWidget()->metaObject()->className());
            QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        }
        QTest::keyClick(m_window.get(), Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), canvas());
    }

    void undoAndRedoNameTheirSteps()
    {
        QAction* undo = m_window->editActions()->undoAction();
        QAction* redo = m_window->editActions()->redoAction();
        QVERIFY(!undo->isEnabled());
        add();
        QVERIFY(undo->isEnabled());
        QCOMPARE(undo->text().remove(QLatin1Char('&')), QStringLiteral("Undo ") + session()->undoStack()->undoText());
        undo->trigger();
        QVERIFY(!undo->isEnabled());
        QCOMPARE(redo->text().remove(QLatin1Char('&')), QStringLiteral("Redo ") + session()->undoStack()->redoText());
        session()->undoStack()->setBlocked(true);
        QVERIFY(!redo->isEnabled());
        QVERIFY(!m_window->workspace()->history()->isEnabled());
        session()->undoStack()->setBlocked(false);
        QVERIFY(redo->isEnabled());
        QVERIFY(m_window->workspace()->history()->isEnabled());
    }

    void aClickInTheHistoryGoesThere()
    {
        DesignerObject* first = add();
        add();
        HistoryPanel* history = m_window->workspace()->history();
        QCOMPARE(history->model()->rowCount(), 3);
        QTRY_COMPARE(history->currentIndex().row(), 2);
        QTest::mouseClick(history->viewport(), Qt::LeftButton, {},
                          history->visualRect(history->model()->index(1, 0)).center());
        QTRY_COMPARE(session()->undoStack()->index(), 1);
        QCOMPARE(history->model()->rowCount(), 3);
        QCOMPARE(screen()->childList()->items(), QVector<DesignerObject*>{first});
        QTest::mouseClick(history->viewport(), Qt::LeftButton, {},
                          history->visualRect(history->model()->index(0, 0)).center());
        QTRY_COMPARE(session()->undoStack()->index(), 0);
    }

    void duplicateDeleteAndSelectAllWorkOnTheSelection()
    {
        add();
        EditActions* edit = m_window->editActions();
        session()->setSelection({});
        QVERIFY(!edit->deleteAction()->isEnabled());
        edit->selectAllAction()->trigger();
        QCOMPARE(session()->selection().size(), 1);
        edit->duplicateAction()->trigger();
        QCOMPARE(screen()->childList()->items().size(), 2);
        QCOMPARE(session()->undoStack()->undoText(), QStringLiteral("Duplicate"));
        edit->copyAction()->trigger();
        QVERIFY(edit->pasteAction()->isEnabled());
        edit->pasteAction()->trigger();
        QCOMPARE(screen()->childList()->items().size(), 3);
        edit->deleteAction()->trigger();
        QCOMPARE(screen()->childList()->items().size(), 2);
    }

    void theOrderActionsMoveTheSelection()
    {
        DesignerObject* first = add();
        DesignerObject* second = add();
        session()->setSelection({first});
        m_window->editActions()->orderActions().first()->trigger();
        QCOMPARE(screen()->childList()->items(), (QVector<DesignerObject*>{second, first}));
        m_window->editActions()->orderActions().last()->trigger();
        QCOMPARE(screen()->childList()->items(), (QVector<DesignerObject*>{first, second}));
    }

    void aProjectWithoutScreensInvitesToAddOne()
    {
        session()->removeScreen(screen());
        QVERIFY(!canvas()->isVisible());
        QPushButton* button = nullptr;
        const auto buttons = m_window->workspace()->canvasPanel()->findChildren<QPushButton*>();
        for (QPushButton* candidate : buttons) {
            if (candidate->isVisible())
                button = candidate;
        }
        QVERIFY(button);
        button->click();
        QVERIFY(session()->currentScreen());
        QVERIFY(canvas()->isVisible());
    }

    void thePointerIsShownInTheStatusBar()
    {
        QTest::mouseMove(canvas()->viewport(), viewPoint(40, 30));
        QTest::mouseMove(canvas()->viewport(), viewPoint(50, 30));
        QTRY_VERIFY(m_window->statusReadout()->pointerText().contains(QStringLiteral("y ")));
    }

private:
    EditSession* session() const { return m_window->document()->session(); }
    Screen* screen() const { return session()->currentScreen(); }
    CanvasView* canvas() const { return m_window->workspace()->canvas(); }
    ProjectTree* tree() const { return m_window->workspace()->tree(); }
    ScreenTabs* tabs() const { return m_window->workspace()->canvasPanel()->tabs(); }
    QPoint viewPoint(double x, double y) const { return canvas()->mapFromScene(QPointF(x, y)); }

    static QString value(const DesignerObject* object, const char* property)
    {
        return object->getProperty(QString::fromLatin1(property))->valueString();
    }

    DesignerObject* add() const
    {
        DesignerObject* added = nullptr;
        session()->addElement(QStringLiteral("Rectangle"), screen(), {}, {}, &added);
        return added;
    }

    void clickTile(const char* className) const
    {
        ElementPalette* palette = m_window->palettePanel();
        const QRect tile = palette->visualItemRect(palette->tile(QString::fromLatin1(className)));
        QTest::mouseClick(palette->viewport(), Qt::LeftButton, {}, tile.center());
        // Two clicks on one tile are not meant as a double click.
        QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 50);
    }

    void clickRow(DesignerObject* object, Qt::KeyboardModifiers modifiers) const
    {
        const QModelIndex index = tree()->treeModel()->indexOf(object);
        tree()->scrollTo(index);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, modifiers, tree()->visualRect(index).center());
    }

    void rename(const QString& name) const
    {
        QTest::keyClick(m_window.get(), Qt::Key_F2);
        auto* editor = tree()->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        editor->setText(name);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!tree()->viewport()->findChild<QLineEdit*>());
    }

    FakePrompts m_prompts;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_MainWindowEditing)
#include "tst_MainWindowEditing.moc"
