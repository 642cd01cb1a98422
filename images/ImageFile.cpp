#include "images/ImageFile.h"

#include "images/ImageSizeWidget.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFolder.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ObjectLinkInfo.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PictureCache.h"

namespace Korvex::Meridane::Designer {

QString imageNameOf(const DesignerObject* element)
{
    const auto source = element ? element->getProperty(QStringLiteral("source")) : QSharedPointer<DesignerProperty>();
    bool ok = false;
    const ObjectLinkInfo link = source ? ValueConversion::toLinkInfo(source->valueString(), &ok) : ObjectLinkInfo();
    return ok && link.isValid() ? link.objectId() : QString();
}

QString imageFileOf(const DesignerObject* element)
{
    const QString name = imageNameOf(element);
    const Project* project = Project::parentProject(element);
    if (name.isEmpty() || !project || project->folder().isEmpty())
        return {};
    QString reason;
    const ProjectFolder::Found found = ProjectFolder(project->folder()).find(ProjectFolder::imageFile(name), &reason);
    return found == ProjectFolder::Found::Refused ? QString()
                                                  : QStringLiteral("%1/%2").arg(project->imagesPath(), name);
}

QSize naturalSizeOf(const DesignerObject* element)
{
    const QString file = imageFileOf(element);
    if (file.isEmpty())
        return {};
    const Common::PictureInfo info = Common::PictureCache::content(file)->info;
    const bool fits =
        info.size.width() <= ImageSizeWidget::LargestSide && info.size.height() <= ImageSizeWidget::LargestSide;
    return info.kind != Common::PictureKind::Unreadable && !info.size.isEmpty() && fits ? info.size : QSize();
}

} // namespace Korvex::Meridane::Designer
