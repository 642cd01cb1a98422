#pragma once

#include "cli/Command.h"

namespace Korvex::Meridane::Designer {

/// Writes a project as QML that a display runs.
class ExportCommand : public Command
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString synopsis() const override;
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    [[nodiscard]] ApplicationKind applicationKind() const override;
    bool readArguments(const QCommandLineParser& parser, QString* message) override;
    ExitStatus run(StandardOutput& output) override;

private:
    QString m_project;
    QString m_output;
};

} // namespace Korvex::Meridane::Designer
