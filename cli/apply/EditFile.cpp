#include "cli/apply/EditFile.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/JsonKeyScanner.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>

#include <unistd.h>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// "file:line:column", both counted from 1, of the byte at which the parser gave up after reading \a count bytes.
QString place(const QString& name, const QByteArray& text, qsizetype count)
{
    const QByteArrayView before = QByteArrayView(text).first(std::clamp<qsizetype>(count - 1, 0, text.size()));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    return QStringLiteral("%1:%2:%3").arg(name).arg(before.count('\n') + 1).arg(before.size() - lineStart + 1);
}

constexpr qint64 LargestFile = 64 * 1024 * 1024;

} // namespace

std::optional<QJsonArray> EditFile::read(const QString& file, QString* message)
{
    const bool isStandardInput = file == QLatin1String("-");
    const QString name = isStandardInput ? LocalizationHelper::coreString(QStringLiteral("standard input")) : file;
    QFile source(file);
    const bool opened = isStandardInput ? source.open(STDIN_FILENO, QIODevice::ReadOnly)
                                        : !QFileInfo(file).isDir() && source.open(QIODevice::ReadOnly);
    const QByteArray text = opened ? source.read(LargestFile + 1) : QByteArray();
    if (text.size() > LargestFile) {
        *message =
            LocalizationHelper::coreString(QStringLiteral("%1: is larger than 64 MiB; split the edits")).arg(name);
        return std::nullopt;
    }
    if (!opened || source.error() != QFileDevice::NoError) {
        const QString reason = QFileInfo(file).isDir()
                                   ? LocalizationHelper::coreString(QStringLiteral("it is a folder"))
                                   : source.errorString();
        *message = LocalizationHelper::coreString(QStringLiteral("%1: cannot be read: %2")).arg(name, reason);
        return std::nullopt;
    }

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: is no JSON: %2"))
                       .arg(place(name, text, error.offset), error.errorString());
        return std::nullopt;
    }
    if (const auto duplicate = JsonKeyScanner(text).firstDuplicate()) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1:%2: the key \"%3\" stands already in line %4"))
                       .arg(name)
                       .arg(duplicate->secondLine)
                       .arg(QString::fromUtf8(duplicate->key))
                       .arg(duplicate->firstLine);
        return std::nullopt;
    }
    if (!document.isArray()) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: must hold a JSON array of edits")).arg(name);
        return std::nullopt;
    }
    return document.array();
}

} // namespace Korvex::Meridane::Designer
