#include "tests/app/TestWindow.h"

#include "host/core/arrange/Grouping.h"
#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/Project.h"

#include <QClipboard>
#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <functional>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

namespace {

/// What becomes of the project when an action is triggered.
enum class Effect
{
    Step, ///< one undo step, which changes something
    View, ///< nothing: it shows, asks or copies
    Elsewhere ///< it leaves the project, starts a program or walks the history; its own tests trigger it
};

struct Row
{
    const char* name;
    Effect effect;
    /// In which situations the action is enabled (x): a column for each State.
    const char* enabled;
};

enum State
{
    Empty, ///< a screen without elements
    One, ///< one element, selected
    Three, ///< three elements, all selected
    Middle, ///< the middle one of three selected, another one hidden, one in the clipboard
    Locked, ///< one element, locked, selected all the same
    Grouped, ///< a group of three, selected
    OnScreen, ///< the first of two screens, with one element and a guide; the screen is selected
    Dragged, ///< one element while the mouse moves it
    StateCount
};

// clang-format off
constexpr Row Table[] = {
    {"arrange.alignBottom", Effect::Step, "-xxx-x--"},
    {"arrange.alignCenter", Effect::Step, "-xxx-x--"},
    {"arrange.alignLeft", Effect::Step, "-xxx-x--"},
    {"arrange.alignMiddle", Effect::Step, "-xxx-x--"},
    {"arrange.alignRight", Effect::Step, "-xxx-x--"},
    {"arrange.alignTop", Effect::Step, "-xxx-x--"},
    {"arrange.bringForward", Effect::Step, "---x----"},
    {"arrange.bringToFront", Effect::Step, "---x----"},
    {"arrange.centerOnScreen", Effect::Step, "-xxx-x--"},
    {"arrange.distributeCentersHorizontally", Effect::Step, "--x-----"},
    {"arrange.distributeCentersVertically", Effect::Step, "--x-----"},
    {"arrange.distributeHorizontally", Effect::Step, "--x-----"},
    {"arrange.distributeVertically", Effect::Step, "--x-----"},
    {"arrange.group", Effect::Step, "--x-----"},
    {"arrange.hide", Effect::Step, "-xxxxx--"},
    {"arrange.lock", Effect::Step, "-xxx-x--"},
    {"arrange.makeSameHeight", Effect::Step, "--x-----"},
    {"arrange.makeSameSize", Effect::Step, "--x-----"},
    {"arrange.makeSameWidth", Effect::Step, "--x-----"},
    {"arrange.sendBackward", Effect::Step, "---x----"},
    {"arrange.sendToBack", Effect::Step, "---x----"},
    {"arrange.showAll", Effect::Step, "---x----"},
    {"arrange.ungroup", Effect::Step, "-----x--"},
    {"arrange.unlockAll", Effect::Step, "----x---"},
    {"canvas.addGuide", Effect::View, "xxxxxxx-"},
    {"canvas.clearGuides", Effect::Step, "------x-"},
    {"canvas.gridOf10", Effect::View, "xxxxxxxx"},
    {"canvas.gridOf16", Effect::View, "xxxxxxxx"},
    {"canvas.gridOf2", Effect::View, "xxxxxxxx"},
    {"canvas.gridOf20", Effect::View, "xxxxxxxx"},
    {"canvas.gridOf4", Effect::View, "xxxxxxxx"},
    {"canvas.gridOf5", Effect::View, "xxxxxxxx"},
    {"canvas.gridOf8", Effect::View, "xxxxxxxx"},
    {"canvas.gridOfOtherSpacing", Effect::View, "xxxxxxxx"},
    {"canvas.lockGuides", Effect::View, "xxxxxxxx"},
    {"canvas.showGrid", Effect::View, "xxxxxxxx"},
    {"canvas.showRulers", Effect::View, "xxxxxxxx"},
    {"canvas.snap", Effect::View, "xxxxxxxx"},
    {"edit.copy", Effect::View, "-xxxxx--"},
    {"edit.cut", Effect::Step, "-xxx-x--"},
    {"edit.delete", Effect::Step, "-xxx-xx-"},
    {"edit.duplicate", Effect::Step, "-xxxxx--"},
    {"edit.paste", Effect::Step, "---x----"},
    {"edit.pasteInPlace", Effect::Step, "---x----"},
    {"edit.redo", Effect::Elsewhere, "--------"},
    {"edit.rename", Effect::View, "-x-xxxx-"},
    {"edit.selectAll", Effect::View, "-xxx-xx-"},
    {"edit.undo", Effect::Elsewhere, "-xxxxxx-"},
    {"file.close", Effect::Elsewhere, "xxxxxxxx"},
    {"file.new", Effect::Elsewhere, "xxxxxxxx"},
    {"file.open", Effect::Elsewhere, "xxxxxxxx"},
    {"file.quit", Effect::Elsewhere, "xxxxxxxx"},
    {"file.save", Effect::View, "xxxxxxxx"},
    {"file.saveAs", Effect::View, "xxxxxxxx"},
    {"file.startPage", Effect::Elsewhere, "xxxxxxxx"},
    {"find.inProject", Effect::View, "xxxxxxxx"},
    {"find.references", Effect::View, "xxxxxxxx"},
    {"help.findCommand", Effect::View, "xxxxxxxx"},
    {"help.showAbout", Effect::View, "xxxxxxxx"},
    {"help.showGuide", Effect::Elsewhere, "xxxxxxxx"},
    {"help.showShortcuts", Effect::View, "xxxxxxxx"},
    {"panels.showDeviceDock", Effect::View, "xxxxxxxx"},
    {"panels.showFindDock", Effect::View, "xxxxxxxx"},
    {"panels.showFontsDock", Effect::View, "xxxxxxxx"},
    {"panels.showHistoryDock", Effect::View, "xxxxxxxx"},
    {"panels.showImagesDock", Effect::View, "xxxxxxxx"},
    {"panels.showPaletteDock", Effect::View, "xxxxxxxx"},
    {"panels.showPreviewDock", Effect::View, "xxxxxxxx"},
    {"panels.showProblemsDock", Effect::View, "xxxxxxxx"},
    {"panels.showQmlDock", Effect::View, "xxxxxxxx"},
    {"panels.showScreensDock", Effect::View, "xxxxxxxx"},
    {"panels.showSheetDock", Effect::View, "xxxxxxxx"},
    {"panels.showTreeDock", Effect::View, "xxxxxxxx"},
    {"project.check", Effect::View, "xxxxxxxx"},
    {"project.exportPicture", Effect::View, "xxxxxxxx"},
    {"project.exportQml", Effect::View, "xxxxxxxx"},
    {"project.exportSelectionPicture", Effect::View, "-xxxxx-x"},
    {"project.importImages", Effect::View, "xxxxxxxx"},
    {"project.preview", Effect::Elsewhere, "xxxxxxxx"},
    {"screen.add", Effect::Step, "xxxxxxx-"},
    {"screen.duplicate", Effect::Step, "xxxxxxx-"},
    {"screen.moveBack", Effect::Step, "------x-"},
    {"screen.moveForward", Effect::Step, "--------"},
    {"screen.remove", Effect::Step, "xxxxxxx-"},
    {"screen.rename", Effect::View, "xxxxxxx-"},
    {"screen.resize", Effect::Step, "xxxxxxx-"},
    {"sheet.find", Effect::View, "xxxxxxxx"},
    {"sheet.resetProperty", Effect::Elsewhere, "--------"},
    {"view.colorsOfDesktop", Effect::View, "xxxxxxxx"},
    {"view.darkColors", Effect::View, "xxxxxxxx"},
    {"view.editProperties", Effect::View, "xxxxxxxx"},
    {"view.goToCanvas", Effect::View, "xxxxxxxx"},
    {"view.lightColors", Effect::View, "xxxxxxxx"},
    {"view.nextPanel", Effect::View, "xxxxxxxx"},
    {"view.nextScreen", Effect::View, "------x-"},
    {"view.previousPanel", Effect::View, "xxxxxxxx"},
    {"view.previousScreen", Effect::View, "------x-"},
    {"view.resetLayout", Effect::View, "xxxxxxxx"},
    {"view.showAsOnPanel", Effect::View, "xxxxxxxx"},
    {"view.showLivePreview", Effect::View, "xxxxxxxx"},
    {"view.showQml", Effect::View, "xxxxxxxx"},
    {"view.zoomActual", Effect::View, "xxxxxxxx"},
    {"view.zoomFit", Effect::View, "xxxxxxxx"},
    {"view.zoomIn", Effect::View, "xxxxxxxx"},
    {"view.zoomOut", Effect::View, "xxxxxxxx"},
    {"view.zoomToSelection", Effect::View, "-xxxxx-x"},
};
// clang-format on

/// Everything that the project's files would hold.
QByteArray contentOf(const EditSession* session)
{
    QJsonArray screens;
    for (const Screen* screen : session->project()->screens())
        screens.append(ElementJson::write(screen));
    return QJsonDocument(screens).toJson();
}

/// Closes what an action has opened in a window of its own.
void closeWindows(const QWidget* window)
{
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    const QWidgetList others = QApplication::topLevelWidgets();
    for (QWidget* other : others) {
        if (other == window || !other->isVisible())
            continue;
        if (auto* dialog = qobject_cast<QDialog*>(other))
            dialog->reject();
    }
}

} // namespace

