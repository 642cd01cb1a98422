#pragma once

#include "host/core/CoreExport.h"
#include "host/core/project/ProjectFolder.h"
#include "host/core/project/SaveJournal.h"

#include <QByteArray>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * Writes and removes several files of a project folder as one change: a failure, the end of the program or of the
 * machine at any moment leaves all of the old files or all of the new ones.
 *
 * Everything is prepared in the folder `.meridane-save.new`: the new files, copies of the old ones, and a journal.
 * Renaming it to `.meridane-save` announces the change; the new files are then moved into place one by one, and renaming
 * it to `.meridane-save.done` completes the change. Each step is on the disk before the next one starts. What recover()
 * finds after an interruption tells what to do: `.new` is thrown away, `.meridane-save` is taken back file by file, and
 * after `.done` the files that are to go are removed. One single file needs no journal: it is moved into place at once.
 */
class MERIDANE_CORE_EXPORT SaveTransaction
{
public:
    explicit SaveTransaction(const ProjectFolder& folder);

    /// \a file (relative) is to hold \a content in place of \a expected, which is null where there is no file yet. A file
    /// that another program has written meanwhile refuses the change.
    void write(const QString& file, const QByteArray& content, const QByteArray& expected);
    /// \a file is to go, if it then still holds what \a fingerprint was made of.
    void remove(const QString& file, const QByteArray& fingerprint);
    /// What the user is told where another program has written a file.
    [[nodiscard]] static QString changedElsewhere();
    [[nodiscard]] bool isEmpty() const { return m_writes.isEmpty() && m_removals.isEmpty(); }

    /// Makes the change. False with a message that names file and reason; everything is then as it was before, folders
    /// included.
    [[nodiscard]] bool commit(QString* message);

    /// Completes or takes back a change of \a folder that was interrupted; does nothing where there is none. False with
    /// a message when that is not possible.
    [[nodiscard]] static bool recover(const ProjectFolder& folder, QString* message);

private:
    struct Write
    {
        QString file;
        QByteArray content;
        QByteArray expected; // what stood there when the change was planned; null for no file
        QByteArray before; // what stands there now
        bool exists = false;
    };

    [[nodiscard]] bool inspectTargets(QString* message);
    [[nodiscard]] bool stage(QString* message);
    [[nodiscard]] bool stageFiles(QString* message);
    [[nodiscard]] bool replaceOne(QString* message);
    [[nodiscard]] bool replaceAll(QString* message);
    [[nodiscard]] bool moveIntoPlace(QString* message);
    [[nodiscard]] bool needsJournal() const;

    ProjectFolder m_folder;
    QList<Write> m_writes;
    QList<SaveJournal::Removal> m_removals;
    SaveJournal m_journal;
};

} // namespace Korvex::Meridane::Designer
