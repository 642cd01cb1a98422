#pragma once

#include "tests/tasks/TaskUser.h"

#include "app/DialogPrompts.h"

#include <QTemporaryDir>

#include <memory>

namespace Korvex::Meridane::Designer::Test {

/// The designer's window on an X server of its own with a window manager, with its real dialogs and fresh settings.
class TaskProgram
{
public:
    /// Runs \a test (a QTestLib object made by \a make) in a process whose display is a new X server. For main().
    static int run(int argc, char* argv[], const std::function<std::unique_ptr<QObject>()>& make);

    TaskProgram();
    ~TaskProgram();

    [[nodiscard]] MainWindow* window() const { return m_window.get(); }
    /// A folder for what the task writes; gone with the program.
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    /// Opens a copy of the example \a name, made in folder(); its path, or nothing when that fails.
    QString openCopy(const QString& name);

    /// Has a user carry out \a task; empty when it was done, else what went wrong (with a picture of the moment).
    QString carryOut(const std::function<void(const TaskUser& user)>& task);

private:
    QTemporaryDir m_folder;
    DialogPrompts m_prompts;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace Korvex::Meridane::Designer::Test
