#pragma once

#include "host/core/output/WorkProgress.h"
#include "host/core/project/Problem.h"

#include <QSizeF>

#include <memory>

namespace Korvex::Meridane::Designer {

class Project;

/**
 * Reads and writes project folders: `project.json`, `screens/<id>.json`, `images/`, `fonts/`; see
 * docs/project-format.md.
 *
 * A save leaves the old project or the new one, whatever happens meanwhile.
 */
class MERIDANE_CORE_EXPORT ProjectStore
{
public:
    ProjectStore() = delete;

    struct Loaded
    {
        std::unique_ptr<Project> project; ///< null when the project cannot be opened; the problems say why
        QList<Problem> problems;
    };

    /// The newest format version that this program reads and writes.
    static constexpr int FormatVersion = 1;

    /// A new project with one empty screen "main", in a temporary folder that goes with it. It counts as unmodified.
    [[nodiscard]] static std::unique_ptr<Project> create(const QString& name, const QSizeF& displaySize);
    /// Opens the project in \a folder, after completing or taking back a save that was interrupted there. Screens are
    /// read when they are first needed. The problems are those of project.json and of the folder.
    [[nodiscard]] static Loaded load(const QString& folder);
    /// Opens a copy of the project in \a folder, made in a temporary folder that goes with it; what is in \a folder stays as
    /// it is.
    [[nodiscard]] static Loaded loadCopy(const QString& folder);
    /// Whether \a folder is one of the folders that hold the project's own files: nothing else is written there.
    [[nodiscard]] static bool isProjectFolder(const Project* project, const QString& folder);
    /// Reads every screen that has not been read; what is wrong with the files of all screens.
    static QList<Problem> readAllScreens(Project* project);
    /**
     * Saves into \a folder, the project's own or another one (which becomes its own). False with a message, naming file
     * and reason, when it cannot be written; what stood there before is then still there.
     *
     * Only files whose meaning changed are written. Refused is a save that would overwrite what another program has
     * changed since the project was opened, or, in another folder, files that are there already.
     *
     * \a progress hears of each screen before anything is written, and may end the save, which then has no message.
     */
    static bool save(Project* project, const QString& folder, QString* message, const WorkProgress& progress = {});
};

} // namespace Korvex::Meridane::Designer
