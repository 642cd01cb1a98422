#include "cli/DescriptionTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// The columns of a table: the key in the description and the heading.
struct Column
{
    const char* key;
    const char* heading;
};

constexpr Column propertyColumns[] = {
    {"rank", "rank"},
    {"id", "id"},
    {"label", "label"},
    {"type", "class"},
    {"default", "default"},
    {"flags", "flags"},
    {"editor", "editor"},
    {"parameters", "parameters"},
    {"allowInvalidValue", "invalid"},
    {"validator", "validator"},
    {"qmlCreator", "creator"},
};

constexpr Column runtimeColumns[] = {
    {"name", "name"},
    {"label", "label"},
    {"type", "type"},
    {"flag", "writable"},
};

/// One line of text: what would break the line or the columns is escaped as in JSON.
QString singleLine(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    text.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return text;
}

QString cell(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    case QJsonValue::Double:
        return QString::number(value.toDouble());
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        QStringList pairs;
        for (auto it = object.begin(); it != object.end(); ++it)
            pairs.append(it.key() + QLatin1Char('=') + cell(it.value()));
        return pairs.isEmpty() ? QStringLiteral("-") : pairs.join(QLatin1String(", "));
    }
    case QJsonValue::Array:
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    default:
        return value.toString().isEmpty() ? QStringLiteral("-") : singleLine(value.toString());
    }
}

template <std::size_t count>
QString table(const Column (&columns)[count], const QJsonArray& entries)
{
    QVector<QStringList> rows(1);
    for (const Column& column : columns)
        rows[0].append(QLatin1String(column.heading));
    for (const QJsonValue entry : entries) {
        QStringList row;
        for (const Column& column : columns)
            row.append(cell(entry.toObject().value(QLatin1String(column.key))));
        rows.append(row);
    }
    QVector<qsizetype> widths(count, 0);
    for (const QStringList& row : rows) {
        for (std::size_t i = 0; i < count; ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    QString text;
    for (const QStringList& row : rows) {
        QString line = QStringLiteral("   ");
        for (std::size_t i = 0; i < count; ++i)
            line += QLatin1Char(' ') + row[i].leftJustified(widths[i] + 1);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

} // namespace

QString DescriptionTable::text(const QJsonArray& classes)
{
    QString text;
    for (const QJsonValue entry : classes) {
        const QJsonObject description = entry.toObject();
        const auto field = [&description](const char* key) { return cell(description.value(QLatin1String(key))); };
        if (!text.isEmpty())
            text += QLatin1Char('\n');
        text += QStringLiteral("%1 (%2): QML type %3, canvas item %4, plug-in %5\n")
                    .arg(field("className"), field("displayName"), field("qmlName"), field("graphicsItem"),
                         field("plugin"));
        text += QStringLiteral("  properties\n")
                + table(propertyColumns, description.value(QLatin1String("properties")).toArray());
        const QJsonArray runtimeProperties = description.value(QLatin1String("runtimeProperties")).toArray();
        if (!runtimeProperties.isEmpty())
            text += QStringLiteral("  run-time properties\n") + table(runtimeColumns, runtimeProperties);
    }
    return text;
}

} // namespace Korvex::Meridane::Designer
