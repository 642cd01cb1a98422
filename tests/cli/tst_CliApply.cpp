#include "tests/cli/ProjectFixture.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>

namespace {

const QLatin1String Op("op");
const QLatin1String Ok("ok");
const QLatin1String Message("message");

} // namespace

/// Reading edits, refusing them, stopping, going on and saving.
class tst_CliApply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyEditGivesALineInOrder();
    void noEditsAreDone();
    void editsComeFromAFile();
    void aFileThatIsNoArrayOfEditsChangesNothing_data();
    void aFileThatIsNoArrayOfEditsChangesNothing();
    void aMissingFileIsNamed();
    void anEditThatDoesNotFitIsRefused_data();
    void anEditThatDoesNotFitIsRefused();
    void theFirstRefusalStopsAndSavesNothing();
    void keepGoingSavesWhatWasAccepted();
    void aDryRunSavesNothing();
    void editsWithoutEffectLeaveTheFilesAlone();
    void whatCannotBeSavedChangesNothing();
    void objectsOfSeveralScreensAreToldApart();

private:
    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApply::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0);
}

void tst_CliApply::everyEditGivesALineInOrder()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle"},
                                             {"op":"set","id":"box","property":"color","value":"#112233"},
                                             {"op":"get","id":"box","property":"color"}])");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output.count('\n'), 3);
    QCOMPARE(
        result.line(0),
        QJsonObject({{Op, QStringLiteral("add")}, {Ok, true}, {QStringLiteral("id"), QStringLiteral("rectangle1")}}));
    QCOMPARE(result.line(1), QJsonObject({{Op, QStringLiteral("set")}, {Ok, true}}));
    QCOMPARE(
        result.line(2),
        QJsonObject({{Op, QStringLiteral("get")}, {Ok, true}, {QStringLiteral("value"), QStringLiteral("#112233")}}));
}

void tst_CliApply::noEditsAreDone()
{
    const auto before = m_project->content();
    const auto result = m_project->apply("[]");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(m_project->content(), before);
}

void tst_CliApply::editsComeFromAFile()
{
    QFile file(m_project->path("edits.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"([{"op":"get","id":"box","property":"position"}])");
    file.close();
    const auto result = MeridaneProgram::run(
        {QStringLiteral("apply"), m_project->folder(), QStringLiteral("edits.json")}, {}, m_project->path(""));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.line(0).value(QLatin1String("value")).toString(), QStringLiteral("20,10"));
}

void tst_CliApply::aFileThatIsNoArrayOfEditsChangesNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("empty") << QByteArray() << QByteArray("standard input:1:1");
    QTest::newRow("truncated") << QByteArray("[{\"op\":\"add\",\n \"class\":\"Rect") << QByteArray("standard input:2:");
    QTest::newRow("no JSON") << QByteArray("add Rectangle") << QByteArray("standard input:1:1");
    QTest::newRow("comment") << QByteArray("// edits\n[]") << QByteArray("standard input:1:1");
    QTest::newRow("final comma") << QByteArray("[{\"op\":\"undo-count\"},]") << QByteArray("standard input:1:");
    QTest::newRow("more behind") << QByteArray("[] []") << QByteArray("standard input:1:");
    QTest::newRow("an object") << QByteArray(R"({"op":"add","class":"Rectangle"})") << QByteArray("array");
    QTest::newRow("a key twice") << QByteArray("[{\"op\":\"undo\",\n\"op\":\"redo\"}]")
                                 << QByteArray("standard input:2:");
    QTest::newRow("nested deeply") << QByteArray(100000, '[') + QByteArray(100000, ']')
                                   << QByteArray("standard input:1:");
}

void tst_CliApply::aFileThatIsNoArrayOfEditsChangesNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, place);
    const auto before = m_project->content();
    const auto result = m_project->apply(content);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.contains("standard input"), result.errors.constData());
    QVERIFY2(result.errors.contains(place), result.errors.constData());
    QCOMPARE(m_project->content(), before);
}

void tst_CliApply::aMissingFileIsNamed()
{
    for (const QString& file : {m_project->path("nowhere.json"), m_project->folder()}) {
        const auto result = MeridaneProgram::run({QStringLiteral("apply"), m_project->folder(), file});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(file.toUtf8()), result.errors.constData());
    }
}

