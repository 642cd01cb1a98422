#include "host/core/qml/QmlExporter.h"

#include "host/core/project/ProjectStore.h"
#include "host/core/qml/ExportContent.h"
#include "host/core/qml/ExportFolder.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

QList<Problem> QmlExporter::exportProject(Project* project, const QString& folder, const WorkProgress& progress)
{
    const QString target = QFileInfo(folder).absoluteFilePath();
    if (ProjectStore::isProjectFolder(project, target)) {
        return {Problem::error(QDir::toNativeSeparators(target), {}, {},
                               Common::LocalizationHelper::coreString(QStringLiteral(
                                   "This folder belongs to the project itself. Export into another one.")))};
    }
    const ExportContent content(project, progress);
    if (content.isEnded())
        return {};
    if (!content.problems().isEmpty())
        return content.problems();
    QString message;
    if (!ExportFolder(target).write(content.files(), &message))
        return {Problem::error({}, {}, {}, message)};
    return {};
}

} // namespace Korvex::Meridane::Designer
