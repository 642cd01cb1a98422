#include "images/ImageFile.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ObjectLinkInfo.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PictureFile.h"

namespace Korvex::Meridane::Designer {

QString imageFileOf(const DesignerObject* element)
{
    const auto source = element ? element->getProperty(QStringLiteral("source")) : QSharedPointer<DesignerProperty>();
    const Project* project = Project::parentProject(element);
    if (!source || !project)
        return {};
    bool ok = false;
    const ObjectLinkInfo link = ValueConversion::toLinkInfo(source->valueString(), &ok);
    if (!ok || !link.isValid() || link.objectId().isEmpty())
        return {};
    return QStringLiteral("%1/%2").arg(project->imagesPath(), link.objectId());
}

QSize naturalSizeOf(const DesignerObject* element)
{
    const QString file = imageFileOf(element);
    return file.isEmpty() ? QSize() : Common::pictureInfo(file).size;
}

} // namespace Korvex::Meridane::Designer
