#include "cli/NewCommand.h"

#include "cli/ArgumentReader.h"
#include "cli/Messages.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"

#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

QString NewCommand::name() const
{
    return QStringLiteral("new");
}

QString NewCommand::synopsis() const
{
    return QStringLiteral("FOLDER [--size WxH] [--name NAME]");
}

QString NewCommand::summary() const
{
    return QStringLiteral("Makes a project with one empty screen \"main\".");
}

QList<QCommandLineOption> NewCommand::options() const
{
    return {{QStringLiteral("size"), QStringLiteral("Size of the display in pixels, 800x480 unless given."),
             QStringLiteral("WxH")},
            {QStringLiteral("name"), QStringLiteral("Name of the project, that of the folder unless given."),
             QStringLiteral("NAME")}};
}

ApplicationKind NewCommand::applicationKind() const
{
    return ApplicationKind::Gui;
}

bool NewCommand::readArguments(const QCommandLineParser& parser, QString* message)
{
    ArgumentReader reader(parser, message);
    m_size = QSizeF(800, 480);
    return reader.positional({QStringLiteral("FOLDER")}, {&m_folder}) && reader.size(QStringLiteral("size"), &m_size)
           && reader.optional(QStringLiteral("name"), &m_projectName);
}

ExitStatus NewCommand::run(StandardOutput&)
{
    const QFileInfo target(m_folder);
    if (target.exists() && !target.isDir()) {
        Messages::print(
            LocalizationHelper::coreString(QStringLiteral("%1: this is a file, not a folder")).arg(m_folder));
        return ExitStatus::Fault;
    }
    const QDir folder(target.absoluteFilePath());
    // A folder that cannot be read cannot be known to be empty.
    if (target.exists() && !target.isReadable()) {
        Messages::print(LocalizationHelper::coreString(QStringLiteral("%1: this folder cannot be read")).arg(m_folder));
        return ExitStatus::Fault;
    }
    if (target.exists() && !folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        Messages::print(LocalizationHelper::coreString(QStringLiteral("%1: this folder is not empty")).arg(m_folder));
        return ExitStatus::Fault;
    }

    const QString name = m_projectName.isEmpty() ? QDir(QDir::cleanPath(folder.path())).dirName() : m_projectName;
    const std::unique_ptr<Project> project = ProjectStore::create(name, m_size);
    QString message;
    if (!ProjectStore::save(project.get(), folder.path(), &message)) {
        Messages::print(message);
        return ExitStatus::Fault;
    }
    return ExitStatus::Done;
}

} // namespace Korvex::Meridane::Designer