/// Every action of the window in every situation: enabled only when it can act, one undo step where it edits.
class tst_EveryAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(TestWindow::isolate());
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        QGuiApplication::clipboard()->clear();
        m_window = std::make_unique<TestWindow>();
        m_window->prompts.screenSize = ScreenSize{QSizeF(500, 320), true};
        QVERIFY(m_window->show());
        // Some of them wait for their answer in an event loop of their own.
        auto* closer = new QTimer(m_window->window.get());
        connect(closer, &QTimer::timeout, this, [this] { closeWindows(m_window->window.get()); });
        closer->start(20);
    }

    void cleanup() { m_window.reset(); }

    void theTableNamesEveryAction()
    {
        QStringList known;
        for (const Row& row : Table)
            known << QLatin1String(row.name);
        QStringList found;
        const QList<QAction*> actions = m_window->window->findChildren<QAction*>();
        for (const QAction* action : actions) {
            if (!action->objectName().contains(QLatin1Char('.')))
                continue;
            found << action->objectName();
            QVERIFY2(!action->text().isEmpty() && !action->toolTip().isEmpty(), qPrintable(action->objectName()));
        }
        found.sort();
        QCOMPARE(found.join(QLatin1Char('\n')), known.join(QLatin1Char('\n')));
    }

    void actionsAreEnabledOnlyWhenTheyCanAct_data() { addStates(); }
    void actionsAreEnabledOnlyWhenTheyCanAct()
    {
        QFETCH(int, state);
        enter(State(state));
        QStringList wrong;
        for (const Row& row : Table) {
            if (m_window->action(row.name)->isEnabled() != isExpected(row, state))
                wrong << QLatin1String(row.name);
        }
        QCOMPARE(wrong.join(QLatin1String(", ")), QString());
    }

    void editsAreOneStepThatIsTakenBackByteForByte_data() { addStates(); }
    void editsAreOneStepThatIsTakenBackByteForByte()
    {
        QFETCH(int, state);
        enter(State(state));
        if (state == Dragged) {
            endDrag();
            return;
        }
        const UndoStack* stack = session()->undoStack();
        const QByteArray before = contentOf(session());
        const QList<DesignerObject*> selection = session()->selection();
        Screen* screen = session()->currentScreen();
        for (const Row& row : Table) {
            if (!isExpected(row, state) || row.effect == Effect::Elsewhere)
                continue;
            const int steps = stack->index();
            m_window->action(row.name)->trigger();
            settle();
            const QByteArray after = contentOf(session());
            const bool isEdit = row.effect == Effect::Step;
            QVERIFY2(stack->index() == steps + (isEdit ? 1 : 0), row.name);
            QVERIFY2((after != before) == isEdit, row.name);
            if (isEdit) {
                session()->undo();
                QVERIFY2(contentOf(session()) == before, row.name);
                session()->redo();
                QVERIFY2(contentOf(session()) == after, row.name);
                session()->undo();
            }
            session()->setCurrentScreen(screen);
            session()->setSelection(selection);
            settle();
            QVERIFY2(m_window->action(row.name)->isEnabled(), row.name);
        }
    }

