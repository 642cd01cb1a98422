#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class QImage;

namespace Korvex::Meridane::Designer {

/**
 * Pictures that are written into a folder together: all are written beside their names first, and take them only when
 * every one is whole on the disk. Without commit() nothing is left behind, not even a folder made for it.
 */
class PictureFiles
{
public:
    /// \a folder is made when it does not exist.
    explicit PictureFiles(const QString& folder);
    ~PictureFiles();
    Q_DISABLE_COPY_MOVE(PictureFiles)

    /// Writes \a picture as PNG for the name \a fileName; false with a message that names the file.
    [[nodiscard]] bool add(const QString& fileName, const QImage& picture, QString* message);
    /// The same for the \a content of a file.
    [[nodiscard]] bool add(const QString& fileName, const QByteArray& content, QString* message);
    /// The file of that name goes when the others come. None is fine.
    void remove(const QString& fileName);
    /// The pictures take their names; false with a message that names the file.
    [[nodiscard]] bool commit(QString* message);

private:
    QString m_folder; // absolute
    QStringList m_madeFolders; // outermost first
    QStringList m_removals;
    QList<QPair<QString, QString>> m_files; // the path under which the file stands now, and the one that it is for
    bool m_committed = false;
};

} // namespace Korvex::Meridane::Designer
