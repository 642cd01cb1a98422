#include "cli/FindCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/ProjectArgument.h"
#include "cli/StandardOutput.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectSearch.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QByteArray toJson(const QList<SearchMatch>& matches)
{
    QJsonArray array;
    for (const SearchMatch& match : matches) {
        array.append(QJsonObject{{QStringLiteral("object"), match.object},
                                 {QStringLiteral("property"), match.property},
                                 {QStringLiteral("value"), match.value}});
    }
    return QJsonDocument(array).toJson();
}

/// A line for each place. Values of several lines are put on one.
QByteArray toText(const QList<SearchMatch>& matches)
{
    QString text;
    for (const SearchMatch& match : matches) {
        QString place = match.object;
        if (!match.property.isEmpty())
            place += (place.isEmpty() ? QString() : QStringLiteral(".")) + match.property;
        text += place + (match.property.isEmpty() ? QString() : QStringLiteral(": ") + match.value.simplified())
                + QLatin1Char('\n');
    }
    return text.toUtf8();
}

} // namespace

QString FindCommand::name() const
{
    return QStringLiteral("find");
}

QString FindCommand::synopsis() const
{
    return QStringLiteral("PROJECT TEXT [--references] [--format text|json]");
}

QString FindCommand::summary() const
{
    return QStringLiteral(
        "Finds a text in a project, or what refers to something; the exit status is 1 when nothing is "
        "found.");
}

QList<QCommandLineOption> FindCommand::options() const
{
    return {{QStringLiteral("references"),
             QStringLiteral("TEXT names an object, an image, a font or a colour; what refers to it is found.")},
            {QStringLiteral("format"), QStringLiteral("\"text\" (a line for each place, the default) or \"json\"."),
             QStringLiteral("FORMAT")}};
}

ApplicationKind FindCommand::applicationKind() const
{
    return ApplicationKind::Gui;
}

bool FindCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    QString format = QStringLiteral("text");
    if (!reader.positional({QStringLiteral("PROJECT"), QStringLiteral("TEXT")}, {&m_project, &m_text})
        || !reader.optional(QStringLiteral("format"), &format))
        return false;
    m_references = parser.isSet(QStringLiteral("references"));
    m_json = format == QLatin1String("json");
    if (!m_json && format != QLatin1String("text")) {
        *message =
            LocalizationHelper::coreString(QStringLiteral("The value \"%1\" of --format is neither text nor json."))
                .arg(format);
        return false;
    }
    return true;
}

ExitStatus FindCommand::run(StandardOutput& output)
{
    const std::unique_ptr<Project> project = ProjectArgument::open(m_project);
    // What is missing from an unreadable screen may be what is looked for.
    if (!project || !ProjectArgument::readScreens(project.get()))
        return ExitStatus::Fault;
    ProjectSearch search = m_references ? ProjectSearch::forReferences(project.get(), m_text)
                                        : ProjectSearch::forText(project.get(), m_text);
    search.setLimit(-1);
    (void)search.proceed();
    output.write(m_json ? toJson(search.matches()) : toText(search.matches()));
    return search.matches().isEmpty() ? ExitStatus::Fault : ExitStatus::Done;
}

} // namespace Korvex::Meridane::Designer
