#include "cli/ExportCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/Messages.h"
#include "cli/ProjectArgument.h"

#include "host/core/project/Project.h"
#include "host/core/qml/QmlExporter.h"

#include <QFileInfo>

namespace Korvex::Meridane::Designer {

QString ExportCommand::name() const
{
    return QStringLiteral("export");
}

QString ExportCommand::synopsis() const
{
    return QStringLiteral("PROJECT --output FOLDER");
}

QString ExportCommand::summary() const
{
    return QStringLiteral("Writes the QML of every screen, with the images and fonts used.");
}

QList<QCommandLineOption> ExportCommand::options() const
{
    return {{QStringLiteral("output"), QStringLiteral("The folder to write, new or with an earlier export."),
             QStringLiteral("FOLDER")}};
}

ApplicationKind ExportCommand::applicationKind() const
{
    return ApplicationKind::Gui;
}

bool ExportCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    return reader.positional({QStringLiteral("PROJECT")}, {&m_project})
           && reader.required(QStringLiteral("output"), &m_output);
}

ExitStatus ExportCommand::run(StandardOutput&)
{
    const std::unique_ptr<Project> project = ProjectArgument::open(m_project);
    if (!project)
        return ExitStatus::Fault;
    const QList<Problem> problems = QmlExporter::exportProject(project.get(), QFileInfo(m_output).absoluteFilePath());
    Messages::print(problems);
    return Messages::hasError(problems) ? ExitStatus::Fault : ExitStatus::Done;
}

} // namespace Korvex::Meridane::Designer
