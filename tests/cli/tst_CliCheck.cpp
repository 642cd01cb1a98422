#include "tests/cli/ProjectFixture.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>
#include <QTest>

#include <memory>

namespace {

/// Many arrays in one another.
QByteArray nested(int depth)
{
    return QByteArray(depth, '[') + QByteArray(depth, ']');
}

} // namespace

class tst_CliCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aGoodProjectGivesNothing();
    void everyFaultIsALine_data();
    void everyFaultIsALine();
    void theJsonHasTheSameProblems();
    void aBrokenScreenFileIsNamed_data();
    void aBrokenScreenFileIsNamed();
    void aBrokenProjectFileIsNamed_data();
    void aBrokenProjectFileIsNamed();
    void aMissingProjectIsNamed();
    void checkingChangesNothing();

private:
    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliCheck::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0);
}

void tst_CliCheck::aGoodProjectGivesNothing()
{
    auto result = m_project->run("check");
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(m_project->run("check", {QStringLiteral("--format"), QStringLiteral("text")}).output, QByteArray());
    result = m_project->run("check", {QStringLiteral("--format"), QStringLiteral("json")});
    QCOMPARE(result.status, 0);
    const QJsonDocument document = QJsonDocument::fromJson(result.output);
    QVERIFY(document.isArray());
    QVERIFY(document.array().isEmpty());
}

void tst_CliCheck::everyFaultIsALine_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QByteArray>("start"); // of the line
    QTest::addColumn<QByteArray>("words"); // in the line

    const auto stored = [](const char* name, const char* property, const char* value, const char* words) {
        QTest::newRow(name) << QByteArray("properties.") + property << QJsonValue(QLatin1String(value))
                            << QByteArray("screens/main.json: main/box.") + property + ": " << QByteArray(words);
    };
    stored("a value that does not convert", "size", "large", "large");
    stored("a value out of range", "cornerRadius", "101", "must be between 0 and 100");
    stored("a value above its limit", "cornerRadius", "21", "smaller than or equal to 20 px");
    QTest::newRow("an element off its screen")
        << QByteArray("properties.position") << QJsonValue(QLatin1String("500,10"))
        << QByteArray("screens/main.json: main/box") << QByteArray();
    QTest::newRow("an unknown class") << QByteArray("class") << QJsonValue(QLatin1String("Teapot"))
                                      << QByteArray("screens/main.json: main/box") << QByteArray("Teapot");
    QTest::newRow("an unknown key") << QByteArray("colour") << QJsonValue(QLatin1String("red"))
                                    << QByteArray("screens/main.json: main/box") << QByteArray("colour");
    QTest::newRow("an unknown property") << QByteArray("properties.radius") << QJsonValue(QLatin1String("3"))
                                         << QByteArray("screens/main.json: main/box") << QByteArray("radius");
    QTest::newRow("a value that is no text")
        << QByteArray("properties.cornerRadius") << QJsonValue(12)
        << QByteArray("screens/main.json: main/box.cornerRadius: ") << QByteArray("12");
    QTest::newRow("an id that is none") << QByteArray("id") << QJsonValue(QLatin1String("Big Box"))
                                        << QByteArray("screens/main.json: ") << QByteArray("Big Box");
}

void tst_CliCheck::everyFaultIsALine()
{
    QFETCH(QByteArray, key);
    QFETCH(QJsonValue, value);
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, words);
    if (key.startsWith("properties."))
        m_project->setStoredValue(0, key.mid(key.indexOf('.') + 1).constData(), value);
    else
        m_project->setElementKey(0, key.constData(), value);

    const auto result = m_project->run("check");
    QCOMPARE(result.status, 1);
    bool found = false;
    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    for (const QByteArray& line : lines) {
        QVERIFY2(line.startsWith("error: ") || line.startsWith("warning: "), line.constData());
        const QByteArray rest = line.mid(line.indexOf(": ") + 2);
        found = found || (rest.startsWith(start) && rest.contains(words));
    }
    QVERIFY2(found, result.output.constData());
    QCOMPARE(QSet<QByteArray>(lines.cbegin(), lines.cend()).size(), lines.size());
}

void tst_CliCheck::theJsonHasTheSameProblems()
{
    m_project->setStoredValue(0, "cornerRadius", QLatin1String("101"));
    const auto result = m_project->run("check", {QStringLiteral("--format"), QStringLiteral("json")});
    QCOMPARE(result.status, 1);
    const QJsonArray problems = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(problems.size(), 1);
    const QJsonObject problem = problems.first().toObject();
    QCOMPARE(problem.value(QLatin1String("severity")).toString(), QStringLiteral("error"));
    QCOMPARE(problem.value(QLatin1String("file")).toString(), QStringLiteral("screens/main.json"));
    QCOMPARE(problem.value(QLatin1String("object")).toString(), QStringLiteral("main/box"));
    QCOMPARE(problem.value(QLatin1String("property")).toString(), QStringLiteral("cornerRadius"));
    QVERIFY(problem.value(QLatin1String("message"))
                .toString()
                .contains(QLatin1String("The corner radius must be between 0 and 100.")));
    QCOMPARE(problem.size(), 5);

    const auto text = m_project->run("check");
    QCOMPARE(text.output, QStringLiteral("error: screens/main.json: main/box.cornerRadius: %1\n")
                              .arg(problem.value(QLatin1String("message")).toString())
                              .toUtf8());
}