void tst_CliApply::anEditThatDoesNotFitIsRefused_data()
{
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<QByteArray>("word"); // in the message
    const auto row = [](const char* edit, const char* word) {
        QTest::newRow(edit) << QByteArray(edit) << QByteArray(word);
    };
    row(R"(12)", "object");
    row(R"(["op"])", "object");
    row(R"({})", "\"op\"");
    row(R"({"op":12})", "\"op\"");
    row(R"({"op":"explode"})", "explode");
    row(R"({"op":"Add","class":"Rectangle"})", "Add");
    row(R"({"op":"add"})", "\"class\"");
    row(R"({"op":"add","class":1})", "\"class\"");
    row(R"({"op":"add","class":"Teapot"})", "Teapot");
    row(R"({"op":"add","class":"Screen"})", "Screen");
    row(R"({"op":"add","class":"Rectangle","screen":"nowhere"})", "nowhere");
    row(R"({"op":"add","class":"Rectangle","screen":1})", "\"screen\"");
    row(R"({"op":"add","class":"Rectangle","id":1})", "\"id\"");
    row(R"({"op":"add","class":"Rectangle","id":""})", "\"id\"");
    row(R"({"op":"add","class":"Rectangle","id":"Big Box"})", "Big Box");
    row(R"({"op":"add","class":"Rectangle","id":"box"})", "box");
    row(R"({"op":"add","class":"Rectangle","properties":[]})", "\"properties\"");
    row(R"({"op":"add","class":"Rectangle","properties":{"size":12}})", "\"size\"");
    row(R"({"op":"add","class":"Rectangle","properties":{"weight":"12"}})", "weight");
    row(R"({"op":"add","class":"Rectangle","properties":{"cornerRadius":"101"}})",
        "The corner radius must be between 0 and 100.");
    row(R"({"op":"add","class":"Rectangle","colour":"red"})", "\"colour\"");
    row(R"({"op":"add-screen"})", "\"id\"");
    row(R"({"op":"add-screen","id":""})", "\"id\"");
    row(R"({"op":"add-screen","id":"main"})", "main");
    row(R"({"op":"add-screen","id":"two words"})", "two words");
    row(R"({"op":"remove-screen","id":"nowhere"})", "nowhere");
    row(R"({"op":"remove"})", "\"id\"");
    row(R"({"op":"remove","id":"nothing"})", "nothing");
    row(R"({"op":"remove","id":"main"})", "main");
    row(R"({"op":"remove","id":"box","ids":["box"]})", "\"ids\"");
    row(R"({"op":"remove","ids":"box"})", "\"ids\"");
    row(R"({"op":"remove","ids":["box",1]})", "\"ids\"");
    row(R"({"op":"remove","ids":["box","nothing"]})", "nothing");
    row(R"({"op":"select","id":"nothing"})", "nothing");
    row(R"({"op":"select"})", "\"id\"");
    row(R"({"op":"set","id":"box","property":"color"})", "\"value\"");
    row(R"({"op":"set","id":"box","value":"red"})", "\"property\"");
    row(R"({"op":"set","property":"color","value":"red"})", "\"id\"");
    row(R"({"op":"set","id":"box","property":"color","value":1})", "\"value\"");
    row(R"({"op":"set","id":"box","property":"weight","value":"1"})", "weight");
    row(R"({"op":"set","id":"box","property":"cornerRadius","value":"-1"})",
        "The corner radius must be between 0 and 100.");
    row(R"({"op":"set","id":"box","property":"cornerRadius","value":"21"})",
        "The corner radius must be smaller than or equal to 20 px.");
    row(R"({"op":"set","id":"box","property":"color","value":"red","undo":true})", "\"undo\"");
    row(R"({"op":"get","id":"box","property":"weight"})", "weight");
    row(R"({"op":"get","id":"main/nothing","property":"color"})", "main/nothing");
    row(R"({"op":"get","id":"nowhere/box","property":"color"})", "nowhere/box");
    row(R"({"op":"get","id":"","property":"color"})", "\"\"");
    row(R"({"op":"qml","id":"box","indent":-1})", "\"indent\"");
    row(R"({"op":"qml","id":"box","indent":1.5})", "\"indent\"");
    row(R"({"op":"qml","id":"box","indent":"1"})", "\"indent\"");
    row(R"({"op":"bounds","id":"main"})", "main");
    row(R"({"op":"handle","id":"box"})", "\"at\"");
    row(R"({"op":"handle","id":"box","at":[1]})", "\"at\"");
    row(R"({"op":"handle","id":"box","at":[1,"2"]})", "\"at\"");
    row(R"({"op":"handle","id":"box","at":[1,2,3]})", "\"at\"");
    row(R"({"op":"handle","id":"box","at":{"x":1,"y":2}})", "\"at\"");
    row(R"({"op":"drag","from":[1,2]})", "\"to\"");
    row(R"({"op":"drag","to":[1,2]})", "\"from\"");
    row(R"({"op":"drag","from":[1,2],"to":[1e7,2]})", "\"to\"");
    row(R"({"op":"drag","from":[1,2],"to":[3,4],"via":[1,2]})", "\"via\"");
    row(R"({"op":"drag","from":[1,2],"to":[3,4],"via":3})", "\"via\"");
    row(R"({"op":"drag","from":[1,2],"to":[3,4],"modifiers":["Hyper"]})", "Hyper");
    row(R"({"op":"drag","from":[1,2],"to":[3,4],"modifiers":[1]})", "\"modifiers\"");
    row(R"({"op":"drag","from":[1,2],"to":[3,4],"screen":"nowhere"})", "nowhere");
    row(R"({"op":"key","id":"box"})", "\"keys\"");
    row(R"({"op":"key","id":"box","keys":""})", "\"keys\"");
    row(R"({"op":"key","id":"box","keys":"Hyper+B"})", "\"keys\"");
    row(R"({"op":"key","id":"box","keys":"Alt"})", "\"keys\"");
    row(R"({"op":"key","id":"box","keys":"Alt+B, Alt+I"})", "\"keys\"");
    row(R"({"op":"key","keys":"Alt+B"})", "\"id\"");
    row(R"({"op":"rotate","id":"box"})", "\"angle\"");
    row(R"({"op":"rotate","id":"box","angle":"45"})", "\"angle\"");
    row(R"({"op":"rotate","id":"box","angle":45,"fixedPoint":"Middle"})", "\"fixedPoint\"");
    row(R"({"op":"rotate","id":"box","angle":45,"fixedPoint":4})", "\"fixedPoint\"");
    row(R"({"op":"import-image"})", "\"file\"");
    row(R"({"op":"import-image","file":"/nowhere.png"})", "/nowhere.png");
    row(R"({"op":"undo"})", "undo");
    row(R"({"op":"undo","steps":2})", "\"steps\"");
    row(R"({"op":"redo"})", "redo");
    row(R"({"op":"undo-count","id":"box"})", "\"id\"");
}

