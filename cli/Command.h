#pragma once

#include "cli/ApplicationObject.h"
#include "cli/ExitStatus.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>

class QCommandLineParser;

namespace Korvex::Meridane::Designer {

class StandardOutput;

/**
 * One command of the program: "meridane <name> …".
 *
 * Life: readArguments() takes the command line over and refuses wrong usage before anything is started; then the
 * application object of applicationKind() is made, and run() does the work.
 */
class Command
{
public:
    virtual ~Command() = default;

    [[nodiscard]] virtual QString name() const = 0;
    /// The arguments as the usage shows them: "PROJECT --output FOLDER".
    [[nodiscard]] virtual QString synopsis() const = 0;
    /// What the command does, a line.
    [[nodiscard]] virtual QString summary() const = 0;
    [[nodiscard]] virtual QList<QCommandLineOption> options() const = 0;
    [[nodiscard]] virtual ApplicationKind applicationKind() const = 0;

    /// Takes over what was parsed; false with a message is wrong usage. No application object exists yet.
    virtual bool readArguments(const QCommandLineParser& parser, QString* message) = 0;
    /// Does the work: results to \a output, messages to standard error.
    virtual ExitStatus run(StandardOutput& output) = 0;

protected:
    Command() = default;
    Q_DISABLE_COPY_MOVE(Command)
};

} // namespace Korvex::Meridane::Designer
