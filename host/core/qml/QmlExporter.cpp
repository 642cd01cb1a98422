#include "host/core/qml/QmlExporter.h"

#include "host/core/project/Project.h"
#include "host/core/qml/ExportContent.h"
#include "host/core/qml/ExportFolder.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

namespace {

/// Whether \a folder is a folder of the project's own files.
bool isPartOfProject(const Project* project, const QString& folder)
{
    const QDir own(project->folder());
    const QString target = QFileInfo(folder).canonicalFilePath();
    if (target.isEmpty() || project->folder().isEmpty())
        return false;
    for (const char* subfolder : {".", "screens", "images", "fonts"}) {
        if (target == QFileInfo(own.filePath(QLatin1String(subfolder))).canonicalFilePath())
            return true;
    }
    return false;
}

} // namespace

QList<Problem> QmlExporter::exportProject(Project* project, const QString& folder)
{
    const QString target = QFileInfo(folder).absoluteFilePath();
    if (isPartOfProject(project, target)) {
        return {Problem::error(QDir::toNativeSeparators(target), {}, {},
                               Common::LocalizationHelper::coreString(QStringLiteral(
                                   "This folder belongs to the project itself. Export into another one.")))};
    }
    const ExportContent content(project);
    if (!content.problems().isEmpty())
        return content.problems();
    QString message;
    if (!ExportFolder(target).write(content.files(), &message))
        return {Problem::error({}, {}, {}, message)};
    return {};
}

} // namespace Korvex::Meridane::Designer
