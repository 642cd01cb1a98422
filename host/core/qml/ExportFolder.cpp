#include "host/core/qml/ExportFolder.h"

#include "host/core/project/FileOperations.h"
#include "host/core/project/ProjectFolder.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

const QString ListFile = QStringLiteral(".meridane-export");

QByteArray composeList(const QMap<QString, QByteArray>& files)
{
    QByteArray list;
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        list += ProjectFolder::fingerprint(file.value()) + "  " + file.key().toUtf8() + '\n';
    return list;
}

bool refuse(const QString& path, const QString& reason, QString* message)
{
    *message = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
    return false;
}

bool isSomething(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

ExportFolder::ExportFolder(const QString& path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
    const QString canonical = QFileInfo(m_path).canonicalFilePath();
    if (!canonical.isEmpty())
        m_path = canonical;
}

bool ExportFolder::write(const QMap<QString, QByteArray>& files, QString* message)
{
    if (!mayBeReplaced(message))
        return false;
    FileOperations& operations = FileOperations::current();
    QStringList made;
    const QString staged = freePath(QStringLiteral("new"));
    const bool done = operations.makePath(QFileInfo(m_path).path(), &made, message) && stage(staged, files, message)
                      && swap(staged, message);
    if (done)
        return true;
    operations.removeTree(staged, nullptr);
    for (auto folder = made.crbegin(); folder != made.crend(); ++folder)
        operations.removeFolder(*folder, nullptr);
    return false;
}

bool ExportFolder::mayBeReplaced(QString* message) const
{
    const QFileInfo info(m_path);
    if (!isSomething(m_path))
        return true;
    if (!info.isDir())
        return refuse(m_path, LocalizationHelper::coreString(QStringLiteral("This is not a folder.")), message);
    if (QDir(m_path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        return true;
    QMap<QString, QByteArray> list;
    if (!readList(&list)) {
        return refuse(m_path,
                      LocalizationHelper::coreString(QStringLiteral(
                          "The folder holds files that no export wrote. Choose an empty folder or a new one.")),
                      message);
    }
    return checkContent({}, list, message);
}

bool ExportFolder::checkContent(const QString& subfolder, const QMap<QString, QByteArray>& list, QString* message) const
{
    const QDir folder(m_path + QLatin1Char('/') + subfolder);
    const QFileInfoList entries =
        folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        const QString file = subfolder + entry.fileName();
        if (entry.isDir() && !entry.isSymLink()) {
            if (!checkContent(file + QLatin1Char('/'), list, message))
                return false;
            continue;
        }
        if (file == ListFile && !entry.isSymLink())
            continue;
        QFile content(entry.absoluteFilePath());
        if (!list.contains(file) || entry.isSymLink() || !entry.isFile()) {
            return refuse(entry.absoluteFilePath(),
                          LocalizationHelper::coreString(QStringLiteral(
                              "No export wrote this file. Move it away, or export into another folder.")),
                          message);
        }
        if (!content.open(QIODevice::ReadOnly) || ProjectFolder::fingerprint(content.readAll()) != list.value(file)) {
            return refuse(entry.absoluteFilePath(),
                          LocalizationHelper::coreString(QStringLiteral(
                              "The file was changed after it had been exported. Move it away, or export into another "
                              "folder.")),
                          message);
        }
    }
    return true;
}

/// False where there is no list that an export wrote.
bool ExportFolder::readList(QMap<QString, QByteArray>* list) const
{
    QFile file(m_path + QLatin1Char('/') + ListFile);
    if (QFileInfo(file).isSymLink() || !QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = file.read(ProjectFolder::LargestFile).split('\n');
    constexpr qsizetype DigestLength = 64;
    for (const QByteArray& line : lines) {
        if (line.isEmpty())
            continue;
        if (line.size() < DigestLength + 3 || line.sliced(DigestLength, 2) != "  ")
            return false;
        list->insert(QString::fromUtf8(line.sliced(DigestLength + 2)), line.first(DigestLength));
    }
    return !list->isEmpty();
}

bool ExportFolder::stage(const QString& folder, const QMap<QString, QByteArray>& files, QString* message) const
{
    FileOperations& operations = FileOperations::current();
    if (!operations.makeFolder(folder, message))
        return false;
    if (QFileInfo(m_path).isDir())
        QFile::setPermissions(folder, QFile::permissions(m_path));
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const QString path = folder + QLatin1Char('/') + file.key();
        if (!operations.makePath(QFileInfo(path).path(), nullptr, message)
            || !operations.createFile(path, file.value(), message))
            return false;
    }
    return operations.createFile(folder + QLatin1Char('/') + ListFile, composeList(files), message);
}

bool ExportFolder::swap(const QString& staged, QString* message) const
{
    FileOperations& operations = FileOperations::current();
    const QString parent = QFileInfo(m_path).path();
    // An empty folder is replaced by the renaming itself.
    const bool replaces =
        isSomething(m_path)
        && !QDir(m_path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    QString old = staged;
    if (!replaces) {
        if (!operations.rename(staged, m_path, message))
            return false;
    } else if (!operations.exchange(staged, m_path, nullptr)) {
        // Without such a step on this file system there is a moment in which the old export has another name.
        old = freePath(QStringLiteral("old"));
        if (!operations.rename(m_path, old, message))
            return false;
        if (!operations.rename(staged, m_path, message)) {
            operations.rename(old, m_path, nullptr);
            return false;
        }
    }
    // The new export stands; an old one that cannot be removed is in nobody's way.
    if (replaces)
        operations.removeTree(old, nullptr);
    operations.syncFolder(parent, nullptr);
    return true;
}

QString ExportFolder::freePath(const QString& purpose) const
{
    const QFileInfo info(m_path);
    QString path;
    for (int number = 1; path.isEmpty() || isSomething(path); ++number) {
        path =
            QStringLiteral("%1/.%2.meridane-%3-%4").arg(info.path(), info.fileName(), purpose, QString::number(number));
    }
    return path;
}

} // namespace Korvex::Meridane::Designer
