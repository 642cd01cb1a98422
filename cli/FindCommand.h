#pragma once

#include "cli/Command.h"

namespace Korvex::Meridane::Designer {

/// Finds a text in a project, or what refers to something.
class FindCommand : public Command
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
    QString m_text;
    bool m_references = false;
    bool m_json = false;
};

} // namespace Korvex::Meridane::Designer
