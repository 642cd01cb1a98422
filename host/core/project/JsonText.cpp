#include "host/core/project/JsonText.h"

#include "host/core/project/JsonKeyScanner.h"

#include "host/common/LocalizationHelper.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

int lineAt(const QByteArray& text, qsizetype offset)
{
    return 1 + int(std::count(text.begin(), text.begin() + std::clamp<qsizetype>(offset, 0, text.size()), '\n'));
}

/// The line of an unresolved merge conflict, or 0.
int conflictLine(const QByteArray& text)
{
    for (qsizetype at = text.indexOf("<<<<<<< "); at >= 0; at = text.indexOf("<<<<<<< ", at + 1)) {
        if (at == 0 || text.at(at - 1) == '\n')
            return lineAt(text, at);
    }
    return 0;
}

} // namespace

std::optional<QJsonObject> JsonText::parse(const QByteArray& text, QString* error)
{
    if (text.trimmed().isEmpty()) {
        *error = LocalizationHelper::coreString(QStringLiteral("The file is empty."));
        return {};
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(text, &fault);
    if (fault.error != QJsonParseError::NoError) {
        if (const int line = conflictLine(text)) {
            *error = LocalizationHelper::coreString(QStringLiteral("Line %1: A merge conflict has not been resolved."))
                         .arg(line);
        } else {
            *error = LocalizationHelper::coreString(QStringLiteral("Line %1: This is not JSON: %2."))
                         .arg(QString::number(lineAt(text, fault.offset)), fault.errorString());
        }
        return {};
    }
    if (!document.isObject()) {
        *error = LocalizationHelper::coreString(QStringLiteral("The file must hold a JSON object, not %1."))
                     .arg(kindOf(document.array()));
        return {};
    }
    if (const auto duplicate = JsonKeyScanner(text).firstDuplicate()) {
        *error = LocalizationHelper::coreString(
                     QStringLiteral("Line %1: The key \"%2\" stands here for the second time (first in line %3); one "
                                    "of the two values would be lost. Remove one of them."))
                     .arg(QString::number(duplicate->secondLine), QString::fromUtf8(duplicate->key),
                          QString::number(duplicate->firstLine));
        return {};
    }
    return document.object();
}

QByteArray JsonText::write(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

QString JsonText::kindOf(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return LocalizationHelper::coreString(QStringLiteral("null"));
    case QJsonValue::Bool:
        return LocalizationHelper::coreString(QStringLiteral("a boolean"));
    case QJsonValue::Double:
        return LocalizationHelper::coreString(QStringLiteral("a number"));
    case QJsonValue::String:
        return LocalizationHelper::coreString(QStringLiteral("a text"));
    case QJsonValue::Array:
        return LocalizationHelper::coreString(QStringLiteral("a list"));
    case QJsonValue::Object:
        return LocalizationHelper::coreString(QStringLiteral("an object"));
    case QJsonValue::Undefined:
        break;
    }
    return LocalizationHelper::coreString(QStringLiteral("nothing"));
}

QString JsonText::compact(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.sliced(1, list.size() - 2));
}

} // namespace Korvex::Meridane::Designer
