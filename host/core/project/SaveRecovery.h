#pragma once

#include "host/core/project/ProjectFolder.h"
#include "host/core/project/SaveJournal.h"

namespace Korvex::Meridane::Designer {

/// Brings a project folder in order after a save that was interrupted; see SaveTransaction for the three folders that a
/// save works in. What somebody has changed since the interruption is left as it is.
class SaveRecovery
{
public:
    explicit SaveRecovery(const ProjectFolder& folder);

    /// Whether there is anything left of a save.
    [[nodiscard]] bool isNeeded() const;
    /// Completes or takes back. The caller holds the folder's lock. Runs again from any point at which it was
    /// interrupted itself.
    [[nodiscard]] bool run(QString* message);

    /// Holds what a save prepares.
    [[nodiscard]] static QString preparedFolder(const ProjectFolder& folder);
    /// Its name while files are being replaced.
    [[nodiscard]] static QString announcedFolder(const ProjectFolder& folder);
    /// Its name when all are.
    [[nodiscard]] static QString completedFolder(const ProjectFolder& folder);
    /// In each of these folders: the new content of a file, the old one, and the journal.
    [[nodiscard]] static QString newFile(const QString& root, const QString& file);
    [[nodiscard]] static QString oldFile(const QString& root, const QString& file);
    [[nodiscard]] static QString journalFile(const QString& root);

private:
    [[nodiscard]] bool takeBack(QString* message);
    [[nodiscard]] bool putBack(const SaveJournal::File& file, const QString& root, QString* message);
    [[nodiscard]] bool complete(QString* message);
    [[nodiscard]] bool readJournal(const QString& root, SaveJournal* journal, QString* message) const;
    [[nodiscard]] bool holds(const QString& file, const QByteArray& fingerprint) const;

    ProjectFolder m_folder;
};

} // namespace Korvex::Meridane::Designer
