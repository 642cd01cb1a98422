#include "host/core/project/SaveTransaction.h"

#include "host/core/project/FileOperations.h"
#include "host/core/project/FolderLock.h"
#include "host/core/project/SaveRecovery.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QString subfolderOf(const QString& file)
{
    const qsizetype slash = file.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QString() : file.left(slash);
}

/// For the case that a disk takes the new content, does not confirm it, and does not take the old one back either.
void remainUncertain(QString* message)
{
    *message +=
        QLatin1Char(' ')
        + LocalizationHelper::coreString(QStringLiteral(
            "The new content is in place and could not be taken back, but it is not certain that the disk keeps it."));
}

bool refuse(const QString& path, const QString& reason, QString* message)
{
    *message = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
    return false;
}

} // namespace

SaveTransaction::SaveTransaction(const ProjectFolder& folder)
    : m_folder(folder)
{}

void SaveTransaction::write(const QString& file, const QByteArray& content, const QByteArray& expected)
{
    m_writes.append({file, content, expected, {}, false});
}

void SaveTransaction::remove(const QString& file, const QByteArray& fingerprint)
{
    m_removals.append({file, fingerprint});
}

QString SaveTransaction::changedElsewhere()
{
    return LocalizationHelper::coreString(QStringLiteral(
        "The file was changed by another program after it had been opened here. Save into another folder "
        "to keep both versions."));
}

bool SaveTransaction::commit(QString* message)
{
    if (isEmpty())
        return true;
    FileOperations& operations = FileOperations::current();
    QStringList made;
    const auto giveUp = [&made, &operations] {
        for (auto folder = made.crbegin(); folder != made.crend(); ++folder)
            operations.removeFolder(*folder, nullptr);
        return false;
    };
    if (!operations.makePath(m_folder.path(), &made, message))
        return giveUp();

    FolderLock lock;
    if (!lock.acquire(m_folder.path(), message) || !SaveRecovery(m_folder).run(message) || !inspectTargets(message))
        return giveUp();
    const bool done = stage(message) && (needsJournal() ? replaceAll(message) : replaceOne(message));
    if (!done)
        return giveUp();
    for (const QString& folder : made)
        operations.syncFolder(QFileInfo(folder).path(), nullptr);
    return true;
}

bool SaveTransaction::recover(const ProjectFolder& folder, QString* message)
{
    SaveRecovery recovery(folder);
    if (!recovery.isNeeded())
        return true;
    FolderLock lock;
    return lock.acquire(folder.path(), message) && recovery.run(message);
}

/// Reads what stands at the targets, and refuses what could not be replaced before anything has been touched.
bool SaveTransaction::inspectTargets(QString* message)
{
    for (Write& write : m_writes) {
        const QString path = m_folder.absolute(write.file);
        QString reason;
        const ProjectFolder::Found found = m_folder.read(write.file, &write.before, &reason);
        if (found == ProjectFolder::Found::Refused)
            return refuse(path, reason, message);
        write.exists = found == ProjectFolder::Found::File;
        // Asked again now that the folder is locked: another program may have saved since the change was planned.
        if (write.exists == write.expected.isNull() || (write.exists && write.before != write.expected))
            return refuse(path, changedElsewhere(), message);
        if (write.exists && QFileInfo(path).isSymLink()) {
            return refuse(path, LocalizationHelper::coreString(QStringLiteral("This symbolic link is not replaced.")),
                          message);
        }
        if (write.exists && !QFileInfo(path).isWritable()) {
            return refuse(path, LocalizationHelper::coreString(QStringLiteral("The file is write-protected.")),
                          message);
        }
        const QString subfolder = subfolderOf(write.file);
        const QFileInfo parent(m_folder.absolute(subfolder));
        const QString wanted = QFileInfo(m_folder.path()).canonicalFilePath()
                               + (subfolder.isEmpty() ? QString() : QLatin1Char('/') + subfolder);
        if ((parent.exists() || parent.isSymLink()) && parent.canonicalFilePath() != wanted) {
            return refuse(parent.absoluteFilePath(),
                          LocalizationHelper::coreString(
                              QStringLiteral("This symbolic link leads elsewhere; nothing is saved through it.")),
                          message);
        }
        if (parent.exists() && !parent.isDir()) {
            return refuse(parent.absoluteFilePath(),
                          LocalizationHelper::coreString(QStringLiteral("This is not a folder.")), message);
        }
        if (!parent.exists() && !m_journal.folders.contains(subfolder))
            m_journal.folders.append(subfolder);
        m_journal.files.append({write.file, write.exists ? ProjectFolder::fingerprint(write.before) : QByteArray(),
                                ProjectFolder::fingerprint(write.content)});
    }
    m_journal.removals = m_removals;
    return true;
}

bool SaveTransaction::needsJournal() const
{
    return m_writes.size() != 1 || !m_removals.isEmpty() || !m_journal.folders.isEmpty();
}

