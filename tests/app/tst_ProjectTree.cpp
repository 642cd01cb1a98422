#include "app/ProjectTree.h"
#include "app/ProjectTreeModel.h"
#include "app/ProjectTreePanel.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QToolButton>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

/// The tree as a person uses it.
class tst_ProjectTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList refused = DesignerFactory::instance()->loadInstalledPlugins();
        QVERIFY2(refused.isEmpty(), qPrintable(refused.join(QLatin1Char('\n'))));
    }

    void init() { show(4); }

    void cleanup()
    {
        m_panel.reset();
        m_session.reset();
    }

    void aClickOnTheEyeHidesAndSelectsNothing()
    {
        m_session->setSelection({element(2)});
        clickMark(element(0), ProjectTreeModel::HiddenColumn);
        QVERIFY(EditorMarks::isHidden(element(0)));
        QVERIFY(!EditorMarks::isHidden(element(2)));
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{element(2)});
        QCOMPARE(m_session->undoStack()->count(), 1);
        clickMark(element(0), ProjectTreeModel::HiddenColumn);
        QVERIFY(!EditorMarks::isHidden(element(0)));
        m_session->undo();
        QVERIFY(EditorMarks::isHidden(element(0)));
    }

    void aDoubleClickOnTheEyeIsTwoClicks()
    {
        const QPoint at = markPoint(element(0), ProjectTreeModel::HiddenColumn);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(m_tree->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(m_session->undoStack()->count() >= 2);
        QCOMPARE(EditorMarks::isHidden(element(0)), m_session->undoStack()->count() % 2 == 1);
        QVERIFY(m_tree->isExpanded(m_tree->treeModel()->indexOf(m_session->currentScreen())));
    }

    void rubbingOverEyesHidesAllOfThemInOneStep()
    {
        // The rows stand from front to back.
        const QPoint from = markPoint(element(3), ProjectTreeModel::HiddenColumn);
        const QPoint to = markPoint(element(1), ProjectTreeModel::HiddenColumn);
        m_session->setHidden({element(2)}, true);
        QTest::mousePress(m_tree->viewport(), Qt::LeftButton, {}, from);
        moveTo(to);
        QTest::mouseRelease(m_tree->viewport(), Qt::LeftButton, {}, to);
        QVERIFY(!EditorMarks::isHidden(element(0)));
        for (const int index : {1, 2, 3})
            QVERIFY(EditorMarks::isHidden(element(index)));
        QCOMPARE(m_session->undoStack()->count(), 2);
        QVERIFY(m_session->selection().isEmpty());
        // The first one says what becomes of the others, up as well as down.
        QTest::mousePress(m_tree->viewport(), Qt::LeftButton, {}, to);
        moveTo(from);
        QTest::mouseRelease(m_tree->viewport(), Qt::LeftButton, {}, from);
        for (const int index : {1, 2, 3})
            QVERIFY(!EditorMarks::isHidden(element(index)));
        m_session->undo();
        m_session->undo();
        QVERIFY(EditorMarks::isHidden(element(2)));
        QVERIFY(!EditorMarks::isHidden(element(1)) && !EditorMarks::isHidden(element(3)));
    }

    void escapeTakesARubBack()
    {
        const QPoint from = markPoint(element(3), ProjectTreeModel::LockedColumn);
        const QPoint to = markPoint(element(1), ProjectTreeModel::LockedColumn);
        QTest::mousePress(m_tree->viewport(), Qt::LeftButton, {}, from);
        moveTo(to);
        QTest::keyClick(m_tree, Qt::Key_Escape);
        QTest::mouseRelease(m_tree->viewport(), Qt::LeftButton, {}, to);
        QCOMPARE(m_session->undoStack()->count(), 0);
        QVERIFY(!EditorMarks::isLocked(element(3)));
    }

    void theRowsThatAreSelectedTogetherAreLockedTogether()
    {
        m_session->setSelection({element(1), element(3)});
        clickMark(element(3), ProjectTreeModel::LockedColumn);
        QVERIFY(EditorMarks::isLocked(element(1)) && EditorMarks::isLocked(element(3)));
        QVERIFY(!EditorMarks::isLocked(element(0)));
        QCOMPARE(m_session->undoStack()->count(), 1);
        // Locked ones can be selected here, though not on the canvas.
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {},
                          m_tree->visualRect(m_tree->treeModel()->indexOf(element(1))).center());
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{element(1)});
    }

    void theFilterLeavesMatchesAndWhatHoldsThem()
    {
        QTest::keyClick(m_tree, Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(m_panel->filterLine()->hasFocus());
        QTest::keyClicks(m_panel->filterLine(), QStringLiteral("ANGLE3"));
        QCOMPARE(shownRows(), QStringList{QStringLiteral("rectangle3")});
        // What comes is filtered, too.
        m_session->rename(element(0), QStringLiteral("triangle3"));
        QTRY_COMPARE(shownRows(), (QStringList{QStringLiteral("rectangle3"), QStringLiteral("triangle3")}));
        QTest::keyClick(m_panel->filterLine(), Qt::Key_Escape);
        QVERIFY(m_tree->hasFocus());
        QCOMPARE(shownRows().size(), 4);
    }

    void theButtonsOpenAndCloseEverything()
    {
        std::unique_ptr<DesignerObject> made(
            DesignerFactory::instance()->createDataObject(QStringLiteral("Group"), nullptr));
        DesignerObject* group = made.get();
        m_session->project()->execute(
            std::make_unique<AddObject>(m_session->currentScreen(), std::move(made), -1, nullptr));
        QVERIFY(m_session->moveToParent({element(0)}, group, -1).changed);
        m_tree->collapseAll();
        const QList<QToolButton*> buttons = m_panel->findChildren<QToolButton*>();
        const auto press = [&buttons](const char* name) {
            for (QToolButton* button : buttons) {
                if (button->accessibleName() == QString::fromLatin1(name))
                    QTest::mouseClick(button, Qt::LeftButton);
            }
        };
        press("Expand all");
        QVERIFY(m_tree->isExpanded(m_tree->treeModel()->indexOf(group)));
        press("Collapse all");
        QVERIFY(!m_tree->isExpanded(m_tree->treeModel()->indexOf(m_session->currentScreen())));
        QVERIFY(m_tree->isExpanded(m_tree->treeModel()->index(0, 0)));
    }

    void tenThousandElementsOpenAndAreSelectedWithoutDelay()
    {
        show(10000);
        const QModelIndex screen = m_tree->treeModel()->indexOf(m_session->currentScreen());
        m_tree->collapse(screen);
        QElapsedTimer clock;
        clock.start();
        m_tree->expand(screen);
        m_panel->grab();
        QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed())));
        (void)m_session->scene(m_session->currentScreen());
        clock.restart();
        const auto& items = m_session->currentScreen()->childList()->items();
        m_session->setSelection(QList<DesignerObject*>(items.cbegin(), items.cend()));
        m_panel->grab();
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
        clock.restart();
        m_session->setSelection({items.at(5000)});
        m_panel->grab();
        QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(m_tree->selectedObjects(), QList<DesignerObject*>{items.at(5000)});
        clock.restart();
        m_session->setHidden({items.at(1)}, true);
        m_panel->grab();
        QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed())));
    }

