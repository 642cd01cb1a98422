#pragma once

#include "cli/Command.h"

namespace Korvex::Meridane::Designer {

/// Finds what is wrong with a project.
class CheckCommand : public Command
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
    bool m_json = false;
};

} // namespace Korvex::Meridane::Designer
