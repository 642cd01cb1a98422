#include "host/core/project/ImageEdits.h"

#include "host/core/commands/ChangeImage.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ImageFormats.h"
#include "host/core/project/ImageNames.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/ResourceImporter.h"

#include "host/common/LocalizationHelper.h"

#include <QFileInfo>

namespace Korvex::Meridane::Designer {

namespace {

constexpr qsizetype MostPlaces = 5; // that a message names

QString text(const char* source)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(source));
}

ImageEdits::Plan refused(const QString& message)
{
    ImageEdits::Plan plan;
    plan.message = message;
    return plan;
}

/// Reads every screen; empty, or why \a image cannot be edited.
QString beginEdit(const Project* project, const QString& image)
{
    for (const Screen* screen : project->screens())
        screen->readContent();
    return project->imageResources().contains(image) ? QString()
                                                     : text("There is no image \"%1\" in this project.").arg(image);
}

/// Lets all links to \a image name \a name, as a part of \a command.
void addLinkChanges(const Project* project, const QString& image, const QString& name,
                    const QList<DesignerObject*>& selection, UndoCommand* command)
{
    const QSet<DesignerObject*> selected(selection.cbegin(), selection.cend());
    const QList<ImageUse> uses = ImageReferences::uses(project, image);
    for (const ImageUse& use : uses) {
        if (use.link)
            new ChangeProperty(use.link, name, selected.contains(use.object), command);
    }
}

/// The places of \a uses, without repetition and the later ones of many left out.
QString places(const QList<ImageUse>& uses)
{
    QStringList names;
    for (const ImageUse& use : uses) {
        const QString object = use.object ? ObjectTree::name(use.object) : QString();
        const QString name = object.isEmpty() ? ProjectFolder::projectFile() : object;
        if (!names.contains(name))
            names.append(name);
    }
    const qsizetype more = names.size() - MostPlaces;
    if (more <= 0)
        return names.join(QLatin1String(", "));
    return Common::LocalizationHelper::coreString(QStringLiteral("%1 and %n more"), QStringLiteral("%1 and %n more"),
                                                  int(more))
        .arg(names.first(MostPlaces).join(QLatin1String(", ")));
}

} // namespace

ImageEdits::Plan ImageEdits::rename(Project* project, const QString& image, const QString& name,
                                    const QList<DesignerObject*>& selection)
{
    const QString missing = beginEdit(project, image);
    if (!missing.isEmpty())
        return refused(missing);
    const QString wanted = ImageNames::completed(name, image);
    const QString fault = ImageNames::fault(*project, image, wanted);
    if (!fault.isEmpty())
        return refused(fault);
    Plan plan;
    plan.image = wanted;
    if (wanted == image)
        return plan;
    plan.command = ChangeImage::rename(project, image, wanted);
    addLinkChanges(project, image, wanted, selection, plan.command.get());
    return plan;
}

ImageEdits::Plan ImageEdits::replace(Project* project, const QString& image, const QString& file,
                                     const QList<DesignerObject*>& selection)
{
    const QString missing = beginEdit(project, image);
    if (!missing.isEmpty())
        return refused(missing);
    Plan plan;
    const std::optional<ImageContent> content = ResourceImporter::readImage(file, &plan.message);
    if (!content)
        return plan;
    const QFileInfo present(image);
    const QString suffix = ImageFormats::suffixes(content->format).constFirst();
    plan.image = ImageFormats::nameSameFormat(present.suffix(), suffix)
                     ? image
                     : ImageNames::freeName(*project, present.completeBaseName(), suffix);
    plan.command = ChangeImage::replace(project, image, plan.image, content->bytes);
    if (plan.image != image)
        addLinkChanges(project, image, plan.image, selection, plan.command.get());
    return plan;
}

ImageEdits::Plan ImageEdits::remove(Project* project, const QString& image)
{
    const QString missing = beginEdit(project, image);
    if (!missing.isEmpty())
        return refused(missing);
    const QList<ImageUse> uses = ImageReferences::uses(project, image);
    if (!uses.isEmpty()) {
        return refused(text("\"%1\" cannot be removed while it is used: by %2. Choose another image there first.")
                           .arg(image, places(uses)));
    }
    for (const Screen* screen : project->screens()) {
        if (!screen->contentError().isEmpty()) {
            return refused(
                text("\"%1\" cannot be removed while the screen \"%2\" cannot be read: it may use the image.")
                    .arg(image, screen->getIdName()));
        }
    }
    Plan plan;
    plan.command = ChangeImage::remove(project, image);
    return plan;
}

QSet<QString> ImageEdits::droppedBySave(const Project* project)
{
    const ProjectFiles* files = ProjectFiles::find(project);
    if (!files)
        return {};
    const QStringList& offered = project->imageResources();
    QSet<QString> dropped(offered.cbegin(), offered.cend());
    dropped.intersect(files->ownImages() - files->reservedImages());
    dropped -= ImageReferences::texts(project->unknownKeys());
    for (const Screen* screen : project->screens())
        dropped -= ImageReferences::mentioned(screen);
    return dropped;
}

} // namespace Korvex::Meridane::Designer