private:
    /// Moves the mouse to \a place in the tree with its left button held down.
    void moveTo(const QPoint& place)
    {
        const QPoint global = m_tree->viewport()->mapToGlobal(place);
        QMouseEvent event(QEvent::MouseMove, place, global, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_tree->viewport(), &event);
    }

    void show(int elements)
    {
        cleanup();
        auto project = ProjectStore::create(QStringLiteral("Kettle"), QSizeF(320, 240));
        Screen* screen = project->screens().constFirst();
        for (int i = 0; i < elements; ++i) {
            DesignerObject* made = DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), nullptr);
            QVERIFY(screen->addListItem(screen->childList(), made, -1));
        }
        m_session = std::make_unique<EditSession>(std::move(project));
        m_tree = new ProjectTree(m_session.get());
        m_panel = std::make_unique<ProjectTreePanel>(m_tree);
        m_panel->resize(300, 500);
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        m_tree->setFocus();
    }

    DesignerObject* element(int number) const { return m_session->currentScreen()->childList()->items().at(number); }

    QPoint markPoint(DesignerObject* object, int column) const
    {
        return m_tree->visualRect(m_tree->treeModel()->indexOf(object).siblingAtColumn(column)).center();
    }
    void clickMark(DesignerObject* object, int column) const
    {
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, markPoint(object, column));
    }

    QStringList shownRows() const
    {
        QStringList rows;
        const QModelIndex screen = m_tree->treeModel()->indexOf(m_session->currentScreen());
        for (int row = 0; row < m_tree->treeModel()->rowCount(screen); ++row) {
            if (!m_tree->isRowHidden(row, screen))
                rows.append(m_tree->treeModel()->index(row, 0, screen).data().toString());
        }
        return rows;
    }

    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<ProjectTreePanel> m_panel;
    ProjectTree* m_tree = nullptr; // in the panel
};

QTEST_MAIN(tst_ProjectTree)
#include "tst_ProjectTree.moc"
