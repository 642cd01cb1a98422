#include "host/core/project/FontReferences.h"

#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/properties/FontProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QJsonObject>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr qsizetype MostPlaces = 5; // that a message names

bool uses(const DesignerObject* object, const QStringList& families)
{
    const auto& properties = object->properties();
    return std::any_of(properties.cbegin(), properties.cend(), [&families](const auto& property) {
        const auto* font = dynamic_cast<const FontProperty*>(property.data());
        return font && font->isConverted() && families.contains(font->value().family(), Qt::CaseInsensitive);
    });
}

/// Elements that no plug-in serves may use any font that is mentioned in them.
bool mentions(const DesignerObject* object, const QStringList& families)
{
    const auto* unknown = qobject_cast<const UnknownElement*>(object);
    if (!unknown)
        return false;
    const QSet<QString> texts = ImageReferences::texts(unknown->entry());
    return std::any_of(texts.cbegin(), texts.cend(), [&families](const QString& text) {
        return std::any_of(families.cbegin(), families.cend(),
                           [&text](const QString& family) { return text.contains(family, Qt::CaseInsensitive); });
    });
}

QString places(const QList<DesignerObject*>& objects)
{
    QStringList names;
    for (const DesignerObject* object : objects)
        names.append(ObjectTree::name(object));
    const qsizetype more = names.size() - MostPlaces;
    if (more <= 0)
        return names.join(QLatin1String(", "));
    return LocalizationHelper::coreString(QStringLiteral("%1 and %n more"), QStringLiteral("%1 and %n more"), int(more))
        .arg(names.first(MostPlaces).join(QLatin1String(", ")));
}

} // namespace

QStringList FontReferences::families(Project* project, const QString& font)
{
    return ProjectFonts::familiesIn(ProjectFiles::of(project)->readFont(font));
}

QList<DesignerObject*> FontReferences::users(Project* project, const QString& font)
{
    QList<DesignerObject*> objects;
    const QStringList wanted = families(project, font);
    if (wanted.isEmpty())
        return objects;
    ObjectTree::visitRead(project, [&](const DesignerObject* visited) {
        if (uses(visited, wanted) || mentions(visited, wanted))
            objects.append(const_cast<DesignerObject*>(visited));
    });
    return objects;
}

QString FontReferences::removalRefusal(Project* project, const QString& font)
{
    if (!project->fontResources().contains(font)) {
        return LocalizationHelper::coreString(QStringLiteral("There is no font file \"%1\" in this project."))
            .arg(font);
    }
    for (const Screen* screen : project->screens()) {
        screen->readContent();
        if (!screen->contentError().isEmpty()) {
            return LocalizationHelper::coreString(
                       QStringLiteral(
                           "\"%1\" cannot be removed while the screen \"%2\" cannot be read: it may use the font."))
                .arg(font, screen->getIdName());
        }
    }
    const QStringList own = families(project, font);
    const bool spare = std::all_of(own.cbegin(), own.cend(), [&](const QString& family) {
        const QStringList files = ProjectFiles::of(project)->fonts().filesOf(family);
        return std::any_of(files.cbegin(), files.cend(), [&font](const QString& file) { return file != font; });
    });
    const QList<DesignerObject*> objects = users(project, font);
    if (objects.isEmpty() || spare)
        return {};
    return LocalizationHelper::coreString(
               QStringLiteral("\"%1\" cannot be removed while it is used: by %2. Choose another font there first."))
        .arg(font, places(objects));
}

} // namespace Korvex::Meridane::Designer