bool SaveTransaction::stage(QString* message)
{
    if (stageFiles(message))
        return true;
    FileOperations::current().removeTree(SaveRecovery::preparedFolder(m_folder), nullptr);
    return false;
}

bool SaveTransaction::stageFiles(QString* message)
{
    FileOperations& operations = FileOperations::current();
    const QString root = SaveRecovery::preparedFolder(m_folder);
    if (!operations.makeFolder(root, message))
        return false;
    QStringList folders{root};
    const auto folderFor = [&](const QString& path) {
        const QString folder = QFileInfo(path).path();
        return operations.makePath(folder, &folders, message);
    };
    for (const Write& write : std::as_const(m_writes)) {
        const QString path = SaveRecovery::newFile(root, write.file);
        if (!folderFor(path) || !operations.createFile(path, write.content, message)) {
            // The user knows the file that was to be written, not where it is prepared.
            message->replace(QDir::toNativeSeparators(path), QDir::toNativeSeparators(m_folder.absolute(write.file)));
            return false;
        }
        const QString copy = SaveRecovery::oldFile(root, write.file);
        if (write.exists && needsJournal() && (!folderFor(copy) || !operations.createFile(copy, write.before, message)))
            return false;
    }
    if (!needsJournal())
        return true;
    if (!operations.createFile(SaveRecovery::journalFile(root), m_journal.toJson(), message))
        return false;
    for (const QString& folder : std::as_const(folders)) {
        if (!operations.syncFolder(folder, message))
            return false;
    }
    return true;
}

bool SaveTransaction::replaceOne(QString* message)
{
    FileOperations& operations = FileOperations::current();
    const Write& write = m_writes.constFirst();
    const QString root = SaveRecovery::preparedFolder(m_folder);
    const QString target = m_folder.absolute(write.file);
    const auto end = [&operations, &root](bool done) {
        operations.removeTree(root, nullptr);
        return done;
    };
    if (!operations.rename(SaveRecovery::newFile(root, write.file), target, message))
        return end(false);
    if (operations.syncFolder(QFileInfo(target).path(), message))
        return end(true);
    // The new file stands there, but may not survive: what stood there before goes back.
    const QString copy = SaveRecovery::oldFile(root, write.file);
    const bool takenBack = write.exists ? operations.makePath(QFileInfo(copy).path(), nullptr, nullptr)
                                              && operations.createFile(copy, write.before, nullptr)
                                              && operations.rename(copy, target, nullptr)
                                        : operations.removeFile(target, nullptr);
    if (!takenBack)
        remainUncertain(message);
    return end(false);
}

bool SaveTransaction::replaceAll(QString* message)
{
    FileOperations& operations = FileOperations::current();
    const QString prepared = SaveRecovery::preparedFolder(m_folder);
    const QString announced = SaveRecovery::announcedFolder(m_folder);
    const QString completed = SaveRecovery::completedFolder(m_folder);
    if (!operations.rename(prepared, announced, message)) {
        operations.removeTree(prepared, nullptr);
        return false;
    }
    if (operations.syncFolder(m_folder.path(), message) && moveIntoPlace(message)
        && operations.rename(announced, completed, message)) {
        if (operations.syncFolder(m_folder.path(), message)) {
            // From here on the change stands; what remains is done by the next opening or save if it fails now.
            QString ignored;
            if (!SaveRecovery(m_folder).run(&ignored))
                qWarning("%s", qUtf8Printable(ignored));
            return true;
        }
        if (!operations.rename(completed, announced, nullptr)) {
            remainUncertain(message);
            return false;
        }
    }
    QString reason;
    if (!SaveRecovery(m_folder).run(&reason)) {
        *message +=
            QLatin1Char(' ')
            + LocalizationHelper::coreString(
                  QStringLiteral("What had been replaced until then is put back when the project is next opened (%1)."))
                  .arg(reason);
    }
    return false;
}

bool SaveTransaction::moveIntoPlace(QString* message)
{
    FileOperations& operations = FileOperations::current();
    const QString root = SaveRecovery::announcedFolder(m_folder);
    for (const QString& folder : std::as_const(m_journal.folders)) {
        if (!operations.makeFolder(m_folder.absolute(folder), message))
            return false;
    }
    QStringList touched{m_folder.path()};
    for (const Write& write : std::as_const(m_writes)) {
        const QString target = m_folder.absolute(write.file);
        if (!operations.rename(SaveRecovery::newFile(root, write.file), target, message))
            return false;
        const QString folder = QFileInfo(target).path();
        if (!touched.contains(folder))
            touched.append(folder);
    }
    for (const QString& folder : std::as_const(touched)) {
        if (!operations.syncFolder(folder, message))
            return false;
    }
    return true;
}

} // namespace Korvex::Meridane::Designer
