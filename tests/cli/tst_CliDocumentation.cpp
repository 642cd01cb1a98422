#include "tests/cli/MeridaneProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A command of the manual and what it says that the command prints.
struct Example
{
    QString command;
    QString output;
    int line = 0;
};

/// The commands of all "console" blocks: "$ " begins one, "> " goes on with it, and other lines are its output.
QList<Example> readExamples(const QString& text)
{
    QList<Example> examples;
    bool inBlock = false;
    int number = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        ++number;
        if (line.startsWith(QLatin1String("```")))
            inBlock = line == QLatin1String("```console");
        else if (!inBlock)
            continue;
        else if (line.startsWith(QLatin1String("$ ")))
            examples.append({line.mid(2), {}, number});
        else if (line.startsWith(QLatin1String("> ")))
            examples.last().command += QLatin1Char('\n') + line.mid(2);
        else
            examples.last().output += line + QLatin1Char('\n');
    }
    return examples;
}

/// Runs all commands in one shell; what each printed.
QStringList runExamples(const QList<Example>& examples, const QString& folder)
{
    const QChar separator(0x1e);
    QString script = QStringLiteral("exec 2>&1\nstatus=0\n");
    for (const Example& example : examples) {
        script +=
            QStringLiteral("(exit $status)\n") + example.command + QStringLiteral("\nstatus=$?; printf '\\036'\n");
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), QFileInfo(MeridaneProgram::path()).path() + QDir::listSeparator()
                                                   + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(folder);
    shell.start(QStringLiteral("bash"), {QStringLiteral("-c"), script});
    shell.waitForFinished(240000);
    QStringList outputs = QString::fromUtf8(shell.readAllStandardOutput()).split(separator);
    outputs.removeLast();
    return outputs;
}

} // namespace

/// The manual says what the program does.
class tst_CliDocumentation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyExamplePrintsWhatTheManualSays()
    {
        QFile manual(QStringLiteral(MERIDANE_MANUAL));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QList<Example> examples = readExamples(QString::fromUtf8(manual.readAll()));
        QVERIFY(examples.size() > 20);
        const QTemporaryDir folder;
        const QStringList outputs = runExamples(examples, folder.path());
        QCOMPARE(outputs.size(), examples.size());
        for (qsizetype i = 0; i < examples.size(); ++i) {
            QVERIFY2(outputs.at(i) == examples.at(i).output,
                     qPrintable(QStringLiteral("line %1: %2\nprinted:\n%3expected:\n%4")
                                    .arg(examples.at(i).line)
                                    .arg(examples.at(i).command, outputs.at(i), examples.at(i).output)));
        }
    }

    void everyCommandHasASection()
    {
        QFile manual(QStringLiteral(MERIDANE_MANUAL));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QByteArray text = manual.readAll();
        for (const char* command : {"new", "apply", "check", "render", "export", "preview", "describe"}) {
            const auto help = MeridaneProgram::run({QString::fromLatin1(command), QStringLiteral("--help")});
            const QByteArray usage = help.output.split('\n').constFirst().mid(qstrlen("Usage: "));
            QVERIFY2(text.contains("\n## " + QByteArray(command) + "\n\n    " + usage + '\n'), usage.constData());
        }
    }
};

QTEST_GUILESS_MAIN(tst_CliDocumentation)
#include "tst_CliDocumentation.moc"
