#include "host/core/project/ProjectStore.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/ProjectReader.h"
#include "host/core/project/ProjectWriter.h"
#include "host/core/project/UnknownContent.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

std::unique_ptr<Project> ProjectStore::create(const QString& name, const QSizeF& displaySize)
{
    auto project = std::make_unique<Project>();
    project->initialize();
    auto folder = std::make_unique<QTemporaryDir>(QDir::temp().filePath(QStringLiteral("meridane-XXXXXX")));
    if (folder->isValid()) {
        QDir(folder->path()).mkpath(QStringLiteral("images"));
        QDir(folder->path()).mkpath(QStringLiteral("fonts"));
        ProjectFiles::of(project.get())->setTemporaryFolder(std::move(folder));
    } else {
        // Without a place for temporary files there is no importing, but everything else, saving included.
        ProjectFiles::of(project.get())->setFolder(QDir::temp().filePath(QStringLiteral("meridane-unavailable")));
    }
    project->getProperty(QStringLiteral("name"))->fill(name);
    project->getProperty(QStringLiteral("displaySize"))->fill(ValueConversion::toString(displaySize));

    auto screen = std::make_unique<Screen>(project.get());
    screen->initialize();
    screen->setIdName(QStringLiteral("main"));
    if (project->addListItem(project->childList(), screen.get(), -1))
        screen.release(); // NOLINT(bugprone-unused-return-value): the project owns it now
    project->setSaved();
    return project;
}

ProjectStore::Loaded ProjectStore::load(const QString& folder)
{
    ProjectReader reader(folder);
    Loaded loaded;
    loaded.project = reader.read();
    loaded.problems = reader.problems();
    if (loaded.project)
        loaded.problems.append(UnknownContent::find(loaded.project.get()));
    return loaded;
}

ProjectStore::Loaded ProjectStore::loadCopy(const QString& folder)
{
    auto copy = std::make_unique<QTemporaryDir>(QDir::temp().filePath(QStringLiteral("meridane-XXXXXX")));
    const QDir target(copy->path());
    for (const char* subfolder : {".", "screens", "images", "fonts"}) {
        const QString name = QLatin1String(subfolder);
        target.mkpath(name);
        const QFileInfoList files = QDir(QDir(folder).filePath(name)).entryInfoList(QDir::Files);
        for (const QFileInfo& file : files) {
            QFile written(target.filePath(name + QLatin1Char('/') + file.fileName()));
            // A copy of a file that is read-only would be, too.
            if (QFile::copy(file.filePath(), written.fileName()))
                written.setPermissions(written.permissions() | QFile::ReadOwner | QFile::WriteOwner);
        }
    }
    Loaded loaded = load(copy->path());
    if (loaded.project)
        ProjectFiles::of(loaded.project.get())->setTemporaryFolder(std::move(copy));
    return loaded;
}

bool ProjectStore::isProjectFolder(const Project* project, const QString& folder)
{
    if (project->folder().isEmpty())
        return false;
    const QDir own(project->folder());
    const QFileInfo target(folder);
    for (const char* subfolder : {".", "screens", "images", "fonts"}) {
        // A folder that does not exist yet has a plain path only.
        const QFileInfo owned(QDir::cleanPath(own.absoluteFilePath(QLatin1String(subfolder))));
        if (QDir::cleanPath(target.absoluteFilePath()) == owned.filePath()
            || (target.exists() && target.canonicalFilePath() == owned.canonicalFilePath()))
            return true;
    }
    return false;
}

QList<Problem> ProjectStore::readAllScreens(Project* project)
{
    QList<Problem> problems;
    ProjectFiles* files = ProjectFiles::of(project);
    for (Screen* screen : project->screens()) {
        screen->readContent();
        if (const ProjectFiles::ScreenFile* file = files->screenFile(screen))
            problems.append(file->problems);
        problems.append(UnknownContent::find(screen));
    }
    return problems;
}

bool ProjectStore::save(Project* project, const QString& folder, QString* message, const WorkProgress& progress)
{
    QString unasked;
    QString& reason = message ? *message : unasked;
    reason.clear();
    return ProjectWriter(project, folder).save(&reason, progress);
}

} // namespace Korvex::Meridane::Designer
