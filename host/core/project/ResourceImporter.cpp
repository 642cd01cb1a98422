#include "host/core/project/ResourceImporter.h"

#include "host/core/project/Project.h"
#include "host/core/values/ObjectLinkInfo.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr qint64 LargestImageFile = 64 * 1024 * 1024;

/// The file's own name made plain: only characters that are safe in a path, a link and QML.
QString plainName(const QFileInfo& file)
{
    QString base = file.completeBaseName();
    for (QChar& c : base) {
        if (!c.isLetterOrNumber() && c != QLatin1Char('-') && c != QLatin1Char('_') && c != QLatin1Char('.'))
            c = QLatin1Char('_');
    }
    if (base.isEmpty() || base.startsWith(QLatin1Char('.')))
        base.prepend(QStringLiteral("image"));
    return base.left(80);
}

QString freeName(const Project& project, const QFileInfo& file)
{
    const QString base = plainName(file);
    const QString suffix = file.suffix().toLower();
    const QDir images(project.imagesPath());
    QString name = base + QLatin1Char('.') + suffix;
    for (int number = 2; images.exists(name) || project.imageResources().contains(name); ++number)
        name = QStringLiteral("%1-%2.%3").arg(base, QString::number(number), suffix);
    return name;
}

} // namespace

QString ResourceImporter::importImage(Project* project, const QString& file, QString* message)
{
    const auto refuse = [&](const char* reason, const QString& detail = {}) {
        QString text = LocalizationHelper::coreString(QString::fromLatin1(reason));
        *message = detail.isEmpty() ? text.arg(file) : text.arg(file, detail);
        return QString();
    };
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly))
        return refuse("%1: the file cannot be read. Check its name and whether you may read it.");
    if (source.size() > LargestImageFile)
        return refuse("%1: the file is larger than 64 MiB. Make the image smaller.");
    {
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        if (!reader.canRead() || reader.read().isNull())
            return refuse("%1: this is no image that can be read (%2). Use PNG, JPEG, BMP, GIF, WebP or SVG.",
                          reader.errorString());
    }
    const QString name = freeName(*project, QFileInfo(file));
    if (!ObjectLinkInfo(name).isValid())
        return refuse("%1: the file name cannot be used. Rename the file.");
    QDir().mkpath(project->imagesPath());
    QSaveFile copy(QDir(project->imagesPath()).filePath(name));
    const QByteArray bytes = source.readAll();
    // The flush finds a full disk, which the commit may not.
    if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.flush() || !copy.commit())
        return refuse("%1: the image cannot be copied into the project (%2).", copy.errorString());
    project->setImageResources(QStringList(project->imageResources()) << name);
    return name;
}

} // namespace Korvex::Meridane::Designer
