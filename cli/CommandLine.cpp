#include "cli/CommandLine.h"

#include "cli/Command.h"
#include "cli/CommandTable.h"
#include "cli/Messages.h"
#include "cli/StandardOutput.h"
#include "cli/UsageText.h"

#include "host/common/LocalizationHelper.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

ExitStatus refuseUsage(const QString& message, const QString& usage)
{
    Messages::print(message);
    std::fputs(usage.toUtf8().constData(), stderr);
    return ExitStatus::WrongUsage;
}

QCommandLineOption helpOption()
{
    return QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
}

/// The first option that is given more than once: which of its values is meant cannot be known. Empty when none is.
QString repeatedOption(const QCommandLineParser& parser, const QList<QCommandLineOption>& options)
{
    for (const QCommandLineOption& option : options) {
        if (!option.valueName().isEmpty() && parser.values(option).size() > 1)
            return option.names().constLast();
    }
    return {};
}

ExitStatus runCommand(Command& command, const QStringList& arguments, char* program, StandardOutput& output)
{
    QCommandLineParser parser;
    const QList<QCommandLineOption> options = command.options();
    parser.addOption(helpOption());
    parser.addOptions(options);
    const bool parsed = parser.parse(arguments);
    if (parsed && parser.isSet(helpOption())) {
        output.write(UsageText::ofCommand(command).toUtf8());
        return ExitStatus::Done;
    }

    const QString usage = UsageText::ofCommand(command);
    if (!parsed)
        return refuseUsage(parser.errorText(), usage);
    const QString repeated = repeatedOption(parser, options);
    if (!repeated.isEmpty()) {
        return refuseUsage(
            LocalizationHelper::coreString(QStringLiteral("The option --%1 is given more than once.")).arg(repeated),
            usage);
    }
    QString message;
    if (!command.readArguments(parser, &message))
        return refuseUsage(message, usage);

    const std::unique_ptr<QCoreApplication> application = makeApplication(command.applicationKind(), program);
    return command.run(output);
}

ExitStatus runProgram(const QStringList& arguments, char* program, StandardOutput& output)
{
    QCommandLineParser parser;
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    parser.addOption(helpOption());
    parser.addOption(version);
    // What follows the command belongs to it.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    if (!parser.parse(arguments))
        return refuseUsage(parser.errorText(), UsageText::ofProgram());

    QStringList rest = parser.positionalArguments();
    if (parser.isSet(helpOption()) || parser.isSet(version)) {
        if (!rest.isEmpty()) {
            return refuseUsage(
                LocalizationHelper::coreString(QStringLiteral("Unexpected argument \"%1\".")).arg(rest.constFirst()),
                UsageText::ofProgram());
        }
        output.write(parser.isSet(helpOption()) ? UsageText::ofProgram().toUtf8()
                                                : QByteArrayLiteral("meridane " MERIDANE_VERSION "\n"));
        return ExitStatus::Done;
    }
    if (rest.isEmpty()) {
        return refuseUsage(LocalizationHelper::coreString(QStringLiteral("A command is missing.")),
                           UsageText::ofProgram());
    }
    const std::unique_ptr<Command> command = CommandTable::find(rest.constFirst());
    if (!command) {
        return refuseUsage(
            LocalizationHelper::coreString(QStringLiteral("There is no command \"%1\".")).arg(rest.constFirst()),
            UsageText::ofProgram());
    }
    // The command's name takes the place of the program's, which the parser passes over.
    return runCommand(*command, rest, program, output);
}

} // namespace

int CommandLine::run(int argc, char* argv[])
{
    static char unnamed[] = "meridane";
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (arguments.isEmpty())
        arguments.append(QString::fromLatin1(unnamed));

    StandardOutput output;
    ExitStatus status = runProgram(arguments, argc > 0 ? argv[0] : unnamed, output);
    if (output.hasFailed()) {
        Messages::print(LocalizationHelper::coreString(QStringLiteral("standard output: cannot be written: %1"))
                            .arg(output.error()));
        status = ExitStatus::Fault;
    }
    return static_cast<int>(status);
}

} // namespace Korvex::Meridane::Designer
