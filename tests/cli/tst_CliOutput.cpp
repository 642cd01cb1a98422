#include "tests/cli/ProjectFixture.h"

#include <QFile>
#include <QTest>

#include <unistd.h>

/// Where results go and where the program runs: full disks, closed pipes, other users, no display.
class tst_CliOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultsThatCannotBeWrittenGiveStatusOne_data();
    void resultsThatCannotBeWrittenGiveStatusOne();
    void aClosedOutputNeverReceivesAProjectFile();
    void aClosedErrorOutputIsNoFault();
    void anApplyWhoseLinesCannotBeWrittenSavesNothing();
    void noCommandNeedsADisplay();
    void anUnreachableDisplayIsNotAsked();
    void anotherUserCanRunIt();
    void theCLocaleGivesNoWarning();
};

void tst_CliOutput::resultsThatCannotBeWrittenGiveStatusOne_data()
{
    QTest::addColumn<QString>("command");

    for (const char* command : {"--version", "--help", "describe", "describe --json", "render --help"}) {
        const QString text = QString::fromLatin1(command);
        QTest::addRow("%s, full disk", command) << QStringLiteral("\"$M\" %1 > /dev/full").arg(text);
        QTest::addRow("%s, closed", command) << QStringLiteral("\"$M\" %1 >&-").arg(text);
        QTest::addRow("%s, closed pipe", command)
            << QStringLiteral("{ sleep 0.3; \"$M\" %1; echo $? > \"$1\"; } | true; exit $(cat \"$1\")").arg(text);
    }
}

void tst_CliOutput::resultsThatCannotBeWrittenGiveStatusOne()
{
    QFETCH(QString, command);
    QTemporaryDir temporary;
    const auto result = MeridaneProgram::script(command, {temporary.filePath(QStringLiteral("status"))});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("standard output"), result.errors.constData());
}

void tst_CliOutput::aClosedOutputNeverReceivesAProjectFile()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    const auto before = project.content();
    const auto result =
        MeridaneProgram::script(QStringLiteral("exec 0<&- 1>&- 2>&-; \"$M\" apply \"$1\" - "), {project.folder()});
    QCOMPARE(result.status, 1);
    QCOMPARE(project.content(), before);

    // A command without results has nothing to lose.
    const auto made = MeridaneProgram::script(QStringLiteral("\"$M\" new \"$1\" >&-"), {project.path("other")});
    QCOMPARE(made.status, 0);
    QVERIFY(QFile::exists(project.path("other/project.json")));
}

void tst_CliOutput::aClosedErrorOutputIsNoFault()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    QCOMPARE(MeridaneProgram::script(QStringLiteral("\"$M\" check \"$1\" 2>&-"), {project.folder()}).status, 0);
    QCOMPARE(MeridaneProgram::script(QStringLiteral("\"$M\" check /nowhere 2>&-")).status, 1);
    QCOMPARE(MeridaneProgram::script(QStringLiteral("\"$M\" nonsense 2> /dev/full")).status, 2);
}

void tst_CliOutput::anApplyWhoseLinesCannotBeWrittenSavesNothing()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    const auto before = project.content();
    for (const char* options : {"", "--keep-going"}) {
        const auto result = MeridaneProgram::script(
            QStringLiteral("printf %s \"$2\" | \"$M\" apply \"$1\" - %1 > /dev/full").arg(QLatin1String(options)),
            {project.folder(), QString::fromUtf8(ProjectFixture::addBox())});
        QCOMPARE(result.status, 1);
        QCOMPARE(project.content(), before);
    }
}

void tst_CliOutput::noCommandNeedsADisplay()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    const QProcessEnvironment environment = MeridaneProgram::withoutDisplay();
    const QString output = QStringLiteral("--output");
    const QList<QStringList> commands{
        {QStringLiteral("new"), project.path("another")},
        {QStringLiteral("apply"), project.folder(), QStringLiteral("-")},
        {QStringLiteral("check"), project.folder()},
        {QStringLiteral("describe")},
        {QStringLiteral("export"), project.folder(), output, project.path("export")},
        {QStringLiteral("render"), project.folder(), output, project.path("pictures")},
        {QStringLiteral("preview"), project.folder(), QStringLiteral("--grab"), project.path("frame.png")},
    };
    for (const QStringList& command : commands) {
        const auto result = MeridaneProgram::runIn(environment, command, ProjectFixture::addBox());
        QVERIFY2(result.status == 0, qPrintable(command.join(QLatin1Char(' ')) + QString::fromUtf8(result.errors)));
        QCOMPARE(result.errors, QByteArray());
    }
}

void tst_CliOutput::anUnreachableDisplayIsNotAsked()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    QProcessEnvironment environment = MeridaneProgram::withoutDisplay();
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":7654"));
    for (const QStringList& command :
         {QStringList{QStringLiteral("apply"), project.folder(), QStringLiteral("-")},
          QStringList{QStringLiteral("render"), project.folder(), QStringLiteral("--output"), project.path("p")}}) {
        const auto result = MeridaneProgram::runIn(environment, command, ProjectFixture::addBox());
        QVERIFY2(result.status == 0, result.errors.constData());
    }
}

void tst_CliOutput::anotherUserCanRunIt()
{
    if (::geteuid() != 0)
        QSKIP("only the superuser can become another user");
    const QString script = QStringLiteral("cd / && setpriv --reuid=65534 --regid=65534 --clear-groups "
                                          "env HOME=/nonexistent \"$M\" new \"$1/project\"");
    if (MeridaneProgram::script(QStringLiteral("setpriv --reuid=65534 --regid=65534 --clear-groups test -x \"$M\""))
            .status
        != 0)
        QSKIP("the program stands where other users cannot reach it");
    QTemporaryDir temporary;
    QFile::setPermissions(temporary.path(), QFile::Permissions(0x7777));
    auto result = MeridaneProgram::script(script, {temporary.path()});
    QVERIFY2(result.status == 0, result.errors.constData());
    QVERIFY(QFile::exists(temporary.filePath(QStringLiteral("project/project.json"))));

    // Where that user may not write, it says so.
    QTemporaryDir locked;
    QFile::setPermissions(locked.path(), QFile::Permissions(0x7755));
    result = MeridaneProgram::script(script, {locked.path()});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(locked.path().toUtf8()), result.errors.constData());
    QCOMPARE(ProjectFixture::content(locked.path()).size(), 0);
}

void tst_CliOutput::theCLocaleGivesNoWarning()
{
    const auto result = MeridaneProgram::script(QStringLiteral("LC_ALL=C \"$M\" describe Rectangle"));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QByteArray());
}

QTEST_GUILESS_MAIN(tst_CliOutput)
#include "tst_CliOutput.moc"
