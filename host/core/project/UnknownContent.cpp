#include "host/core/project/UnknownContent.h"

#include "host/core/objects/UnknownElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFolder.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

void findKeys(const DesignerObject* object, const QString& file, QList<Problem>& problems)
{
    const QJsonObject& unknown = object->unknownKeys();
    const QString name = ObjectTree::name(object);
    for (auto key = unknown.constBegin(); key != unknown.constEnd(); ++key) {
        if (key.key() == QLatin1String("properties") || key.key() == QLatin1String("editor")) {
            const QJsonObject values = key->toObject();
            for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
                problems.append(Problem::warning(
                    file, name, value.key(),
                    LocalizationHelper::coreString(
                        QStringLiteral(
                            "\"%1\" is not known below \"%2\" of the class \"%3\". It is kept, but has no effect."))
                        .arg(value.key(), key.key(), object->className())));
            }
        } else {
            problems.append(
                Problem::warning(file, name, {},
                                 LocalizationHelper::coreString(
                                     QStringLiteral("The key \"%1\" is not known. It is kept, but has no effect."))
                                     .arg(key.key())));
        }
    }
}

} // namespace

QList<Problem> UnknownContent::find(const Project* project)
{
    QList<Problem> problems;
    findKeys(project, ProjectFolder::projectFile(), problems);
    return problems;
}

QList<Problem> UnknownContent::find(const Screen* screen)
{
    QList<Problem> problems;
    const QString file = ProjectFolder::screenFile(screen->getIdName());
    ObjectTree::visitRead(screen, [&file, &problems](const DesignerObject* object) {
        if (const auto* unknown = qobject_cast<const UnknownElement*>(object))
            problems.append(Problem::error(file, ObjectTree::name(object), {}, explain(unknown)));
        findKeys(object, file, problems);
    });
    return problems;
}

QString UnknownContent::explain(const UnknownElement* element)
{
    const QString className = element->wantedClassName();
    if (className.isEmpty() || DesignerFactory::instance()->hasDataObject(className)) {
        return LocalizationHelper::coreString(QStringLiteral(
            "The element cannot be made from what the file says. It is kept, but neither shown nor exported: correct it "
            "in the file, or remove it."));
    }
    return LocalizationHelper::coreString(
               QStringLiteral("No loaded plug-in serves the class \"%1\". The element is kept, but neither shown nor "
                              "exported: install the plug-in or remove the element."))
        .arg(className);
}

} // namespace Korvex::Meridane::Designer
