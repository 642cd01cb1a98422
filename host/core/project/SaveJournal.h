#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Korvex::Meridane::Designer {

/// What a save that changes several files does, written down before it starts so that it can be taken back.
struct SaveJournal
{
    struct File
    {
        QString file; ///< relative to the project's folder
        QByteArray before; ///< fingerprint of what stood there; empty: nothing
        QByteArray after; ///< fingerprint of what is put there
    };
    struct Removal
    {
        QString file;
        QByteArray fingerprint; ///< the file is removed only while it still holds this
    };

    QList<File> files;
    QList<Removal> removals; ///< carried out when all files are in place
    QStringList folders; ///< made for the files

    [[nodiscard]] QByteArray toJson() const;
    /// Nothing for a text that no save wrote, or that names anything but files of a project.
    [[nodiscard]] static std::optional<SaveJournal> fromJson(const QByteArray& json);
};

} // namespace Korvex::Meridane::Designer
