#include "cli/ProjectArgument.h"

#include "cli/Messages.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

bool ProjectArgument::loadPlugins()
{
    const QStringList refusals = DesignerFactory::instance()->loadInstalledPlugins();
    for (const QString& refusal : refusals)
        Messages::print(refusal);
    return refusals.isEmpty();
}

std::unique_ptr<Project> ProjectArgument::open(const QString& folder)
{
    QList<Problem> problems;
    std::unique_ptr<Project> project = open(folder, &problems);
    Messages::print(problems);
    return project;
}

std::unique_ptr<Project> ProjectArgument::open(const QString& folder, QList<Problem>* problems)
{
    loadPlugins();
    ProjectStore::Loaded loaded = ProjectStore::load(folder);
    *problems = loaded.problems;
    if (!loaded.project) {
        Messages::print(
            LocalizationHelper::coreString(QStringLiteral("%1: this project cannot be opened")).arg(folder));
    }
    return std::move(loaded.project);
}

bool ProjectArgument::isOutside(const Project& project, const QString& folder)
{
    if (!ProjectStore::isProjectFolder(&project, folder))
        return true;
    Messages::print(LocalizationHelper::coreString(
                        QStringLiteral("%1: this folder belongs to the project itself. Choose another one."))
                        .arg(folder));
    return false;
}

void ProjectArgument::printMissingScreen(const QString& folder, const QString& id)
{
    Messages::print(LocalizationHelper::coreString(QStringLiteral("%1: there is no screen \"%2\" in this project"))
                        .arg(folder, id));
}

bool ProjectArgument::readScreens(Project* project)
{
    const QList<Problem> problems = ProjectStore::readAllScreens(project);
    Messages::print(problems);
    return !Messages::hasError(problems);
}

} // namespace Korvex::Meridane::Designer
