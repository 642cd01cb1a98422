#include "cli/UsageText.h"

#include "cli/Command.h"
#include "cli/CommandTable.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// Two columns, the first as wide as its widest entry.
QString columns(const QList<QPair<QString, QString>>& rows)
{
    qsizetype width = 0;
    for (const auto& row : rows)
        width = std::max(width, row.first.size());
    QString text;
    for (const auto& row : rows)
        text += QStringLiteral("  %1  %2\n").arg(row.first, -static_cast<int>(width)).arg(row.second);
    return text;
}

QString optionColumn(const QCommandLineOption& option)
{
    QStringList names;
    const QStringList optionNames = option.names();
    for (const QString& name : optionNames)
        names.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
    const QString joined = names.join(QLatin1String(", "));
    return option.valueName().isEmpty() ? joined : joined + QLatin1Char(' ') + option.valueName();
}

} // namespace

QString UsageText::ofProgram()
{
    QList<QPair<QString, QString>> rows;
    const std::vector<std::unique_ptr<Command>> commands = CommandTable::all();
    for (const std::unique_ptr<Command>& command : commands)
        rows.append({command->name(), command->summary()});
    return QStringLiteral("Usage: meridane COMMAND [ARGUMENTS]\n"
                          "       meridane --help | --version\n"
                          "\n"
                          "Designs the screens of small panel displays, without a window.\n"
                          "\n"
                          "Commands:\n")
           + columns(rows) + QStringLiteral("\nmeridane COMMAND --help tells more about a command.\n");
}

QString UsageText::ofCommand(const Command& command)
{
    QList<QPair<QString, QString>> rows;
    const QList<QCommandLineOption> options = command.options();
    for (const QCommandLineOption& option : options)
        rows.append({optionColumn(option), option.description()});
    rows.append({QStringLiteral("-h, --help"), QStringLiteral("Shows this text.")});
    return QStringLiteral("Usage: meridane %1 %2\n\n%3\n\nOptions:\n")
               .arg(command.name(), command.synopsis(), command.summary())
           + columns(rows);
}

} // namespace Korvex::Meridane::Designer
