#include "host/core/project/ResourceFolder.h"

#include "host/core/project/FileOperations.h"

#include "host/common/LocalizationHelper.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// Replaces \a path, or makes it, in one step.
bool replaceFile(const QString& path, const QByteArray& content, QString* error)
{
    FileOperations& files = FileOperations::current();
    const QString prepared = QFileInfo(path).path() + QLatin1String("/.meridane-import.new");
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

ResourceFolder::ResourceFolder(const QString& name)
    : m_name(name)
{}

QString ResourceFolder::pathOf(const ProjectFolder& folder) const
{
    return folder.absolute(m_name);
}

QString ResourceFolder::pathOf(const ProjectFolder& folder, const QString& fileName) const
{
    return pathOf(folder) + QLatin1Char('/') + fileName;
}

QByteArray ResourceFolder::read(const ProjectFolder& folder, const QString& fileName) const
{
    QByteArray content;
    QString ignored;
    const bool found =
        ProjectFolder::isResourceName(fileName)
        && folder.read(m_name + QLatin1Char('/') + fileName, &content, &ignored) == ProjectFolder::Found::File;
    // A null array stands for no file.
    return found && content.isNull() ? QByteArray("") : content;
}

bool ResourceFolder::write(const ProjectFolder& folder, const QString& fileName, const QByteArray& content,
                           QString* message)
{
    if (!prepare(folder, fileName, message))
        return false;
    const QByteArray before = read(folder, fileName);
    if (!replaceFile(pathOf(folder, fileName), content, message))
        return false;
    if (!m_written.contains(fileName))
        m_written.insert(fileName, {before.isNull() ? std::nullopt : std::optional(before), {}});
    m_written[fileName].fingerprint = ProjectFolder::fingerprint(content);
    return true;
}

bool ResourceFolder::prepare(const ProjectFolder& folder, const QString& fileName, QString* message)
{
    const QString path = pathOf(folder, fileName);
    const auto refuse = [&](const QString& reason) {
        *message = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
        return false;
    };
    const QString resources = pathOf(folder);
    if (!QFileInfo::exists(resources) && !QFileInfo(resources).isSymLink()) {
        QStringList made;
        if (!FileOperations::current().makePath(resources, &made, message))
            return false;
        m_madeFolder = true;
    }
    if (QFileInfo(resources).isSymLink() || QFileInfo(path).isSymLink()) {
        return refuse(LocalizationHelper::coreString(
            QStringLiteral("This is a symbolic link, and nothing is written through it.")));
    }
    if (QFileInfo(path).isDir())
        return refuse(LocalizationHelper::coreString(QStringLiteral("This is not a regular file.")));
    return true;
}

void ResourceFolder::setSaved()
{
    m_written.clear();
    m_madeFolder = false;
}

void ResourceFolder::takeBack(const ProjectFolder& folder, const std::optional<QSet<QString>>& kept)
{
    for (auto entry = m_written.cbegin(); entry != m_written.cend(); ++entry) {
        const QString path = pathOf(folder, entry.key());
        const QByteArray present = read(folder, entry.key());
        if (present.isNull() || ProjectFolder::fingerprint(present) != entry->fingerprint)
            continue;
        if (entry->before)
            replaceFile(path, *entry->before, nullptr);
        else if (kept && !kept->contains(entry.key()))
            FileOperations::current().removeFile(path, nullptr);
    }
    if (m_madeFolder && QDir(pathOf(folder)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        FileOperations::current().removeFolder(pathOf(folder), nullptr);
    setSaved();
}

} // namespace Korvex::Meridane::Designer
