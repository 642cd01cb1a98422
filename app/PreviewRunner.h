#pragma once

#include "host/core/output/WorkProgress.h"
#include "host/core/project/Problem.h"

#include <QObject>

#include <memory>

class QProcess;
class QTemporaryDir;

namespace Korvex::Meridane::Designer {

class Project;

/**
 * Runs the open project as its display would: exports it into a temporary folder and starts the viewer on it.
 *
 * One preview runs at a time; starting another ends the one before. A preview that still runs when the runner goes is
 * ended, and its folder goes with it.
 */
class PreviewRunner : public QObject
{
    Q_OBJECT

public:
    /// \a program: the viewer; empty for the one that lies beside this program.
    explicit PreviewRunner(const QString& program = {}, QObject* parent = nullptr);
    ~PreviewRunner() override;

    /// Exports \a project and starts with the screen \a screenId (empty: the first). False when the export met problems
    /// (the list), when \a progress has ended it, or there is no temporary folder (failed() tells).
    bool start(Project* project, const QString& screenId, QList<Problem>* problems, const WorkProgress& progress = {});
    [[nodiscard]] bool isRunning() const;

    /// The path of the viewer that lies beside this program.
    [[nodiscard]] static QString installedViewer();

Q_SIGNALS:
    void started();
    /// The viewer could not be started, or ended with an error; \a message is for the user.
    void failed(const QString& message);

private:
    void stop();
    void onEnded(int exitCode, bool crashed);

    QString m_program;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QProcess> m_process;
};

} // namespace Korvex::Meridane::Designer
