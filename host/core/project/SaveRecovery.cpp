#include "host/core/project/SaveRecovery.h"

#include "host/core/project/FileOperations.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

bool stands(const QString& folder)
{
    const QFileInfo info(folder);
    return info.exists() || info.isSymLink();
}

} // namespace

SaveRecovery::SaveRecovery(const ProjectFolder& folder)
    : m_folder(folder)
{}

QString SaveRecovery::preparedFolder(const ProjectFolder& folder)
{
    return folder.absolute(QStringLiteral(".meridane-save.new"));
}

QString SaveRecovery::announcedFolder(const ProjectFolder& folder)
{
    return folder.absolute(QStringLiteral(".meridane-save"));
}

QString SaveRecovery::completedFolder(const ProjectFolder& folder)
{
    return folder.absolute(QStringLiteral(".meridane-save.done"));
}

QString SaveRecovery::newFile(const QString& root, const QString& file)
{
    return root + QLatin1String("/new/") + file;
}

QString SaveRecovery::oldFile(const QString& root, const QString& file)
{
    return root + QLatin1String("/old/") + file;
}

QString SaveRecovery::journalFile(const QString& root)
{
    return root + QLatin1String("/journal.json");
}

bool SaveRecovery::isNeeded() const
{
    return stands(preparedFolder(m_folder)) || stands(announcedFolder(m_folder)) || stands(completedFolder(m_folder));
}

bool SaveRecovery::run(QString* message)
{
    if (stands(completedFolder(m_folder)) && !complete(message))
        return false;
    if (stands(announcedFolder(m_folder)) && !takeBack(message))
        return false;
    return FileOperations::current().removeTree(preparedFolder(m_folder), message);
}

bool SaveRecovery::takeBack(QString* message)
{
    FileOperations& operations = FileOperations::current();
    const QString root = announcedFolder(m_folder);
    SaveJournal journal;
    if (!readJournal(root, &journal, message))
        return false;
    QStringList touched{m_folder.path()};
    for (const SaveJournal::File& file : std::as_const(journal.files)) {
        if (!putBack(file, root, message))
            return false;
        const QString folder = QFileInfo(m_folder.absolute(file.file)).path();
        if (!touched.contains(folder) && QFileInfo(folder).isDir())
            touched.append(folder);
    }
    for (const QString& folder : std::as_const(touched)) {
        if (!operations.syncFolder(folder, message))
            return false;
    }
    for (const QString& folder : std::as_const(journal.folders)) {
        if (QDir(m_folder.absolute(folder))
                .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
            && QFileInfo(m_folder.absolute(folder)).isDir()
            && !operations.removeFolder(m_folder.absolute(folder), message))
            return false;
    }
    // The name changes first: a folder that is only half removed must not be taken for a change to take back.
    return operations.removeTree(preparedFolder(m_folder), message)
           && operations.rename(root, preparedFolder(m_folder), message)
           && operations.removeTree(preparedFolder(m_folder), message);
}

bool SaveRecovery::putBack(const SaveJournal::File& file, const QString& root, QString* message)
{
    FileOperations& operations = FileOperations::current();
    const QString target = m_folder.absolute(file.file);
    const bool replaced = holds(file.file, file.after);
    if (file.before.isEmpty())
        return !replaced || operations.removeFile(target, message);
    const QString copy = oldFile(root, file.file);
    if ((!replaced && stands(target)) || !QFileInfo(copy).isFile() || QFileInfo(copy).isSymLink())
        return true;
    return operations.rename(copy, target, message);
}

bool SaveRecovery::complete(QString* message)
{
    FileOperations& operations = FileOperations::current();
    const QString root = completedFolder(m_folder);
    SaveJournal journal;
    // Without its journal it has been removed in part already: there is nothing left to do but the rest of that.
    if (stands(journalFile(root))) {
        if (!readJournal(root, &journal, message))
            return false;
        // Where somebody has brought back an older state since, its files are wanted.
        const bool unchanged = std::all_of(journal.files.cbegin(), journal.files.cend(),
                                           [this](const auto& file) { return holds(file.file, file.after); });
        for (const SaveJournal::Removal& removal : std::as_const(journal.removals)) {
            if (unchanged && holds(removal.file, removal.fingerprint)
                && !operations.removeFile(m_folder.absolute(removal.file), message))
                return false;
        }
    }
    return operations.removeTree(root, message);
}

bool SaveRecovery::readJournal(const QString& root, SaveJournal* journal, QString* message) const
{
    const QString path = journalFile(root);
    QByteArray json;
    QString error;
    const QString file = path.mid(m_folder.path().size() + 1);
    if (m_folder.read(file, &json, &error) == ProjectFolder::Found::File) {
        if (const auto read = SaveJournal::fromJson(json)) {
            *journal = *read;
            return true;
        }
    }
    *message = Common::LocalizationHelper::coreString(
                   QStringLiteral("%1: A save was interrupted, and what it left cannot be understood. Look at the "
                                  "files in this folder (\"old\" holds the project as it was), put them where they "
                                  "belong and remove the folder."))
                   .arg(QDir::toNativeSeparators(root));
    return false;
}

bool SaveRecovery::holds(const QString& file, const QByteArray& fingerprint) const
{
    QByteArray content;
    QString ignored;
    return m_folder.read(file, &content, &ignored) == ProjectFolder::Found::File
           && !QFileInfo(m_folder.absolute(file)).isSymLink() && ProjectFolder::fingerprint(content) == fingerprint;
}

} // namespace Korvex::Meridane::Designer
