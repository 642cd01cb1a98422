#pragma once

#include "cli/Command.h"

#include <QSizeF>

namespace Korvex::Meridane::Designer {

/// Makes a project with one empty screen.
class NewCommand : public Command
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
    QString m_folder;
    QString m_projectName;
    QSizeF m_size;
};

} // namespace Korvex::Meridane::Designer
