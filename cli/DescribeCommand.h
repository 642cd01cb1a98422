#pragma once

#include "cli/Command.h"

#include <QStringList>

namespace Korvex::Meridane::Designer {

/// Tells what the loaded plug-ins offer.
class DescribeCommand : public Command
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
    QStringList m_classNames;
    bool m_json = false;
};

} // namespace Korvex::Meridane::Designer
