#include "cli/PreviewCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/ForegroundProgram.h"
#include "cli/Messages.h"
#include "cli/ProcessSetup.h"
#include "cli/ProjectArgument.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/Project.h"
#include "host/core/qml/QmlExporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

QString PreviewCommand::name() const
{
    return QStringLiteral("preview");
}

QString PreviewCommand::synopsis() const
{
    return QStringLiteral("PROJECT [--screen ID] [--grab FILE.png]");
}

QString PreviewCommand::summary() const
{
    return QStringLiteral("Runs the project as a display does, in a window.");
}

QList<QCommandLineOption> PreviewCommand::options() const
{
    return {{QStringLiteral("screen"), QStringLiteral("Starts with this screen instead of the first one."),
             QStringLiteral("ID")},
            {QStringLiteral("grab"), QStringLiteral("Saves one frame of the running display and ends."),
             QStringLiteral("FILE.png")}};
}

ApplicationKind PreviewCommand::applicationKind() const
{
    return ApplicationKind::Widgets;
}

bool PreviewCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    return reader.positional({QStringLiteral("PROJECT")}, {&m_project})
           && reader.optional(QStringLiteral("screen"), &m_screen) && reader.optional(QStringLiteral("grab"), &m_grab);
}

ExitStatus PreviewCommand::run(StandardOutput&)
{
    if (m_grab.isEmpty() && !ProcessSetup::hasDisplay()) {
        Messages::print(LocalizationHelper::coreString(
            QStringLiteral("There is no display to show a window on; --grab FILE.png saves a picture instead.")));
        return ExitStatus::Fault;
    }
    const std::unique_ptr<Project> project = ProjectArgument::open(m_project);
    if (!project)
        return ExitStatus::Fault;
    if (!m_screen.isEmpty() && !project->screen(m_screen)) {
        ProjectArgument::printMissingScreen(m_project, m_screen);
        return ExitStatus::Fault;
    }

    if (!m_grab.isEmpty()) {
        // A link is followed: what counts is the file that would be written.
        const QFileInfo target(m_grab);
        const QString file = target.exists() ? target.canonicalFilePath() : target.absoluteFilePath();
        if (!ProjectArgument::isOutside(*project, QFileInfo(file).path()))
            return ExitStatus::Fault;
    }

    // From here on there is something to tidy up, whatever ends the preview.
    ForegroundProgram display;
    const QTemporaryDir temporary(QDir::temp().filePath(QStringLiteral("meridane-preview-XXXXXX")));
    if (!temporary.isValid()) {
        Messages::print(LocalizationHelper::coreString(QStringLiteral("%1: no temporary folder can be made: %2"))
                            .arg(QDir::tempPath(), temporary.errorString()));
        return ExitStatus::Fault;
    }
    const QString exported = temporary.filePath(QStringLiteral("export"));
    const QList<Problem> problems = QmlExporter::exportProject(project.get(), exported);
    Messages::print(problems);
    if (Messages::hasError(problems))
        return ExitStatus::Fault;

    QStringList arguments{exported, QStringLiteral("--title"), project->name()};
    if (!m_screen.isEmpty())
        arguments << QStringLiteral("--screen") << m_screen;
    if (!m_grab.isEmpty())
        arguments << QStringLiteral("--grab") << QFileInfo(m_grab).absoluteFilePath();
    const QString viewer = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("meridane-viewer"));
    QString message;
    if (!display.run(viewer, arguments, !ProcessSetup::hasDisplay(), &message)) {
        Messages::print(message);
        return ExitStatus::Fault;
    }
    return ExitStatus::Done;
}

} // namespace Korvex::Meridane::Designer