void tst_CliApply::anEditThatDoesNotFitIsRefused()
{
    QFETCH(QByteArray, edit);
    QFETCH(QByteArray, word);
    const auto before = m_project->content();
    const auto result = m_project->apply('[' + edit + ']');
    QCOMPARE(result.status, 1);
    QCOMPARE(result.lines().size(), 1);
    const QJsonObject line = result.line(0);
    QCOMPARE(line.value(Ok).toBool(true), false);
    QVERIFY(line.value(Op).isString());
    QVERIFY2(line.value(Message).toString().contains(QString::fromUtf8(word)), result.output.constData());
    QVERIFY2(result.saysError("standard") || result.saysError("-: edit 1"), result.errors.constData());
    QCOMPARE(m_project->content(), before);
}

void tst_CliApply::theFirstRefusalStopsAndSavesNothing()
{
    const auto before = m_project->content();
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle"},
                                             {"op":"set","id":"box","property":"cornerRadius","value":"101"},
                                             {"op":"add","class":"Rectangle"}])");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.lines().size(), 2);
    QCOMPARE(result.line(0).value(Ok).toBool(), true);
    QCOMPARE(result.line(1).value(Ok).toBool(true), false);
    QCOMPARE(result.line(1).value(Message).toString(), QStringLiteral("The corner radius must be between 0 and 100."));
    QCOMPARE(m_project->content(), before);
}

