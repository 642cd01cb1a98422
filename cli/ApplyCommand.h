#pragma once

#include "cli/Command.h"

class QJsonArray;

namespace Korvex::Meridane::Designer {

class ApplySession;

/// Applies edits from a file to a project, on the same canvas and with the same undo steps as the application.
class ApplyCommand : public Command
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
    /// Writes a line for each edit; false when one was refused or the lines cannot be written.
    [[nodiscard]] bool applyEdits(ApplySession& session, const QJsonArray& edits, StandardOutput& output) const;

    QString m_project;
    QString m_edits;
    bool m_dryRun = false;
    bool m_keepGoing = false;
};

} // namespace Korvex::Meridane::Designer
