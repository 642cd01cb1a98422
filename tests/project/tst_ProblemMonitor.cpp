#include "host/core/canvas/EditSession.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ProblemFix.h"
#include "host/core/project/ProblemMonitor.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// What a check from the beginning finds, each fault once.
QStringList checkedAnew(Project* project)
{
    QStringList lines;
    const QList<Problem> problems = ProjectChecker::check(project);
    for (const Problem& problem : problems) {
        const QString line = textOf({problem});
        if (!lines.contains(line))
            lines.append(line);
    }
    return lines;
}

QStringList linesOf(const QList<Problem>& problems)
{
    QStringList lines;
    for (const Problem& problem : problems)
        lines.append(textOf({problem}));
    return lines;
}

int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

} // namespace

/// The list of problems follows what somebody does.
class tst_ProblemMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<ProjectFixture>();
        m_fixture->writeProject({QStringLiteral("main"), QStringLiteral("second")});
        m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "a"}, {"class": "AllTypes", "id": "b"},
            {"class": "Group", "id": "g", "elements": [{"class": "AllTypes", "id": "inner"}]})");
        m_fixture->writeScreen("second", R"({"class": "AllTypes", "id": "a"})");
        m_session = std::make_unique<EditSession>(load(m_fixture->folder()));
        m_monitor = std::make_unique<ProblemMonitor>(project());
        QTRY_VERIFY(m_monitor->isCurrent());
    }
    void cleanup()
    {
        m_monitor.reset();
        m_session.reset();
    }

    void aProblemAppearsAndGoesByItself()
    {
        QVERIFY(m_monitor->problems().isEmpty());
        const QSignalSpy spy(m_monitor.get(), &ProblemMonitor::problemsChanged);
        QVERIFY(m_session->setProperty(element("a"), QStringLiteral("position"), QStringLiteral("999,0")).changed);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(m_monitor->problems().size(), 1);
        QCOMPARE(m_monitor->problems().constFirst().object, QStringLiteral("main/a"));
        m_session->undo();
        QTRY_COMPARE(spy.count(), 2);
        QVERIFY(m_monitor->problems().isEmpty());
    }

    void onlyTheScreenThatChangedIsCheckedAgain()
    {
        const int before = m_monitor->checkedScreens();
        m_session->setProperty(element("a"), QStringLiteral("position"), QStringLiteral("3,0"));
        QVERIFY(!m_monitor->isCurrent());
        QTRY_VERIFY(m_monitor->isCurrent());
        QCOMPARE(m_monitor->checkedScreens(), before + 1);
        m_session->setProperty(project(), QStringLiteral("name"), QStringLiteral("Other"));
        QTRY_VERIFY(m_monitor->isCurrent());
        QCOMPARE(m_monitor->checkedScreens(), before + 1);
    }

    void guidesAreChecked()
    {
        Screen* main = project()->screen(QStringLiteral("main"));
        QVERIFY(main->setEditorMark(EditorMarks::guides(), QStringLiteral("sideways")));
        QVERIFY(!m_monitor->isCurrent());
        QCOMPARE(linesOf(m_monitor->finish()), checkedAnew(project()));
        QCOMPARE(m_monitor->problems().size(), 1);
    }

    void nothingIsCheckedDuringAGesture()
    {
        const int before = m_monitor->checkedScreens();
        m_session->setProperty(element("a"), QStringLiteral("position"), QStringLiteral("999,0"));
        m_session->undoStack()->setBlocked(true);
        QTest::qWait(500);
        QCOMPARE(m_monitor->checkedScreens(), before);
        m_session->undoStack()->setBlocked(false);
        QTRY_COMPARE(m_monitor->problems().size(), 1);
    }

    void aScreenThatGoesWhileItIsCheckedDoesNoHarm()
    {
        Screen* second = project()->screen(QStringLiteral("second"));
        for (int i = 0; i < 3000; ++i)
            addElement(project(), second);
        // The slices of a few milliseconds leave the check of so many unfinished.
        QTest::qWait(320);
        m_session->removeScreen(second);
        QTRY_VERIFY(m_monitor->isCurrent());
        QCOMPARE(linesOf(m_monitor->problems()), checkedAnew(project()));
    }

    void theWindowNeverWaitsForACheck()
    {
        for (int i = 0; i < 5000; ++i)
            addElement(project(), project()->screen(QStringLiteral("main")));
        qint64 longest = 0;
        QElapsedTimer clock;
        clock.start();
        while (!m_monitor->isCurrent() && clock.elapsed() < 60000) {
            QElapsedTimer turn;
            turn.start();
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
            longest = qMax(longest, turn.elapsed());
        }
        QVERIFY(m_monitor->isCurrent());
        // A slice takes 8 ms; the machine may be busy with other things.
        QVERIFY2(longest < 150, qPrintable(QString::number(longest)));
    }

    void whateverIsDoneTheListIsThatOfAFullCheck()
    {
        const bool held = rc::check("incremental is full", [] {
            ProjectFixture fixture;
            fixture.writeProject({QStringLiteral("main"), QStringLiteral("second")});
            fixture.writeScreen("main", R"({"class": "AllTypes", "id": "a"}, {"class": "AllTypes", "id": "b"})");
            fixture.writeScreen("second", R"({"class": "AllTypes", "id": "c"})");
            EditSession session(load(fixture.folder()));
            Project* project = session.project();
            ProblemMonitor monitor(project);
            const int count = anyNumber(1, 25);
            for (int i = 0; i < count; ++i) {
                const QVector<Screen*> screens = project->screens();
                Screen* screen = screens.isEmpty() ? nullptr : screens.at(anyNumber(0, int(screens.size())));
                const auto elements = screen ? screen->childList()->items() : QVector<DesignerObject*>();
                DesignerObject* chosen = elements.isEmpty() ? nullptr : elements.at(anyNumber(0, int(elements.size())));
                switch (anyNumber(0, 10)) {
                case 0:
                    session.addScreen();
                    break;
                case 1:
                    if (screen)
                        session.removeScreen(screen);
                    break;
                case 2:
                    if (screen)
                        session.duplicateScreen(screen);
                    break;
                case 3:
                    if (screen)
                        session.reorder(screen, anyNumber(0, 3));
                    break;
                case 4:
                    if (screen)
                        addElement(project, screen);
                    break;
                case 5:
                    if (chosen)
                        session.setProperty(chosen, QStringLiteral("position"),
                                            *rc::gen::element(QStringLiteral("0,0"), QStringLiteral("999,1")));
                    break;
                case 6:
                    if (chosen)
                        session.setProperty(chosen, QStringLiteral("target"),
                                            *rc::gen::element(QStringLiteral("a"), QStringLiteral("b"), QString()));
                    break;
                case 7:
                    if (chosen)
                        session.rename(chosen, *rc::gen::element(QStringLiteral("a"), QStringLiteral("z")));
                    break;
                case 8:
                    if (chosen)
                        session.removeElements({chosen});
                    break;
                default:
                    *rc::gen::element(true, false) ? session.undo() : session.redo();
                }
                if (anyNumber(0, 3) == 0)
                    RC_ASSERT(linesOf(monitor.finish()) == checkedAnew(project));
            }
            RC_ASSERT(linesOf(monitor.finish()) == checkedAnew(project));
        });
        QVERIFY(held);
    }

    void anElementOffTheScreenIsMovedOntoIt()
    {
        m_session->setProperty(element("a"), QStringLiteral("position"), QStringLiteral("999,-500"));
        const Problem problem = m_monitor->finish().constFirst();
        QCOMPARE(ProblemFix::text(project(), problem), QStringLiteral("Move onto the screen"));
        QVERIFY(ProblemFix::apply(m_session.get(), problem).changed);
        QCOMPARE(m_session->undoStack()->count(), 2);
        QVERIFY(m_monitor->finish().isEmpty());
        QVERIFY(valueOf(element("a"), "position") != QStringLiteral("0,0")); // it went no further than it had to
        m_session->undo();
        QCOMPARE(valueOf(element("a"), "position"), QStringLiteral("999,-500"));
    }

    void anInvalidValueIsResetToItsDefault()
    {
        element("a")->getProperty(QStringLiteral("size"))->fill(QStringLiteral("wide"));
        QVERIFY(m_monitor->checkAll());
        const QList<Problem> problems = m_monitor->problems();
        QCOMPARE(problems.size(), 1);
        QCOMPARE(ProblemFix::text(project(), problems.constFirst()), QStringLiteral("Reset to the default"));
        QVERIFY(ProblemFix::apply(m_session.get(), problems.constFirst()).changed);
        QVERIFY(m_monitor->finish().isEmpty());
        QVERIFY(element("a")->getProperty(QStringLiteral("size"))->isConverted());
    }

    void aFixOfWhatIsGoneIsRefused()
    {
        m_session->setProperty(element("a"), QStringLiteral("position"), QStringLiteral("999,0"));
        const Problem problem = m_monitor->finish().constFirst();
        m_session->removeElements({element("a")});
        QVERIFY(ProblemFix::text(project(), problem).isEmpty());
        const EditResult result = ProblemFix::apply(m_session.get(), problem);
        QVERIFY(!result.accepted && !result.message.isEmpty());
    }

private:
    Project* project() const { return m_session->project(); }
    DesignerObject* element(const char* id) const
    {
        return project()->screen(QStringLiteral("main"))->element(QString::fromLatin1(id));
    }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<ProblemMonitor> m_monitor;
};

QTEST_MAIN(tst_ProblemMonitor)
#include "tst_ProblemMonitor.moc"
