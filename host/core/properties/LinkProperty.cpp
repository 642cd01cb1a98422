#include "host/core/properties/LinkProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/IdRegistry.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFolder.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/TextHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

LinkProperty::LinkProperty(DesignerObject* parent, const QString& id, const QString& name, const ObjectLinkInfo& value)
    : TypedProperty(parent, id, name, value)
{
    setFlag(Exported, false);
}

LinkProperty::~LinkProperty() = default;

QString LinkProperty::className() const
{
    return QStringLiteral("LinkProperty");
}

QStringList LinkProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("LinkProperty");
}

QString LinkProperty::convertToQml(int indent) const
{
    if (value().objectId().isEmpty())
        return {};
    return QStringLiteral("%1%2: \"%3\"")
        .arg(DesignerObject::getTabs(indent), id(), Common::TextHelper::toQmlValueString(value().objectId()));
}

bool LinkProperty::validateObjectValue(QString& message) const
{
    message.clear();
    const QString& target = value().objectId();
    const Project* project = Project::parentProject(parentObject());
    // Outside of a project there is nothing that could be linked or missing yet.
    if (!isConverted() || target.isEmpty() || !project)
        return true;
    const QStringList& filter = value().filterType();
    if (filter.contains(QLatin1String("ImageResource")) && project->imageResources().contains(target)) {
        // It need not exist; but what stands there must be a file of the project.
        const QString file = ProjectFolder::imageFile(target);
        if (ProjectFolder(project->folder()).find(file, &message) != ProjectFolder::Found::Refused)
            return true;
        message = file + QLatin1String(": ") + message;
        return false;
    }
    const DesignerObject* object = linkedObject();
    if (object && (filter.isEmpty() || filter.contains(object->idInfo().filterType())))
        return true;
    message =
        object ? LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be linked here.")).arg(target)
               : LocalizationHelper::coreString(QStringLiteral("\"%1\" does not exist in this project.")).arg(target);
    return false;
}

DesignerObject* LinkProperty::linkedObject() const
{
    if (!isConverted() || value().objectId().isEmpty())
        return nullptr;
    IdRegistry* scope = parentObject()->idScope();
    if (value().scopeType() == QLatin1String("Project")) {
        Project* project = Project::parentProject(parentObject());
        scope = project ? project->ownIdScope() : nullptr;
    }
    return scope ? scope->find(value().objectId()) : nullptr;
}

ObjectLinkInfo LinkProperty::parse(const QString& valueString, bool* ok) const
{
    ObjectLinkInfo link = ValueConversion::toLinkInfo(valueString, ok);
    link.setScopeType(value().scopeType());
    link.setFilterType(value().filterType());
    return link;
}

QString LinkProperty::write(const ObjectLinkInfo& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
