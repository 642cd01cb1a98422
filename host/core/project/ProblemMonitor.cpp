#include "host/core/project/ProblemMonitor.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/properties/DesignerProperty.h"

#include <QElapsedTimer>
#include <QGuiApplication>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Delay = 300; // ms after a change
constexpr int Slice = 8; // ms
constexpr int ProgressSlice = 20; // ms, for somebody who waits
constexpr int BetweenSlices = 4; // ms, for everything else that goes on

QList<Problem> withoutRepetitions(const QList<Problem>& problems)
{
    QSet<QString> seen;
    QList<Problem> result;
    for (const Problem& problem : problems) {
        const QString line = QString::number(int(problem.severity)) + problem.text();
        if (!seen.contains(line)) {
            seen.insert(line);
            result.append(problem);
        }
    }
    return result;
}

} // namespace

ProblemMonitor::ProblemMonitor(Project* project, QObject* parent)
    : QObject(parent)
    , m_project(project)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ProblemMonitor::work);
    connect(project, &Project::objectPropertyChanged, this, [this](DesignerObject* object) { objectChanged(object); });
    connect(project, &Project::objectRenamed, this, [this](DesignerObject* object) {
        if (qobject_cast<Screen*>(object))
            everythingChanged(); // links may name screens
        else
            objectChanged(object);
    });
    connect(project, &Project::objectAdded, this, [this](DesignerObject* object) {
        if (qobject_cast<Screen*>(object))
            everythingChanged();
        else
            objectChanged(object);
    });
    connect(project, &Project::objectRemoved, this, [this](DesignerObject* object, DesignerObject* parent) {
        if (qobject_cast<Screen*>(object))
            everythingChanged();
        else
            objectChanged(parent);
    });
    connect(project, &Project::objectReordered, this, [this](DesignerObject* object) {
        // The order of screens is that of their problems; that of elements the order in which they are found.
        if (qobject_cast<Screen*>(object))
            screensChanged();
        else
            objectChanged(object);
    });
    connect(project, &Project::objectMarked, this, [this](DesignerObject* object) {
        if (qobject_cast<Screen*>(object)) // its guides; what is hidden or locked on the canvas is no fault
            objectChanged(object);
    });
    connect(project, &Project::resourcesChanged, this, &ProblemMonitor::everythingChanged);
    connect(project, &Project::imageFileChanged, this, &ProblemMonitor::everythingChanged);
    connect(project, &Project::folderChanged, this, &ProblemMonitor::everythingChanged);
    connect(project, &Project::projectBrowserUpdateRequested, this, &ProblemMonitor::screensChanged);
    connect(project, &Project::modifiedChanged, this, &ProblemMonitor::screensChanged); // a save may settle something
    connect(project->undoStack(), &UndoStack::blockedChanged, this, [this](bool blocked) {
        if (!blocked && !isCurrent())
            m_timer.start(Delay);
    });
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        connect(application, &QGuiApplication::fontDatabaseChanged, this, &ProblemMonitor::everythingChanged);
    m_timer.start(Delay);
}

ProblemMonitor::~ProblemMonitor() = default;

bool ProblemMonitor::isCurrent() const
{
    return m_assembled;
}

const QList<Problem>& ProblemMonitor::finish()
{
    m_timer.stop();
    if (!m_assembled) {
        workFor(-1);
        assemble();
    }
    return m_problems;
}

bool ProblemMonitor::checkAll(const WorkProgress& progress)
{
    everythingChanged();
    while (progress && !workFor(ProgressSlice)) {
        if (!progress(int(m_screenProblems.size()), int(m_project->screens().size())))
            return false;
    }
    finish();
    return true;
}

void ProblemMonitor::objectChanged(DesignerObject* object)
{
    const Screen* screen = ObjectTree::screenOf(object);
    if (screen) {
        m_screenProblems.remove(screen);
        if (screen == m_unfinished)
            dropUnfinished();
    } else {
        m_projectStale = true;
    }
    changed();
}

void ProblemMonitor::screensChanged()
{
    changed();
}

void ProblemMonitor::everythingChanged()
{
    m_projectStale = true;
    m_screenProblems.clear();
    dropUnfinished();
    m_checker.reset();
    changed();
}

void ProblemMonitor::changed()
{
    m_assembled = false;
    m_timer.start(Delay);
}

/// The screen that is being checked has changed: what waits to be checked may be gone.
void ProblemMonitor::dropUnfinished()
{
    if (m_unfinished && m_checker)
        (void)m_checker->takeScreenProblems();
    m_unfinished = nullptr;
}

void ProblemMonitor::work()
{
    if (m_project->undoStack()->isBlocked())
        return; // blockedChanged() begins again
    if (!workFor(Slice)) {
        if (!m_timer.isActive()) // else something has changed meanwhile
            m_timer.start(BetweenSlices);
        return;
    }
    assemble();
}

/// Works for that time or a little longer (negative: to the end); true when all screens have been checked.
bool ProblemMonitor::workFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    const auto isOver = [&] { return milliseconds >= 0 && clock.hasExpired(milliseconds); };
    if (!m_checker)
        m_checker = std::make_unique<ProjectChecker>(m_project);
    if (std::exchange(m_projectStale, false)) {
        dropUnfinished();
        m_projectProblems = m_checker->checkProject();
    }
    const QVector<Screen*> screens = m_project->screens();
    for (const Screen* screen : screens) {
        if (m_screenProblems.contains(screen))
            continue;
        if (isOver())
            return false;
        if (screen != m_unfinished) {
            screen->readContent(); // which announces the elements
            m_checker->beginScreen(screen);
            m_unfinished = screen;
        }
        const int left = milliseconds < 0 ? -1 : int(qMax<qint64>(1, milliseconds - clock.elapsed()));
        if (!m_checker->continueScreen(left))
            return false;
        m_unfinished = nullptr;
        m_screenProblems.insert(screen, m_checker->takeScreenProblems());
        ++m_checkedScreens;
    }
    return true;
}

void ProblemMonitor::assemble()
{
    QList<Problem> problems = m_checker->fileProblems() + m_projectProblems;
    const QVector<Screen*> screens = m_project->screens();
    for (const Screen* screen : screens)
        problems += m_screenProblems.value(screen);
    problems = withoutRepetitions(problems);
    m_assembled = true;
    m_timer.stop();
    if (problems == m_problems)
        return;
    m_problems = problems;
    Q_EMIT problemsChanged();
}

} // namespace Korvex::Meridane::Designer