void tst_CliCheck::aBrokenScreenFileIsNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("truncated") << QByteArray(R"({"id": "main", "elements": [{"class": "Rect)");
    QTest::newRow("no JSON") << QByteArray("Hello, world.");
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\0\xff\xfe", 10);
    QTest::newRow("an array") << QByteArray("[]");
    QTest::newRow("elements of a wrong type") << QByteArray(R"({"id": "main", "elements": {"a": 1}})");
    QTest::newRow("nested deeply") << nested(100000);
    QTest::newRow("nested deeply inside") << R"({"id": "main", "elements": [], "extra": )" + nested(100000) + '}';
    QTest::newRow("a key twice") << QByteArray(R"({"id": "main", "elements": [], "elements": []})");
    QTest::newRow("in the middle of a merge")
        << QByteArray("<<<<<<< ours\n{\"id\": \"main\"}\n=======\n{\"id\": \"main\"}\n>>>>>>> theirs\n");
}

void tst_CliCheck::aBrokenScreenFileIsNamed()
{
    QFETCH(QByteArray, content);
    m_project->write("screens/main.json", content);
    const auto result = m_project->run("check");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.output.contains("error: screens/main.json: "), result.output.constData());

    // No edit is accepted, and nothing is written over what the user may still save.
    const auto edited = m_project->apply(R"([{"op":"add","class":"Rectangle"}])");
    QCOMPARE(edited.status, 1);
    QCOMPARE(m_project->read("screens/main.json"), content);
}

void tst_CliCheck::aBrokenProjectFileIsNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("truncated") << QByteArray(R"({"formatVersion": 1, "na)");
    QTest::newRow("no JSON") << QByteArray("Hello, world.");
    QTest::newRow("an array") << QByteArray("[]");
    QTest::newRow("nothing in it") << QByteArray("{}");
    QTest::newRow("nested deeply") << nested(100000);
    QTest::newRow("a newer format") << QByteArray("newer");
    QTest::newRow("screens of a wrong type") << QByteArray("screens");
}

void tst_CliCheck::aBrokenProjectFileIsNamed()
{
    QFETCH(QByteArray, content);
    if (content == "newer" || content == "screens") {
        QJsonObject object = m_project->readJson("project.json");
        const QString key = content == "newer" ? QStringLiteral("formatVersion") : QStringLiteral("screens");
        QVERIFY2(object.contains(key), m_project->read("project.json").constData());
        object.insert(key, content == "newer" ? QJsonValue(99) : QJsonValue(QLatin1String("main")));
        m_project->writeJson("project.json", object);
    } else {
        m_project->write("project.json", content);
    }
    const auto before = m_project->content();

    auto result = m_project->run("check");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.output.contains("error: project.json: "), result.output.constData());
    QVERIFY2(result.errors.contains(m_project->folder().toUtf8()), result.errors.constData());
    result = m_project->run("check", {QStringLiteral("--format"), QStringLiteral("json")});
    QCOMPARE(result.status, 1);
    QVERIFY(!QJsonDocument::fromJson(result.output).array().isEmpty());

    // Every other command says the same and touches nothing.
    for (const char* command : {"export", "render"}) {
        result = m_project->run(command, {QStringLiteral("--output"), m_project->path("out")});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.saysError("project.json"), result.errors.constData());
        QVERIFY(!QFileInfo::exists(m_project->path("out")));
    }
    result = m_project->run("preview", {QStringLiteral("--grab"), m_project->path("frame.png")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("project.json"), result.errors.constData());
    result = m_project->apply(ProjectFixture::addBox());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.saysError("project.json"), result.errors.constData());
    QCOMPARE(m_project->content(), before);
}

void tst_CliCheck::aMissingProjectIsNamed()
{
    for (const char* name : {"nowhere", ""}) {
        const QString folder = m_project->path(name);
        const auto result = MeridaneProgram::run({QStringLiteral("check"), folder});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(folder.toUtf8()), result.errors.constData());
    }
}

void tst_CliCheck::checkingChangesNothing()
{
    m_project->setElementKey(0, "id", QLatin1String("Big Box"));
    const auto before = m_project->content();
    QCOMPARE(m_project->run("check").status, 1);
    QCOMPARE(m_project->content(), before);
}

QTEST_GUILESS_MAIN(tst_CliCheck)
#include "tst_CliCheck.moc"
