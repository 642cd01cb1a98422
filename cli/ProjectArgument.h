#pragma once

#include "host/core/project/Problem.h"

#include <QString>

#include <memory>

namespace Korvex::Meridane::Designer {

class Project;
class Screen;

/// The PROJECT of a command line: the folder of a project.
class ProjectArgument
{
public:
    ProjectArgument() = delete;

    /// Loads the installed plug-ins, saying which were refused and why; false when one was.
    static bool loadPlugins();

    /// Opens the project in \a folder with the installed plug-ins loaded. What is wrong with it is printed; null when
    /// it cannot be opened.
    [[nodiscard]] static std::unique_ptr<Project> open(const QString& folder);
    /// The same, giving the problems to the caller instead of printing them.
    [[nodiscard]] static std::unique_ptr<Project> open(const QString& folder, QList<Problem>* problems);

    /// Whether results may be written into \a folder; says why not where it is a folder of the project's own files.
    [[nodiscard]] static bool isOutside(const Project& project, const QString& folder);
    /// Says that the project in \a folder has no screen \a id.
    static void printMissingScreen(const QString& folder, const QString& id);
    /// Reads every screen and prints what is wrong with their files; false when one cannot be read.
    [[nodiscard]] static bool readScreens(Project* project);
};

} // namespace Korvex::Meridane::Designer
