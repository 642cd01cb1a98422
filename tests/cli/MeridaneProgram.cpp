#include "tests/cli/MeridaneProgram.h"

#include <QJsonDocument>
#include <QProcess>

namespace {

constexpr int Patience = 120000; // ms; a sanitized build on a busy machine is slow

MeridaneProgram::Result runProcess(QProcess& process, const QString& program, const QStringList& arguments,
                                   const QByteArray& input)
{
    process.start(program, arguments);
    MeridaneProgram::Result result;
    if (!process.waitForStarted())
        return result;
    process.write(input);
    process.closeWriteChannel();
    const bool finished = process.waitForFinished(Patience);
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    if (finished && process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    return result;
}

} // namespace

QJsonArray MeridaneProgram::Result::lines() const
{
    QJsonArray array;
    const QList<QByteArray> texts = output.split('\n');
    for (const QByteArray& text : texts) {
        if (!text.isEmpty())
            array.append(QJsonDocument::fromJson(text).object());
    }
    return array;
}

QJsonObject MeridaneProgram::Result::line(int index) const
{
    return lines().at(index).toObject();
}

QString MeridaneProgram::path()
{
    return QStringLiteral(MERIDANE_PROGRAM);
}

MeridaneProgram::Result MeridaneProgram::run(const QStringList& arguments, const QByteArray& input,
                                             const QString& folder)
{
    return runIn(QProcessEnvironment::systemEnvironment(), arguments, input, folder);
}

MeridaneProgram::Result MeridaneProgram::runIn(const QProcessEnvironment& environment, const QStringList& arguments,
                                               const QByteArray& input, const QString& folder)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    return runProcess(process, path(), arguments, input);
}

MeridaneProgram::Result MeridaneProgram::script(const QString& text, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("M"), path());
    process.setProcessEnvironment(environment);
    return runProcess(process, QStringLiteral("bash"),
                      QStringList{QStringLiteral("-c"), text, QStringLiteral("bash")} + arguments, {});
}

QStringList MeridaneProgram::classNames()
{
    QStringList names;
    const QByteArray output = run({QStringLiteral("describe"), QStringLiteral("--json")}).output;
    const QJsonArray classes = QJsonDocument::fromJson(output).object().value(QLatin1String("classes")).toArray();
    for (const QJsonValue& entry : classes)
        names.append(entry.toObject().value(QLatin1String("className")).toString());
    return names;
}

QProcessEnvironment MeridaneProgram::withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"})
        environment.remove(QLatin1String(name));
    return environment;
}
