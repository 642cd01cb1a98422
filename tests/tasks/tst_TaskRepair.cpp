#include "tests/tasks/TaskProgram.h"

#include "app/MainWindow.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectDocument.h"
#include "app/Workspace.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"

#include <QApplication>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskProgram;
using Test::TaskUser;

/// A project with three problems: an element far off the screen, a colour that is none, a picture that is not there.
class tst_TaskRepair : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_project = m_program.openCopy(QStringLiteral("sheets/images"));
        QVERIFY(!m_project.isEmpty());
        Screen* screen = session()->currentScreen();
        DesignerObject* lost = nullptr;
        DesignerObject* colored = nullptr;
        QVERIFY(session()
                    ->addElement(QStringLiteral("Rectangle"), screen, QStringLiteral("lost"),
                                 {{QStringLiteral("position"), QStringLiteral("3000,200")}}, &lost)
                    .accepted);
        QVERIFY(
            session()->addElement(QStringLiteral("Ellipse"), screen, QStringLiteral("colored"), {}, &colored).accepted);
        colored->getProperty(QStringLiteral("color"))->fill(QStringLiteral("blurple"));
        QVERIFY(session()->addElement(QStringLiteral("Image"), screen, QStringLiteral("picture"), {}).accepted);
        screen->element(QStringLiteral("picture"))
            ->getProperty(QStringLiteral("source"))
            ->fill(QStringLiteral("nowhere.png"));
        QString message;
        QVERIFY2(ProjectStore::save(session()->project(), m_project, &message), qPrintable(message));
        QVERIFY(m_program.window()->openProject(m_project));
        QCOMPARE(ProjectChecker::check(session()->project()).size(), 3);
    }

    void threeProblemsAreFoundAndMended()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            waitForProblems(user, 3);
            user.click(user.button(QStringLiteral("3 problems")).center());
            user.waitUntil(QStringLiteral("the list of problems"),
                           [this] { return m_program.window()->problemsPanel()->isVisible(); });
            user.picture(QStringLiteral("three-problems"));

            // The element that nobody sees is moved by what the list offers.
            clickRow(user, QStringLiteral("lost"), true);
            waitForProblems(user, 2);

            // The colour is typed anew, where the list leads to.
            clickRow(user, QStringLiteral("colored"), false);
            user.waitUntil(QStringLiteral("the selected ellipse"), [this] { return isSelected("colored"); });
            user.fill(QStringLiteral("color"), 0, QStringLiteral("#8a69e8"));
            waitForProblems(user, 1);
            user.picture(QStringLiteral("two-problems-mended"));

            // The picture is not needed.
            clickRow(user, QStringLiteral("picture"), false);
            user.waitUntil(QStringLiteral("the selected image"), [this] { return isSelected("picture"); });
            user.key(QStringLiteral("ctrl+F6"));
            user.command(QStringLiteral("Delete"));
            waitForProblems(user, 0);
            user.key(QStringLiteral("ctrl+s"));
            user.waitUntil(QStringLiteral("the saved project"),
                           [this] { return !m_program.window()->document()->isModified(); });
            user.picture(QStringLiteral("no-problems"));
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QVERIFY(ProjectChecker::check(session()->project()).isEmpty());
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    [[nodiscard]] bool isSelected(const char* id) const
    {
        const QList<DesignerObject*>& selection = session()->selection();
        return selection.size() == 1 && selection.first()->getIdName() == QLatin1String(id);
    }
    void waitForProblems(const TaskUser& user, int count) const
    {
        user.waitUntil(QStringLiteral("%1 problems").arg(count),
                       [&] { return m_program.window()->problemsPanel()->problems().size() == count; });
    }
    /// Clicks the row of the object \a id, in the column of the ways to mend when \a fix.
    void clickRow(const TaskUser& user, const QString& id, bool fix) const
    {
        QPoint place;
        user.waitUntil(QStringLiteral("the problem of \"%1\"").arg(id), [&] {
            ProblemsPanel* panel = m_program.window()->problemsPanel();
            for (int row = 0; row < panel->topLevelItemCount(); ++row) {
                const QTreeWidgetItem* item = panel->topLevelItem(row);
                for (int column = 0; column < panel->columnCount(); ++column) {
                    if (!item->text(column).contains(id))
                        continue;
                    panel->scrollToItem(item);
                    const QModelIndex index = panel->model()->index(row, fix ? 1 : 0);
                    const QRect cell = panel->visualRect(index);
                    place = panel->viewport()->mapToGlobal(QPoint(cell.left() + 30, cell.center().y()));
                    return panel->isVisible();
                }
            }
            return false;
        });
        user.click(place);
    }

    TaskProgram m_program;
    QString m_project;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskRepair>(); });
}

#include "tst_TaskRepair.moc"
