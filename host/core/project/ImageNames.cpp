#include "host/core/project/ImageNames.h"

#include "host/core/project/ImageFormats.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/ProjectFolder.h"
#include "host/core/project/ResourceNames.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int LongestName = 240; // bytes; file systems allow 255

QString text(const char* source)
{
    return LocalizationHelper::coreString(QString::fromUtf8(source));
}

/// Whether nothing stands in the way of writing \a name: no file of it, or one that the program has put there and that
/// only the history may still ask for.
bool isFreeForRenaming(const Project& project, const QString& name)
{
    const ProjectFiles* files = ProjectFiles::find(&project);
    return !QFileInfo(QDir(project.imagesPath()).filePath(name)).exists()
           || (files && files->ownImages().contains(name));
}

} // namespace

QString ImageNames::freeName(const Project& project, const QString& base, const QString& suffix)
{
    return ResourceNames::freeName(project.imagesPath(), project.imageResources(), base, suffix,
                                   QStringLiteral("image"));
}

QString ImageNames::completed(const QString& name, const QString& image)
{
    const QString ending = QFileInfo(image).suffix();
    if (name.isEmpty() || name.back().isSpace() || ending.isEmpty()
        || ImageFormats::isPictureSuffix(QFileInfo(name).suffix())
        || ImageFormats::nameSameFormat(QFileInfo(name).suffix(), ending))
        return name;
    return name.endsWith(QLatin1Char('.')) ? name + ending : name + QLatin1Char('.') + ending;
}

QString ImageNames::fault(const Project& project, const QString& image, const QString& name)
{
    if (name == image)
        return {};
    if (name.isEmpty())
        return text("An image needs a name.");
    if (!ProjectFolder::isResourceName(name) || name.contains(QLatin1String(".."))
        || name.startsWith(QLatin1Char('.'))) {
        return text("\"%1\" cannot be the name of an image. It must be a plain file name: no slashes, colons, control "
                    "characters or \"..\", no dot in front, no blanks at the ends.")
            .arg(name);
    }
    if (name.toUtf8().size() > LongestName)
        return text("The name \"%1…\" is too long for a file.").arg(name.left(20));
    const QString ending = QFileInfo(image).suffix();
    if (!ImageFormats::nameSameFormat(QFileInfo(name).suffix(), ending)) {
        return text("The name must go on ending in \".%1\": the ending tells what kind of picture the file holds.")
            .arg(ending);
    }
    for (const QString& other : project.imageResources()) {
        if (other == name)
            return text("There is already an image \"%1\".").arg(name);
        if (other != image && ResourceNames::identity(other) == ResourceNames::identity(name)) {
            return text("\"%1\" and the image \"%2\" differ only in capitals, which not every computer tells apart.")
                .arg(name, other);
        }
    }
    const QStringList present = ResourceNames::filesIn(project.imagesPath());
    for (const QString& other : present) {
        if (other != image && ResourceNames::identity(other) == ResourceNames::identity(name)
            && !isFreeForRenaming(project, other))
            return text("There is already a file \"%1\" in the project's images folder. Choose another name.")
                .arg(other);
    }
    return {};
}

} // namespace Korvex::Meridane::Designer
