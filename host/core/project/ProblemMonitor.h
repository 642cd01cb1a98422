#pragma once

#include "host/core/output/WorkProgress.h"
#include "host/core/project/Problem.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <memory>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Project;
class ProjectChecker;
class Screen;

/**
 * Keeps the list of a project's problems current while somebody works: what ProjectChecker::check() would give.
 *
 * A short time after the last change the screens that have changed are checked again, in slices of a few milliseconds, so
 * that nobody notices. Nothing is checked while a mouse gesture runs.
 */
class MERIDANE_CORE_EXPORT ProblemMonitor : public QObject
{
    Q_OBJECT

public:
    /// \a project outlives the monitor.
    explicit ProblemMonitor(Project* project, QObject* parent = nullptr);
    ~ProblemMonitor() override;

    /// What the last complete check found, in its order, without repetitions.
    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }
    /// Whether nothing has changed since that check.
    [[nodiscard]] bool isCurrent() const;
    /// How many screens have been checked since the monitor was made.
    [[nodiscard]] int checkedScreens() const { return m_checkedScreens; }
    /// Checks what has changed at once.
    const QList<Problem>& finish();
    /// Checks all of it: what other programs do to the files is seen as well. \a progress hears of it every few
    /// milliseconds, in screens; false when it ended the check, which then goes on unnoticed.
    bool checkAll(const WorkProgress& progress = {});

Q_SIGNALS:
    /// A check is complete and has found other problems than the one before.
    void problemsChanged();

private:
    void objectChanged(DesignerObject* object);
    void screensChanged();
    void everythingChanged();
    void changed();
    void dropUnfinished();
    void work();
    bool workFor(int milliseconds);
    void assemble();

    Project* m_project;
    std::unique_ptr<ProjectChecker> m_checker;
    QTimer m_timer;
    bool m_projectStale = true;
    QList<Problem> m_projectProblems;
    QHash<const Screen*, QList<Problem>> m_screenProblems; // of the screens that are up to date
    const Screen* m_unfinished = nullptr; // the screen that is being checked
    QList<Problem> m_problems;
    int m_checkedScreens = 0;
    bool m_assembled = false; // since the last change
};

} // namespace Korvex::Meridane::Designer
