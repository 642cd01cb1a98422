#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * The folder that an export is written to.
 *
 * An export leaves a list of its files with their fingerprints in the file `.meridane-export` (in the form that
 * `sha256sum --check` reads). A folder is overwritten only when everything in it is on that list and unchanged. The new
 * content is written into a folder beside the target and then takes its place, so that the target holds the old export
 * or the new one.
 */
class ExportFolder
{
public:
    explicit ExportFolder(const QString& path);

    /// Replaces the folder's content. False with a message that names the file; the target is then as it was.
    [[nodiscard]] bool write(const QMap<QString, QByteArray>& files, QString* message);

private:
    [[nodiscard]] bool mayBeReplaced(QString* message) const;
    [[nodiscard]] bool checkContent(const QString& subfolder, const QMap<QString, QByteArray>& list,
                                    QString* message) const;
    [[nodiscard]] bool readList(QMap<QString, QByteArray>* list) const;
    [[nodiscard]] bool stage(const QString& folder, const QMap<QString, QByteArray>& files, QString* message) const;
    [[nodiscard]] bool swap(const QString& staged, QString* message) const;
    [[nodiscard]] QString freePath(const QString& purpose) const;

    QString m_path; // absolute, links followed
};

} // namespace Korvex::Meridane::Designer
