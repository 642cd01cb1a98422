#pragma once

#include "host/core/project/ProjectFolder.h"

#include <QMap>
#include <QSet>

#include <optional>

namespace Korvex::Meridane::Designer {

/**
 * The images or the fonts folder of an open project as the program writes it.
 *
 * Pictures and fonts take their place when they are imported or replaced, not when the project is saved: everything shows
 * them from the folder. So the folder remembers what it held at the last save, and is put back to that when the project is
 * left without saving.
 */
class ResourceFolder
{
public:
    /// \a name: "images" or "fonts".
    explicit ResourceFolder(const QString& name);

    /// What the file \a fileName of it in \a folder holds; null when it is not there or must not be read.
    [[nodiscard]] QByteArray read(const ProjectFolder& folder, const QString& fileName) const;
    /// Puts \a content into the file \a fileName of the folder, which is made where it is missing. False with a message, which names the file, when that is not possible or would go through a symbolic link; what was there is then still
    /// there.
    bool write(const ProjectFolder& folder, const QString& fileName, const QByteArray& content, QString* message);

    /// The files as they are now are those of the saved project.
    void setSaved();
    /// Whether there is anything to take back.
    [[nodiscard]] bool isChanged() const { return !m_written.isEmpty(); }
    /// Puts back what the files held at the last save and removes those that there were not, but for those in \a kept
    /// (nothing: all of them) and those that somebody else has written since.
    void takeBack(const ProjectFolder& folder, const std::optional<QSet<QString>>& kept);

private:
    struct Written
    {
        std::optional<QByteArray> before; ///< at the last save; none when there was no such file
        QByteArray fingerprint; ///< of what was written last
    };

    [[nodiscard]] bool prepare(const ProjectFolder& folder, const QString& fileName, QString* message);

    [[nodiscard]] QString pathOf(const ProjectFolder& folder) const;
    [[nodiscard]] QString pathOf(const ProjectFolder& folder, const QString& fileName) const;

    QString m_name;
    QMap<QString, Written> m_written; // by file name
    bool m_madeFolder = false;
};

} // namespace Korvex::Meridane::Designer
