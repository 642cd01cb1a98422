#include "tests/cli/ProjectFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTest>

namespace {

MeridaneProgram::Result makeProject(const QString& folder, const QStringList& options = {})
{
    return MeridaneProgram::run(QStringList{QStringLiteral("new"), folder} + options);
}

QJsonObject readObject(const QString& file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(source.readAll()).object() : QJsonObject();
}

} // namespace

class tst_CliNew : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProjectHasOneEmptyScreenOfTheSizeAskedFor();
    void theNameIsTheFoldersUnlessGiven_data();
    void theNameIsTheFoldersUnlessGiven();
    void anEmptyFolderIsTaken();
    void foldersAboveAreMade();
    void aFolderThatIsNotEmptyIsRefused();
    void aFileIsRefused();
    void whatCannotBeWrittenLeavesNothing_data();
    void whatCannotBeWrittenLeavesNothing();
};

void tst_CliNew::aProjectHasOneEmptyScreenOfTheSizeAskedFor()
{
    QTemporaryDir temporary;
    const QString folder = temporary.filePath(QStringLiteral("panel"));
    const auto result = makeProject(folder, {QStringLiteral("--size"), QStringLiteral("480x272")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray());

    const QByteArray edits = R"([{"op":"get","id":"main","property":"size"},
                                 {"op":"qml","id":"main"},
                                 {"op":"undo-count"}])";
    const auto applied = MeridaneProgram::run({QStringLiteral("apply"), folder, QStringLiteral("-")}, edits);
    QCOMPARE(applied.status, 0);
    QCOMPARE(applied.line(0).value(QLatin1String("value")).toString(), QStringLiteral("480,272"));
    QVERIFY(!applied.line(1).value(QLatin1String("qml")).toString().contains(QLatin1String("Rectangle")));
    QCOMPARE(applied.line(2).value(QLatin1String("count")).toInt(-1), 0);
    QCOMPARE(MeridaneProgram::run({QStringLiteral("check"), folder}).status, 0);
}

void tst_CliNew::theNameIsTheFoldersUnlessGiven_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("name");

    QTest::newRow("folder") << QStringLiteral("oven") << QStringList() << QStringLiteral("oven");
    QTest::newRow("final slash") << QStringLiteral("oven/") << QStringList() << QStringLiteral("oven");
    QTest::newRow("dots") << QStringLiteral("a/../oven") << QStringList() << QStringLiteral("oven");
    QTest::newRow("letters of any language")
        << QStringLiteral("Ofen für 炉") << QStringList() << QStringLiteral("Ofen für 炉");
    QTest::newRow("given") << QStringLiteral("oven")
                           << QStringList{QStringLiteral("--name"), QStringLiteral("The \"Oven\"")}
                           << QStringLiteral("The \"Oven\"");
}

void tst_CliNew::theNameIsTheFoldersUnlessGiven()
{
    QFETCH(QString, folder);
    QFETCH(QStringList, options);
    QFETCH(QString, name);
    QTemporaryDir temporary;
    const QString path = temporary.path() + QLatin1Char('/') + folder;
    QCOMPARE(makeProject(path, options).status, 0);
    const QString file = QDir::cleanPath(path) + QStringLiteral("/project.json");
    QCOMPARE(readObject(file).value(QLatin1String("name")).toString(), name);

    // The same from inside of the folder's parent.
    QTemporaryDir other;
    QVERIFY(QDir(other.path()).mkdir(QStringLiteral("oven")));
    const auto here =
        MeridaneProgram::run({QStringLiteral("new"), QStringLiteral(".")}, {}, other.filePath(QStringLiteral("oven")));
    QCOMPARE(here.status, 0);
    QCOMPARE(readObject(other.filePath(QStringLiteral("oven/project.json"))).value(QLatin1String("name")).toString(),
             QStringLiteral("oven"));
}

void tst_CliNew::anEmptyFolderIsTaken()
{
    QTemporaryDir temporary;
    QCOMPARE(makeProject(temporary.path()).status, 0);
    QVERIFY(QFile::exists(temporary.filePath(QStringLiteral("project.json"))));
    QVERIFY(QFile::exists(temporary.filePath(QStringLiteral("screens/main.json"))));
}

void tst_CliNew::foldersAboveAreMade()
{
    QTemporaryDir temporary;
    QCOMPARE(makeProject(temporary.filePath(QStringLiteral("a/b/c"))).status, 0);
    QVERIFY(QFile::exists(temporary.filePath(QStringLiteral("a/b/c/project.json"))));
}

void tst_CliNew::aFolderThatIsNotEmptyIsRefused()
{
    for (const char* name : {"notes.txt", ".hidden"}) {
        QTemporaryDir temporary;
        QFile file(temporary.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const auto before = ProjectFixture::content(temporary.path());
        const auto result = makeProject(temporary.path());
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(temporary.path().toUtf8()), result.errors.constData());
        QCOMPARE(ProjectFixture::content(temporary.path()), before);
    }
}

void tst_CliNew::aFileIsRefused()
{
    QTemporaryDir temporary;
    QFile file(temporary.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const auto result = makeProject(file.fileName());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(file.fileName().toUtf8()), result.errors.constData());
    QVERIFY(QFileInfo(file.fileName()).isFile());
}

void tst_CliNew::whatCannotBeWrittenLeavesNothing_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("below a file") << QStringLiteral("touch \"$1/file\"; \"$M\" new \"$1/file/project\"");
    QTest::newRow("in a system folder") << QStringLiteral("\"$M\" new /proc/project");
    QTest::newRow("file size limit") << QStringLiteral("ulimit -f 0; \"$M\" new \"$1/project\"");
}

void tst_CliNew::whatCannotBeWrittenLeavesNothing()
{
    QFETCH(QString, script);
    QTemporaryDir temporary;
    const auto result = MeridaneProgram::script(script, {temporary.path()});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith("meridane: "), result.errors.constData());
    QVERIFY2(result.errors.contains(script.contains(QLatin1String("/proc")) ? "/proc" : temporary.path().toUtf8()),
             result.errors.constData());
    QVERIFY(!QFileInfo::exists(temporary.filePath(QStringLiteral("project"))));
}

QTEST_GUILESS_MAIN(tst_CliNew)
#include "tst_CliNew.moc"
