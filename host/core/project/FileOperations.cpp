#include "host/core/project/FileOperations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <cstdio>
#endif

namespace Korvex::Meridane::Designer {

namespace {

FileOperations* replacement = nullptr;

std::filesystem::path systemPath(const QString& path)
{
#ifdef Q_OS_UNIX
    return {QFile::encodeName(path).toStdString()};
#else
    return {path.toStdU16String()};
#endif
}

bool report(const QString& path, const QString& reason, QString* error)
{
    if (error)
        *error = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
    return false;
}

bool report(const QString& path, const std::error_code& code, QString* error)
{
    return report(path, QString::fromLocal8Bit(code.message().c_str()), error);
}

#ifdef Q_OS_UNIX
std::error_code lastError()
{
    return {errno, std::generic_category()};
}
#endif

/// Everything written to \a file is on the disk.
bool flushToDisk(QFile& file, QString* reason)
{
    if (!file.flush()) {
        *reason = file.errorString();
        return false;
    }
#ifdef Q_OS_UNIX
    if (::fsync(file.handle()) != 0) {
        *reason = QString::fromLocal8Bit(lastError().message().c_str());
        return false;
    }
#endif
    return true;
}

/// Writes all of \a content; a disk that fills up midway takes a part of it first and says why at the next attempt.
bool writeAll(QFile& file, const QByteArray& content)
{
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 count = file.write(content.constData() + written, content.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

FileOperations::~FileOperations() = default;

FileOperations& FileOperations::current()
{
    static FileOperations real;
    return replacement ? *replacement : real;
}

void FileOperations::setCurrent(FileOperations* operations)
{
    replacement = operations;
}

bool FileOperations::createFile(const QString& path, const QByteArray& content, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return report(path, file.errorString(), error);
    QString reason;
    bool done = writeAll(file, content);
    if (!done)
        reason = file.errorString();
    else
        done = flushToDisk(file, &reason);
    file.close();
    if (done)
        return true;
    file.remove();
    return report(path, reason, error);
}

bool FileOperations::rename(const QString& from, const QString& to, QString* error)
{
    std::error_code code;
    std::filesystem::rename(systemPath(from), systemPath(to), code);
    return !code || report(to, code, error);
}

bool FileOperations::exchange(const QString& one, const QString& other, QString* error)
{
#ifdef Q_OS_LINUX
    return ::renameat2(AT_FDCWD, QFile::encodeName(one).constData(), AT_FDCWD, QFile::encodeName(other).constData(),
                       RENAME_EXCHANGE)
               == 0
           || report(other, lastError(), error);
#else
    Q_UNUSED(one)
    return report(other, std::make_error_code(std::errc::operation_not_supported), error);
#endif
}

bool FileOperations::removeFile(const QString& path, QString* error)
{
    std::error_code code;
    std::filesystem::remove(systemPath(path), code);
    return !code || report(path, code, error);
}

bool FileOperations::makeFolder(const QString& path, QString* error)
{
    std::error_code code;
    const bool made = std::filesystem::create_directory(systemPath(path), code);
    if (!code && !made)
        code = std::make_error_code(std::errc::file_exists);
    return !code || report(path, code, error);
}

bool FileOperations::removeFolder(const QString& path, QString* error)
{
    std::error_code code;
    std::filesystem::remove(systemPath(path), code);
    return !code || report(path, code, error);
}

bool FileOperations::syncFolder(const QString& path, QString* error)
{
#ifdef Q_OS_UNIX
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return report(path, lastError(), error);
    const bool done = ::fsync(folder) == 0;
    const std::error_code code = lastError();
    ::close(folder);
    // Some file systems cannot sync folders and say so; there is nothing to wait for then.
    return done || code == std::errc::invalid_argument || report(path, code, error);
#else
    Q_UNUSED(path)
    Q_UNUSED(error)
    return true;
#endif
}

bool FileOperations::removeTree(const QString& path, QString* error)
{
    const QFileInfo info(path);
    if (info.isSymLink() || (info.exists() && !info.isDir()))
        return removeFile(path, error);
    if (!info.exists())
        return true;
    const QDir folder(path);
    const QStringList entries = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (!removeTree(folder.filePath(entry), error))
            return false;
    }
    return removeFolder(path, error);
}

bool FileOperations::makePath(const QString& path, QStringList* made, QString* error)
{
    const QFileInfo info(path);
    if (info.isDir())
        return true;
    if (info.exists())
        return report(path, std::make_error_code(std::errc::not_a_directory), error);
    const QString parent = QFileInfo(QDir::cleanPath(path)).path();
    if (parent != path && !makePath(parent, made, error))
        return false;
    if (!makeFolder(path, error))
        return false;
    if (made)
        made->append(path);
    return true;
}

} // namespace Korvex::Meridane::Designer
