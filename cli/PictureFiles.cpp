#include "cli/PictureFiles.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/FileOperations.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

PictureFiles::PictureFiles(const QString& folder)
    : m_folder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()))
{}

PictureFiles::~PictureFiles()
{
    FileOperations& operations = FileOperations::current();
    QString unheard;
    for (const auto& file : std::as_const(m_files))
        operations.removeFile(file.first, &unheard);
    if (m_committed)
        return;
    while (!m_madeFolders.isEmpty())
        operations.removeFolder(m_madeFolders.takeLast(), &unheard);
}

bool PictureFiles::add(const QString& fileName, const QImage& picture, QString* message)
{
    const QDir folder(m_folder);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG")) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: there is not enough memory for this picture"))
                       .arg(folder.filePath(fileName));
        return false;
    }
    return add(fileName, bytes, message);
}

bool PictureFiles::add(const QString& fileName, const QByteArray& content, QString* message)
{
    FileOperations& operations = FileOperations::current();
    if (!operations.makePath(m_folder, &m_madeFolders, message))
        return false;
    const QDir folder(m_folder);
    const QString beside =
        folder.filePath(QStringLiteral(".%1.%2").arg(fileName).arg(QCoreApplication::applicationPid()));
    if (!operations.createFile(beside, content, message))
        return false;
    m_files.append({beside, folder.filePath(fileName)});
    return true;
}

void PictureFiles::remove(const QString& fileName)
{
    m_removals.append(QDir(m_folder).filePath(fileName));
}

bool PictureFiles::commit(QString* message)
{
    FileOperations& operations = FileOperations::current();
    while (!m_files.isEmpty()) {
        if (!operations.rename(m_files.constFirst().first, m_files.constFirst().second, message))
            return false;
        m_files.removeFirst();
        m_committed = true;
    }
    for (const QString& file : std::as_const(m_removals)) {
        if (QFileInfo(file).isFile() && !operations.removeFile(file, message))
            return false;
    }
    return operations.syncFolder(m_folder, message);
}

} // namespace Korvex::Meridane::Designer
