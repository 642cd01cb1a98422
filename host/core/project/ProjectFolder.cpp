#include "host/core/project/ProjectFolder.h"

#include "host/core/values/ObjectLinkInfo.h"

#include "host/common/LocalizationHelper.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

ProjectFolder::ProjectFolder(const QString& path)
    : m_path(QDir::cleanPath(QDir(path).absolutePath()))
{}

ProjectFolder::Found ProjectFolder::find(const QString& file, QString* error, QString* actual) const
{
    const QString path = absolute(file);
    const auto refuse = [error](const QString& reason) {
        *error = reason;
        return Found::Refused;
    };
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return Found::Nothing;
    const QString canonical = info.canonicalFilePath();
    if (canonical.isEmpty())
        return refuse(LocalizationHelper::coreString(QStringLiteral("This symbolic link leads nowhere.")));
    const QString inside = QFileInfo(m_path).canonicalFilePath() + QLatin1Char('/');
    if (!canonical.startsWith(inside)) {
        return refuse(LocalizationHelper::coreString(
            QStringLiteral("This symbolic link leads out of the project's folder and is not followed.")));
    }
    if (!QFileInfo(canonical).isFile())
        return refuse(LocalizationHelper::coreString(QStringLiteral("This is not a regular file.")));
    if (actual)
        *actual = canonical;
    return Found::File;
}

ProjectFolder::Found ProjectFolder::read(const QString& file, QByteArray* content, QString* error) const
{
    const Found found = find(file, error);
    if (found != Found::File)
        return found;
    const auto refuse = [error](const QString& reason) {
        *error = reason;
        return Found::Refused;
    };
    QFile device(absolute(file));
    if (device.size() > LargestFile)
        return refuse(LocalizationHelper::coreString(QStringLiteral("The file is too large.")));
    if (!device.open(QIODevice::ReadOnly))
        return refuse(device.errorString());
    const QByteArray bytes = device.readAll();
    if (device.error() != QFileDevice::NoError)
        return refuse(device.errorString());
    *content = bytes;
    return Found::File;
}

QStringList ProjectFolder::fileNames(const QString& subfolder) const
{
    QStringList names = QDir(absolute(subfolder)).entryList(QDir::Files | QDir::Hidden, QDir::NoSort);
    QString ignored;
    names.removeIf([this, &subfolder, &ignored](const QString& name) {
        return find(subfolder + QLatin1Char('/') + name, &ignored) != Found::File;
    });
    names.sort();
    return names;
}

QString ProjectFolder::screenFile(const QString& screenId)
{
    return QLatin1String("screens/") + screenId + QLatin1String(".json");
}

QString ProjectFolder::imageFile(const QString& fileName)
{
    return QLatin1String("images/") + fileName;
}

QString ProjectFolder::fontFile(const QString& fileName)
{
    return QLatin1String("fonts/") + fileName;
}

bool ProjectFolder::isResourceName(const QString& fileName)
{
    return !fileName.isEmpty() && ObjectLinkInfo(fileName).isValid();
}

QByteArray ProjectFolder::fingerprint(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

} // namespace Korvex::Meridane::Designer
