#pragma once

#include "host/core/CoreExport.h"

#include <QByteArray>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * The changes to the file system that saves and exports consist of, each of them checked.
 *
 * This class makes them for real. Tests put a subclass in its place that fails, or ends the program, at any of them.
 * An operation that fails gives back false and a sentence that names the path and the system's reason. Paths are
 * absolute.
 */
class MERIDANE_CORE_EXPORT FileOperations
{
public:
    FileOperations() = default;
    virtual ~FileOperations();
    Q_DISABLE_COPY_MOVE(FileOperations)

    /// The operations in use.
    [[nodiscard]] static FileOperations& current();
    /// Puts \a operations, which stay the caller's, into use; null goes back to the real ones.
    static void setCurrent(FileOperations* operations);

    /// Makes the file \a path, which must not exist yet, with \a content. True: every byte has reached the disk. On
    /// failure no file is left.
    virtual bool createFile(const QString& path, const QByteArray& content, QString* error);
    /// Moves a file or folder within one file system in one step. A file replaces what stood at \a to.
    virtual bool rename(const QString& from, const QString& to, QString* error);
    /// Lets two folders change places in one step, where the system can do that.
    virtual bool exchange(const QString& one, const QString& other, QString* error);
    /// Removes a file or a symbolic link, never what a link leads to.
    virtual bool removeFile(const QString& path, QString* error);
    /// Makes one folder; its parent must exist, it itself must not.
    virtual bool makeFolder(const QString& path, QString* error);
    /// Removes a folder, which must be empty.
    virtual bool removeFolder(const QString& path, QString* error);
    /// Returns when what was made, renamed and removed in the folder \a path has reached the disk.
    virtual bool syncFolder(const QString& path, QString* error);

    /// Removes \a path with all that is in it; links are removed, not followed. What does not exist is no failure.
    bool removeTree(const QString& path, QString* error);
    /// Makes \a path and the missing folders above it; those that were made are appended to \a made, outermost first.
    bool makePath(const QString& path, QStringList* made, QString* error);
};

} // namespace Korvex::Meridane::Designer