void tst_CliApply::keepGoingSavesWhatWasAccepted()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle","id":"first"},
                                             {"op":"set","id":"box","property":"cornerRadius","value":"101"},
                                             {"op":"add","class":"Rectangle","id":"second"}])",
                                         {QStringLiteral("--keep-going")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.lines().size(), 3);
    QCOMPARE(result.line(1).value(Ok).toBool(true), false);
    QCOMPARE(result.line(2).value(Ok).toBool(), true);
    const auto after = m_project->apply(R"([{"op":"get","id":"first","property":"size"},
                                            {"op":"get","id":"second","property":"size"},
                                            {"op":"get","id":"box","property":"cornerRadius"}])");
    QCOMPARE(after.status, 0);
    QCOMPARE(after.line(2).value(QLatin1String("value")).toString(), QStringLiteral("0"));
}

void tst_CliApply::aDryRunSavesNothing()
{
    const auto before = m_project->content();
    auto result = m_project->apply(R"([{"op":"add","class":"Rectangle","id":"first"},
                                       {"op":"get","id":"first","property":"size"}])",
                                   {QStringLiteral("--dry-run")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.line(1).value(QLatin1String("value")).toString(), QStringLiteral("100,75"));
    QCOMPARE(m_project->content(), before);
    result = m_project->apply(R"([{"op":"undo"},{"op":"add","class":"Rectangle"}])",
                              {QStringLiteral("--dry-run"), QStringLiteral("--keep-going")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.lines().size(), 2);
    QCOMPARE(m_project->content(), before);
}

void tst_CliApply::editsWithoutEffectLeaveTheFilesAlone()
{
    const QString file = m_project->folder() + QStringLiteral("/screens/main.json");
    const auto before = m_project->content();
    const QDateTime time = QFileInfo(file).lastModified();
    const auto result = m_project->apply(R"([{"op":"set","id":"box","property":"position","value":"20,10"},
                                             {"op":"select","id":"box"},
                                             {"op":"undo-count"}])");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.line(2).value(QLatin1String("count")).toInt(-1), 0);
    QCOMPARE(m_project->content(), before);
    QCOMPARE(QFileInfo(file).lastModified(), time);
}

void tst_CliApply::whatCannotBeSavedChangesNothing()
{
    const auto before = m_project->content();
    const auto result =
        MeridaneProgram::script(QStringLiteral("printf %s \"$2\" | { ulimit -f 0; \"$M\" apply \"$1\" -; }"),
                                {m_project->folder(), QStringLiteral(R"([{"op":"add","class":"Rectangle"}])")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith("meridane: "), result.errors.constData());
    QCOMPARE(m_project->content(), before);
}

void tst_CliApply::objectsOfSeveralScreensAreToldApart()
{
    auto result = m_project->apply(R"([{"op":"add-screen","id":"other"},
                                       {"op":"add","class":"Rectangle","screen":"other","id":"box",
                                        "properties":{"size":"7,7"}},
                                       {"op":"add","class":"Rectangle","screen":"other","id":"only"}])");
    QCOMPARE(result.status, 0);
    const auto before = m_project->content();
    result = m_project->apply(R"([{"op":"get","id":"box","property":"size"}])");
    QCOMPARE(result.status, 1);
    const QString message = result.line(0).value(Message).toString();
    QVERIFY2(message.contains(QLatin1String("main/box")) && message.contains(QLatin1String("other/box")),
             qPrintable(message));
    QCOMPARE(m_project->content(), before);

    result = m_project->apply(R"([{"op":"get","id":"main/box","property":"size"},
                                  {"op":"get","id":"other/box","property":"size"},
                                  {"op":"get","id":"only","property":"size"},
                                  {"op":"get","id":"other","property":"size"},
                                  {"op":"set","id":"other/","property":"size","value":"300,200"},
                                  {"op":"get","id":"other/","property":"size"}])");
    QCOMPARE(result.status, 0);
    const QStringList expected{
        QStringLiteral("50,40"),  QStringLiteral("7,7"), QStringLiteral("100,75"), QStringLiteral("200,100"), QString(),
        QStringLiteral("300,200")};
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(result.line(i).value(QLatin1String("value")).toString(), expected.at(i));
}

QTEST_GUILESS_MAIN(tst_CliApply)
#include "tst_CliApply.moc"
