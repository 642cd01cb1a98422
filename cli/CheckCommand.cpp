#include "cli/CheckCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/Messages.h"
#include "cli/ProjectArgument.h"
#include "cli/StandardOutput.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectChecker.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// \a problems without repetitions: reading and checking may come upon the same fault.
QList<Problem> unique(const QList<Problem>& problems)
{
    QSet<QString> seen;
    QList<Problem> result;
    for (const Problem& problem : problems) {
        const QString line = Messages::line(problem);
        if (!seen.contains(line)) {
            seen.insert(line);
            result.append(problem);
        }
    }
    return result;
}

QByteArray toJson(const QList<Problem>& problems)
{
    QJsonArray array;
    for (const Problem& problem : problems) {
        array.append(QJsonObject{{QStringLiteral("severity"), Messages::severityName(problem)},
                                 {QStringLiteral("file"), problem.file},
                                 {QStringLiteral("object"), problem.object},
                                 {QStringLiteral("property"), problem.property},
                                 {QStringLiteral("message"), problem.message}});
    }
    return QJsonDocument(array).toJson();
}

QByteArray toText(const QList<Problem>& problems)
{
    QString text;
    for (const Problem& problem : problems)
        text += Messages::line(problem) + QLatin1Char('\n');
    return text.toUtf8();
}

} // namespace

QString CheckCommand::name() const
{
    return QStringLiteral("check");
}

QString CheckCommand::synopsis() const
{
    return QStringLiteral("PROJECT [--format text|json]");
}

QString CheckCommand::summary() const
{
    return QStringLiteral("Finds what is wrong with a project; the exit status is 1 when anything is.");
}

QList<QCommandLineOption> CheckCommand::options() const
{
    return {{QStringLiteral("format"), QStringLiteral("\"text\" (a line for each problem, the default) or \"json\"."),
             QStringLiteral("FORMAT")}};
}

ApplicationKind CheckCommand::applicationKind() const
{
    return ApplicationKind::Gui;
}

bool CheckCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    QString format = QStringLiteral("text");
    if (!reader.positional({QStringLiteral("PROJECT")}, {&m_project})
        || !reader.optional(QStringLiteral("format"), &format))
        return false;
    m_json = format == QLatin1String("json");
    if (!m_json && format != QLatin1String("text")) {
        *message =
            LocalizationHelper::coreString(QStringLiteral("The value \"%1\" of --format is neither text nor json."))
                .arg(format);
        return false;
    }
    return true;
}

ExitStatus CheckCommand::run(StandardOutput& output)
{
    QList<Problem> problems;
    const std::unique_ptr<Project> project = ProjectArgument::open(m_project, &problems);
    if (project)
        problems.append(ProjectChecker::check(project.get()));
    problems = unique(problems);
    output.write(m_json ? toJson(problems) : toText(problems));
    return project && problems.isEmpty() ? ExitStatus::Done : ExitStatus::Fault;
}

} // namespace Korvex::Meridane::Designer
