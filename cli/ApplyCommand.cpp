#include "cli/ApplyCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/Messages.h"
#include "cli/ProjectArgument.h"
#include "cli/StandardOutput.h"
#include "cli/apply/ApplyOperations.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditFile.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"

#include <QCommandLineParser>
#include <QJsonDocument>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

QString ApplyCommand::name() const
{
    return QStringLiteral("apply");
}

QString ApplyCommand::synopsis() const
{
    return QStringLiteral("PROJECT EDITS [--dry-run] [--keep-going]");
}

QString ApplyCommand::summary() const
{
    return QStringLiteral("Applies edits from a JSON file (\"-\" for standard input) as the application would.");
}

QList<QCommandLineOption> ApplyCommand::options() const
{
    return {{QStringLiteral("dry-run"), QStringLiteral("Saves nothing.")},
            {QStringLiteral("keep-going"),
             QStringLiteral("Goes on after an edit that is refused and saves what was accepted.")}};
}

ApplicationKind ApplyCommand::applicationKind() const
{
    return ApplicationKind::Widgets;
}

bool ApplyCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    m_dryRun = parser.isSet(QStringLiteral("dry-run"));
    m_keepGoing = parser.isSet(QStringLiteral("keep-going"));
    ArgumentReader reader(parser, message);
    return reader.positional({QStringLiteral("PROJECT"), QStringLiteral("EDITS")}, {&m_project, &m_edits});
}

bool ApplyCommand::applyEdits(ApplySession& session, const QJsonArray& edits, StandardOutput& output) const
{
    bool allAccepted = true;
    int number = 0;
    for (const QJsonValue edit : edits) {
        ++number;
        QString op;
        const ApplyResult result = ApplyOperations::apply(session, edit, &op);
        QJsonObject line = result.extra;
        line.insert(QStringLiteral("op"), op);
        line.insert(QStringLiteral("ok"), result.ok);
        if (!result.ok)
            line.insert(QStringLiteral("message"), result.message);
        if (!output.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n'))
            return false;
        if (result.ok)
            continue;
        allAccepted = false;
        Messages::print(LocalizationHelper::coreString(QStringLiteral("%1: edit %2 (%3) is refused: %4"))
                            .arg(m_edits, QString::number(number), op, result.message));
        if (!m_keepGoing)
            return false;
    }
    return allAccepted;
}

ExitStatus ApplyCommand::run(StandardOutput& output)
{
    QString message;
    const std::optional<QJsonArray> edits = EditFile::read(m_edits, &message);
    if (!edits) {
        Messages::print(message);
        return ExitStatus::Fault;
    }
    std::unique_ptr<Project> project = ProjectArgument::open(m_project);
    if (!project)
        return ExitStatus::Fault;

    ApplySession session(std::move(project));
    const bool allAccepted = applyEdits(session, *edits, output);
    const bool save =
        !m_dryRun && !output.hasFailed() && (allAccepted || m_keepGoing) && session.project().isModified();
    bool saved = false;
    if (save) {
        saved = ProjectStore::save(&session.project(), session.project().folder(), &message);
        if (!saved)
            Messages::print(message);
    }
    return allAccepted && saved == save ? ExitStatus::Done : ExitStatus::Fault;
}

} // namespace Korvex::Meridane::Designer
