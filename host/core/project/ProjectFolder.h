#pragma once

#include "host/core/CoreExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/**
 * The files of one project folder, by paths relative to it ("screens/main.json").
 *
 * Nothing outside of the folder is ever read: a symbolic link that leads out of it is refused, and so is what is no
 * regular file. The folder itself may be a link.
 */
class MERIDANE_CORE_EXPORT ProjectFolder
{
public:
    explicit ProjectFolder(const QString& path);

    enum class Found
    {
        File,
        Nothing,
        Refused
    };

    /// Absolute.
    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] QString absolute(const QString& file) const { return m_path + QLatin1Char('/') + file; }

    /// What stands at \a file; \a error says why it was refused, without naming the file. For a file, \a actual (when given) is its path with
    /// all links followed.
    [[nodiscard]] Found find(const QString& file, QString* error, QString* actual = nullptr) const;
    /// The content of \a file; \a content is left alone unless it is File.
    [[nodiscard]] Found read(const QString& file, QByteArray* content, QString* error) const;
    /// The names of the regular files in \a subfolder, sorted; those that cannot be read safely are left out.
    [[nodiscard]] QStringList fileNames(const QString& subfolder) const;

    [[nodiscard]] static QString projectFile() { return QStringLiteral("project.json"); }
    [[nodiscard]] static QString screenFile(const QString& screenId);
    [[nodiscard]] static QString imageFile(const QString& fileName);
    [[nodiscard]] static QString fontFile(const QString& fileName);
    /// Whether \a fileName is a plain name that may stand in images/ and fonts/.
    [[nodiscard]] static bool isResourceName(const QString& fileName);
    /// The SHA-256 of \a content as hexadecimal digits.
    [[nodiscard]] static QByteArray fingerprint(const QByteArray& content);

    /// Larger files are refused: no screen of a panel comes near it.
    static constexpr qint64 LargestFile = 256 * 1024 * 1024;

private:
    QString m_path;
};

} // namespace Korvex::Meridane::Designer
