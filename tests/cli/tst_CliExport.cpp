#include "tests/cli/ProjectFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

class tst_CliExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyScreenIsWritten();
    void theSameProjectGivesTheSameBytes();
    void aForeignFolderIsNotOverwritten();
    void aMissingProjectIsNamed();
    void anUnreadableScreenLeavesNothing();
    void whatCannotBeWrittenLeavesNothing_data();
    void whatCannotBeWrittenLeavesNothing();

private:
    static MeridaneProgram::Result exportTo(const ProjectFixture& project, const QString& folder)
    {
        return project.run("export", {QStringLiteral("--output"), folder});
    }
};

void tst_CliExport::everyScreenIsWritten()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    QCOMPARE(project
                 .apply(R"([{"op":"add-screen","id":"second"},
                               {"op":"add","class":"Rectangle","id":"box"}])")
                 .status,
             0);
    const QString folder = project.path("export");
    const auto result = exportTo(project, folder);
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray());
    const auto files = ProjectFixture::content(folder);
    QVERIFY(files.contains(QStringLiteral("/Main.qml")));
    QVERIFY(files.contains(QStringLiteral("/screens/second.qml")));
    QVERIFY(files.value(QStringLiteral("/screens/main.qml")).contains("Rectangle2 {"));
    QVERIFY(files.value(QStringLiteral("/screens/main.qml")).contains("id: box"));
}

void tst_CliExport::theSameProjectGivesTheSameBytes()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    QCOMPARE(project.apply(ProjectFixture::addBox()).status, 0);
    QCOMPARE(exportTo(project, project.path("one")).status, 0);
    QCOMPARE(exportTo(project, project.path("two")).status, 0);
    const auto first = ProjectFixture::content(project.path("one"));
    QCOMPARE(ProjectFixture::content(project.path("two")), first);
    QCOMPARE(exportTo(project, project.path("one")).status, 0);
    QCOMPARE(ProjectFixture::content(project.path("one")), first);
}

void tst_CliExport::aForeignFolderIsNotOverwritten()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    const auto before = project.content();
    const auto result = exportTo(project, project.folder());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(project.folder().toUtf8()), result.errors.constData());
    QCOMPARE(project.content(), before);
}

void tst_CliExport::aMissingProjectIsNamed()
{
    QTemporaryDir temporary;
    const QString missing = temporary.filePath(QStringLiteral("missing"));
    const QString output = temporary.filePath(QStringLiteral("out"));
    const auto result = MeridaneProgram::run({QStringLiteral("export"), missing, QStringLiteral("--output"), output});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(missing.toUtf8()), result.errors.constData());
    QVERIFY(!QFileInfo::exists(output));
}

void tst_CliExport::anUnreadableScreenLeavesNothing()
{
    ProjectFixture project;
    QVERIFY(project.isValid());
    project.write("screens/main.json", "{\"id\": ");
    const auto result = exportTo(project, project.path("export"));
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("screens/main.json"), result.errors.constData());
    QVERIFY(!QFileInfo::exists(project.path("export")));
}

void tst_CliExport::whatCannotBeWrittenLeavesNothing_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("below a file") << QStringLiteral("touch \"$2/file\"; \"$M\" export \"$1\" --output \"$2/file/out\"");
    QTest::newRow("in a system folder") << QStringLiteral("\"$M\" export \"$1\" --output /proc/out");
    QTest::newRow("file size limit") << QStringLiteral("ulimit -f 0; \"$M\" export \"$1\" --output \"$2/out\"");
}

void tst_CliExport::whatCannotBeWrittenLeavesNothing()
{
    QFETCH(QString, script);
    ProjectFixture project;
    QVERIFY(project.isValid());
    const auto result = MeridaneProgram::script(script, {project.folder(), project.path("")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(script.contains(QLatin1String("/proc")) ? "/proc" : project.path("").toUtf8()),
             result.errors.constData());
    QVERIFY(!QFileInfo::exists(project.path("out")));
}

QTEST_GUILESS_MAIN(tst_CliExport)
#include "tst_CliExport.moc"