private:
    static void addStates()
    {
        QTest::addColumn<int>("state");
        static constexpr const char* names[] = {"nothing there", "one element", "three elements", "the middle one",
                                                "a locked one",  "a group",     "a screen",       "during a drag"};
        for (int state = 0; state < StateCount; ++state)
            QTest::newRow(names[state]) << state;
    }

    static bool isExpected(const Row& row, int state) { return row.enabled[state] == 'x'; }

    /// Brings the project into \a state.
    void enter(State state)
    {
        QList<DesignerObject*> elements;
        if (state != Empty)
            elements << add("Rectangle", "100,100");
        if (state == Three || state == Middle || state == Grouped) {
            elements << add("Ellipse", "150,40") << add("Rectangle", "310,207");
            session()->setProperty(elements.constLast(), QStringLiteral("size"), QStringLiteral("50,30"));
        }
        QList<DesignerObject*> selection = elements;
        switch (state) {
        case Middle:
            selection = {elements.at(1)};
            session()->setHidden({elements.at(2)}, true);
            session()->setSelection(selection);
            m_window->action("edit.copy")->trigger();
            break;
        case Locked:
            session()->setLocked(elements, true);
            break;
        case Grouped:
            Grouping::group(session(), elements);
            selection = session()->selection();
            break;
        case OnScreen: {
            Screen* first = session()->currentScreen();
            session()->addScreen();
            session()->setCurrentScreen(first);
            canvas()->guides()->add({Qt::Vertical, 40});
            selection = {first};
            break;
        }
        default:
            break;
        }
        session()->setSelection(selection);
        settle();
        if (state == Dragged)
            beginDrag();
    }

    void beginDrag()
    {
        const QPoint from = canvas()->mapFromScene(QPointF(110, 110));
        QTest::mousePress(canvas()->viewport(), Qt::LeftButton, {}, from);
        QTest::mouseMove(canvas()->viewport(), from + QPoint(30, 20));
        QVERIFY(session()->undoStack()->isBlocked());
    }

    /// A drag is one step as well, and what waited for its end can act again.
    void endDrag()
    {
        const int steps = session()->undoStack()->index();
        const QByteArray before = contentOf(session());
        QTest::mouseRelease(canvas()->viewport(), Qt::LeftButton, {}, canvas()->mapFromScene(QPointF(140, 130)));
        QCOMPARE(session()->undoStack()->index(), steps + 1);
        QVERIFY(contentOf(session()) != before);
        QVERIFY(m_window->action("edit.undo")->isEnabled());
        QVERIFY(m_window->action("edit.delete")->isEnabled());
        m_window->action("edit.undo")->trigger();
        QCOMPARE(contentOf(session()), before);
    }

    DesignerObject* add(const char* className, const char* position)
    {
        DesignerObject* added = nullptr;
        session()->addElement(QLatin1String(className), session()->currentScreen(), {},
                              {{QStringLiteral("position"), QLatin1String(position)}}, &added);
        return added;
    }

    void settle()
    {
        closeWindows(m_window->window.get());
        canvas()->setFocus();
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    EditSession* session() const { return m_window->session(); }
    CanvasView* canvas() const { return m_window->window->workspace()->canvas(); }

    std::unique_ptr<TestWindow> m_window;
};

QTEST_MAIN(tst_EveryAction)
#include "tst_EveryAction.moc"
