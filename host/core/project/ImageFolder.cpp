#include "host/core/project/ImageFolder.h"

#include "host/core/project/FileOperations.h"

#include "host/common/LocalizationHelper.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QString imagesFolder(const ProjectFolder& folder)
{
    return folder.absolute(QStringLiteral("images"));
}

/// Replaces \a path, or makes it, in one step.
bool replaceFile(const QString& path, const QByteArray& content, QString* error)
{
    FileOperations& files = FileOperations::current();
    const QString prepared = QFileInfo(path).path() + QLatin1String("/.meridane-image.new");
    if (!files.removeTree(prepared, error) || !files.createFile(prepared, content, error))
        return false;
    // Whoever remembers a picture by the time of its file must see that it is another one now, however coarse the clock
    // of the file system.
    const QDateTime before = QFileInfo(path).lastModified();
    QFile file(prepared);
    if (before.isValid() && QFileInfo(prepared).lastModified() <= before && file.open(QIODevice::Append)) {
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
        file.close();
    }
    if (files.rename(prepared, path, error)) {
        files.syncFolder(QFileInfo(path).path(), nullptr);
        return true;
    }
    files.removeFile(prepared, nullptr);
    return false;
}

} // namespace

QByteArray ImageFolder::read(const ProjectFolder& folder, const QString& fileName)
{
    QByteArray content;
    QString ignored;
    const bool found =
        ProjectFolder::isResourceName(fileName)
        && folder.read(ProjectFolder::imageFile(fileName), &content, &ignored) == ProjectFolder::Found::File;
    // A null array stands for no file.
    return found && content.isNull() ? QByteArray("") : content;
}

bool ImageFolder::write(const ProjectFolder& folder, const QString& fileName, const QByteArray& content,
                        QString* message)
{
    if (!prepare(folder, fileName, message))
        return false;
    const QByteArray before = read(folder, fileName);
    if (!replaceFile(folder.absolute(ProjectFolder::imageFile(fileName)), content, message))
        return false;
    if (!m_written.contains(fileName))
        m_written.insert(fileName, {before.isNull() ? std::nullopt : std::optional(before), {}});
    m_written[fileName].fingerprint = ProjectFolder::fingerprint(content);
    return true;
}

bool ImageFolder::prepare(const ProjectFolder& folder, const QString& fileName, QString* message)
{
    const QString path = folder.absolute(ProjectFolder::imageFile(fileName));
    const auto refuse = [&](const QString& reason) {
        *message = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
        return false;
    };
    const QString images = imagesFolder(folder);
    if (!QFileInfo::exists(images) && !QFileInfo(images).isSymLink()) {
        QStringList made;
        if (!FileOperations::current().makePath(images, &made, message))
            return false;
        m_madeFolder = true;
    }
    if (QFileInfo(images).isSymLink() || QFileInfo(path).isSymLink()) {
        return refuse(LocalizationHelper::coreString(
            QStringLiteral("This is a symbolic link, and nothing is written through it.")));
    }
    if (QFileInfo(path).isDir())
        return refuse(LocalizationHelper::coreString(QStringLiteral("This is not a regular file.")));
    return true;
}

void ImageFolder::setSaved()
{
    m_written.clear();
    m_madeFolder = false;
}

void ImageFolder::takeBack(const ProjectFolder& folder, const std::optional<QSet<QString>>& kept)
{
    for (auto entry = m_written.cbegin(); entry != m_written.cend(); ++entry) {
        const QString path = folder.absolute(ProjectFolder::imageFile(entry.key()));
        const QByteArray present = read(folder, entry.key());
        if (present.isNull() || ProjectFolder::fingerprint(present) != entry->fingerprint)
            continue;
        if (entry->before)
            replaceFile(path, *entry->before, nullptr);
        else if (kept && !kept->contains(entry.key()))
            FileOperations::current().removeFile(path, nullptr);
    }
    if (m_madeFolder && QDir(imagesFolder(folder)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        FileOperations::current().removeFolder(imagesFolder(folder), nullptr);
    setSaved();
}

} // namespace Korvex::Meridane::Designer
