#include "host/core/project/ResourceImporter.h"

#include "host/core/project/ImageFormats.h"
#include "host/core/project/ImageNames.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/PictureFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;
using Common::PictureInfo;
using Common::PictureKind;

namespace {

constexpr qint64 LargestImageFile = 64 * 1024 * 1024;

QString text(const char* source)
{
    return LocalizationHelper::coreString(QString::fromUtf8(source));
}

/// Why a picture of these bytes cannot be shown, in the words of what reads it; empty when it can.
QString faultOf(const ImageContent& image)
{
    // It is looked at as it will be: in a file that is called as its content asks for. A copy, because the file that it
    // comes from may change meanwhile.
    const QTemporaryDir folder;
    QFile copy(folder.filePath(QStringLiteral("image.") + ImageFormats::suffixes(image.format).constFirst()));
    if (!copy.open(QIODevice::WriteOnly) || copy.write(image.bytes) != image.bytes.size() || !copy.flush())
        return copy.errorString();
    copy.close();
    QString reason;
    const PictureInfo info = Common::pictureInfo(copy.fileName(), &reason);
    if (info.kind == PictureKind::Unreadable)
        return reason;
    if (info.kind == PictureKind::Drawing)
        return {};
    // The head of a damaged file may be in order. What is decoded here is not large.
    QImageReader reader(copy.fileName());
    reader.setDecideFormatFromContent(true);
    return reader.read().isNull() ? reader.errorString() : QString();
}

/// Offers \a image under a free name made of \a base and \a suffix; empty with a message when it cannot be written.
QString add(Project* project, const ImageContent& image, const QString& base, const QString& suffix, QString* message)
{
    QString name = ImageNames::freeName(*project, base, suffix);
    if (!ProjectFiles::of(project)->writeImage(name, image.bytes, message))
        return {};
    project->setImageResources(QStringList(project->imageResources()) << name);
    project->setModifiedOutsideHistory();
    return name;
}

} // namespace

std::optional<ImageContent> ResourceImporter::readImage(const QString& file, QString* message)
{
    const auto refuse = [&](const char* reason, const QString& detail = {}) {
        *message = detail.isEmpty() ? text(reason).arg(file) : text(reason).arg(file, detail);
        return std::nullopt;
    };
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly))
        return refuse("%1: the file cannot be read. Check its name and whether you may read it.");
    if (source.size() > LargestImageFile)
        return refuse("%1: the file is larger than 64 MiB. Make the image smaller.");
    ImageContent image;
    image.bytes = source.read(LargestImageFile);
    if (source.error() != QFileDevice::NoError)
        return refuse("%1: the file cannot be read (%2).", source.errorString());
    image.format = ImageFormats::formatOf(image.bytes);
    if (image.format == "svgz")
        return refuse("%1: a packed drawing cannot be used. Unpack it into an SVG file.");
    // Some readers take almost anything for theirs; those of rare formats are believed where the name agrees.
    const bool known = ImageFormats::isCommon(image.format)
                       || ImageFormats::suffixes(image.format).contains(QFileInfo(file).suffix().toLower());
    if (image.format.isEmpty() || !known)
        return refuse("%1: this is no image that can be read. Use PNG, JPEG, BMP, GIF, WebP or SVG.");
    const QString fault = faultOf(image);
    if (!fault.isEmpty())
        return refuse("%1: this image cannot be used (%2).", fault);
    return image;
}

QString ResourceImporter::importImage(Project* project, const QString& file, QString* message)
{
    const std::optional<ImageContent> image = readImage(file, message);
    if (!image)
        return {};
    const QFileInfo info(file);
    const QStringList suffixes = ImageFormats::suffixes(image->format);
    const QString suffix = info.suffix().toLower();
    return add(project, *image, info.completeBaseName(), suffixes.contains(suffix) ? suffix : suffixes.constFirst(),
               message);
}

QString ResourceImporter::importPicture(Project* project, const QImage& picture, const QString& base, QString* message)
{
    ImageContent image{{}, QByteArrayLiteral("png")};
    QBuffer buffer(&image.bytes);
    QString fault;
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        fault = text("it is empty or cannot be written as PNG");
    else
        fault = faultOf(image);
    if (!fault.isEmpty()) {
        *message = text("This picture cannot be used (%1).").arg(fault);
        return {};
    }
    const QString known = resourceHolding(project, image.bytes);
    return known.isEmpty() ? add(project, image, base, QStringLiteral("png"), message) : known;
}

QString ResourceImporter::resourceHolding(const Project* project, const QByteArray& bytes)
{
    const ProjectFiles* files = ProjectFiles::find(project);
    const QDir images(project->imagesPath());
    for (const QString& name : project->imageResources()) {
        if (files && QFileInfo(images.filePath(name)).size() == bytes.size() && files->readImage(name) == bytes)
            return name;
    }
    return {};
}

} // namespace Korvex::Meridane::Designer
