#include "tests/display/Programs.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

const QString Meridane = QStringLiteral(MERIDANE_PROGRAM);

/// Runs a program to its end; false with its output in the log where it did not leave with 0.
bool run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool finished = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    if (finished && process.exitCode() == 0)
        return true;
    qWarning("%s %s: exit code %d\n%s", qPrintable(program), qPrintable(arguments.join(QLatin1Char(' '))),
             process.exitCode(), process.readAll().constData());
    return false;
}

QImage opaque(const QString& file)
{
    return QImage(file).convertToFormat(QImage::Format_RGB32);
}

} // namespace

Programs::Programs()
{
    qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
}

QString Programs::fresh(const QString& name) const
{
    QString path = m_folder.filePath(name);
    QDir(path).removeRecursively();
    QFile::remove(path);
    return path;
}

QString Programs::makeProject(const QString& name, const QJsonArray& edits) const
{
    const QString project = fresh(name);
    QFile file(project + QStringLiteral(".json"));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(edits).toJson()) < 0)
        return {};
    file.close();
    const bool made =
        run(Meridane, {QStringLiteral("new"), project, QStringLiteral("--size"), QStringLiteral("320x240")})
        && run(Meridane, {QStringLiteral("apply"), project, file.fileName()});
    return made ? project : QString();
}

QStringList Programs::screens(const QString& project)
{
    QFile file(project + QStringLiteral("/project.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList ids;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const QVariantList screens = object.value(QLatin1String("screens")).toArray().toVariantList();
    for (const QVariant& id : screens)
        ids.append(id.toString());
    return ids;
}

bool Programs::exportProject(const QString& project, const QString& folder)
{
    return run(Meridane, {QStringLiteral("export"), project, QStringLiteral("--output"), folder});
}

bool Programs::check(const QString& project)
{
    return run(Meridane, {QStringLiteral("check"), project});
}

bool Programs::lint(const QString& qmlFile)
{
    return run(QStringLiteral(MERIDANE_QMLLINT), {QStringLiteral("-I"), QStringLiteral(MERIDANE_QML_DIR), qmlFile});
}

QImage Programs::canvas(const QString& project, const QString& screen) const
{
    const QString folder = fresh(QStringLiteral("render"));
    if (!run(Meridane, {QStringLiteral("render"), project, QStringLiteral("--screen"), screen,
                        QStringLiteral("--output"), folder}))
        return {};
    return opaque(folder + QLatin1Char('/') + screen + QStringLiteral(".png"));
}

QImage Programs::running(const QString& project, const QString& screen) const
{
    const QString folder = fresh(QStringLiteral("export"));
    const QString picture = fresh(QStringLiteral("grab.png"));
    if (!exportProject(project, folder)
        || !run(QStringLiteral(MERIDANE_VIEWER),
                {folder, QStringLiteral("--screen"), screen, QStringLiteral("--grab"), picture}))
        return {};
    return opaque(picture);
}
