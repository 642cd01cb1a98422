#include "cli/DescribeCommand.h"

#include "cli/ClassDescription.h"
#include "cli/DescriptionTable.h"
#include "cli/Messages.h"
#include "cli/ProjectArgument.h"
#include "cli/StandardOutput.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/plugins/DesignerFactory.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

QString DescribeCommand::name() const
{
    return QStringLiteral("describe");
}

QString DescribeCommand::synopsis() const
{
    return QStringLiteral("[--json] [CLASS…]");
}

QString DescribeCommand::summary() const
{
    return QStringLiteral("Tells what the plug-ins offer: classes, their properties and run-time properties.");
}

QList<QCommandLineOption> DescribeCommand::options() const
{
    return {{QStringLiteral("json"), QStringLiteral("Writes JSON instead of a table.")}};
}

ApplicationKind DescribeCommand::applicationKind() const
{
    // The canvas items, which are asked for their names, need it.
    return ApplicationKind::Widgets;
}

bool DescribeCommand::readArguments(const QCommandLineParser& parser, QString*)
{
    m_json = parser.isSet(QStringLiteral("json"));
    m_classNames = parser.positionalArguments();
    m_classNames.removeDuplicates();
    return true;
}

ExitStatus DescribeCommand::run(StandardOutput& output)
{
    // A plug-in that could not be loaded makes the description incomplete.
    const ExitStatus status = ProjectArgument::loadPlugins() ? ExitStatus::Done : ExitStatus::Fault;
    const QStringList offered = DesignerFactory::instance()->elementClassNames();
    const QStringList wanted = m_classNames.isEmpty() ? offered : m_classNames;

    QJsonArray classes;
    for (const QString& className : wanted) {
        const QJsonObject description = ClassDescription::describe(className);
        if (description.isEmpty()) {
            Messages::print(LocalizationHelper::coreString(QStringLiteral("There is no class \"%1\". There are: %2."))
                                .arg(className, offered.join(QLatin1String(", "))));
            return ExitStatus::Fault;
        }
        classes.append(description);
    }
    output.write(m_json ? QJsonDocument(QJsonObject{{QStringLiteral("classes"), classes}}).toJson()
                        : DescriptionTable::text(classes).toUtf8());
    return status;
}

} // namespace Korvex::Meridane::Designer
