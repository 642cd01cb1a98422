#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

const char* const MinimalProject = R"({"formatVersion": 1, "screens": []})";

} // namespace

/// What a project folder can hold that it should not: nothing crashes, nothing is lost, everything is said.
class tst_ProjectLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProjectThatCannotBeOpenedSaysWhy_data();
    void aProjectThatCannotBeOpenedSaysWhy();
    void aFolderWithoutProjectSaysSo();
    void whatIsLeftOutTakesItsDefault();
    void screensAreReadWhenTheyAreNeeded();
    void aScreenThatCannotBeReadIsShownAsSuchAndKept_data();
    void aScreenThatCannotBeReadIsShownAsSuchAndKept();
    void aFaultInAScreenIsReportedAndMended_data();
    void aFaultInAScreenIsReportedAndMended();
    void madeUpIdsNeverCollideWithLaterOnes();
    void aListedScreenWithoutFileIsReported();
    void aFileThatIsNotListedIsReportedAndLeftAlone();
    void unknownKeysOfTheProjectAreReported();
    void valuesThatAreNoTextsAreTakenAndReported();
    void linksOutOfTheFolderAreNotFollowed();
    void specialFilesAreRefused();

private:
    AllTypesFactory m_factory;
};

void tst_ProjectLoading::aProjectThatCannotBeOpenedSaysWhy_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QByteArray& json, const char* message) {
        QTest::newRow(name) << json << QString::fromUtf8(message);
    };
    row("empty", "", "The file is empty.");
    row("truncated", R"({"formatVersion": 1, "scre)", "Line 1: This is not JSON");
    row("not JSON", "PK\x03\x04", "Line 1: This is not JSON");
    row("a list", "[]", "must hold a JSON object, not a list");
    row("nested too deeply", QByteArray("{\"a\":") + QByteArray(2000, '['), "too deeply nested");
    row("duplicate key", "{\"formatVersion\": 1,\n\"name\": \"a\",\n\"name\": \"b\", \"screens\": []}",
        "Line 3: The key \"name\" stands here for the second time");
    row("newer format", R"({"formatVersion": 2, "screens": []})",
        "The project has format version 2; this program reads versions up to 1.");
    row("version missing", R"({"screens": []})", "\"formatVersion\" must be a whole number from 1 to 1, not nothing.");
    row("version a text", R"({"formatVersion": "1", "screens": []})", "not \"1\"");
    row("version a fraction", R"({"formatVersion": 1.5, "screens": []})", "not 1.5");
    row("version zero", R"({"formatVersion": 0, "screens": []})", "not 0");
    row("version huge", R"({"formatVersion": 1e300, "screens": []})", "\"formatVersion\" must be a whole number");
    row("screens missing", R"({"formatVersion": 1})", "\"screens\" must be a list, not nothing.");
    row("screens of the wrong kind", R"({"formatVersion": 1, "screens": {"a": 1}})", "must be a list, not an object");
    row("screen of the wrong kind", R"({"formatVersion": 1, "screens": ["a", 7]})", "\"screens[1]\" is 7");
    row("screen id with a path", R"({"formatVersion": 1, "screens": ["../../etc/passwd"]})", "\"screens[0]\" is");
    row("screen id that is none", R"({"formatVersion": 1, "screens": ["1st"]})", "\"screens[0]\" is \"1st\"");
    row("images of the wrong kind", R"({"formatVersion": 1, "screens": [], "images": "a.png"})",
        "\"images\" must be a list, not a text");
    row("image with a path", R"({"formatVersion": 1, "screens": [], "images": ["../a.png"]})", "\"images[0]\" is");
    row("font of the wrong kind", R"({"formatVersion": 1, "screens": [], "fonts": [null]})", "\"fonts[0]\" is null");
}

void tst_ProjectLoading::aProjectThatCannotBeOpenedSaysWhy()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    const ProjectFixture fixture;
    fixture.write("project.json", json);
    const ProjectStore::Loaded loaded = ProjectStore::load(fixture.folder());
    QVERIFY(!loaded.project);
    QCOMPARE(loaded.problems.size(), 1);
    const Problem& problem = loaded.problems.first();
    QCOMPARE(problem.severity, Problem::Severity::Error);
    QCOMPARE(problem.file, QStringLiteral("project.json"));
    QVERIFY2(problem.message.contains(message), qUtf8Printable(problem.message));
    QCOMPARE(fixture.read("project.json"), json);
}

void tst_ProjectLoading::aFolderWithoutProjectSaysSo()
{
    const ProjectFixture fixture;
    const auto message = [](const QString& folder) { return textOf(ProjectStore::load(folder).problems); };
    QVERIFY(message(fixture.folder()).contains(QLatin1String("there is no file \"project.json\" in it")));
    QVERIFY(message(fixture.path("nowhere")).contains(QLatin1String("nowhere: The folder does not exist")));
    fixture.write("file", "x");
    QVERIFY(message(fixture.folder() + QStringLiteral("/file")).contains(QLatin1String("this is a file")));
}

void tst_ProjectLoading::whatIsLeftOutTakesItsDefault()
{
    const ProjectFixture fixture;
    fixture.write("project.json", R"({"screens": ["main"], "formatVersion": 1})");
    fixture.write("screens/main.json", R"({"elements": [{"id": "a", "class": "AllTypes"}]})");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QCOMPARE(textOf(problems), QString());
    QCOMPARE(project->displaySize(), QSizeF(800, 480));
    QCOMPARE(project->screens().first()->size(), QSizeF(800, 480));
    QCOMPARE(valueOf(project->screens().first()->element(QStringLiteral("a")), "number"), QStringLiteral("1"));
    QVERIFY(!project->isModified());
}

void tst_ProjectLoading::screensAreReadWhenTheyAreNeeded()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main"), QStringLiteral("other")});
    fixture.writeScreen("main", R"({"class": "AllTypes", "id": "a"})");
    fixture.writeScreen("other");
    const auto loaded = ProjectStore::load(fixture.folder());
    Screen* screen = loaded.project->screen(QStringLiteral("main"));
    QVERIFY(!screen->isContentRead());
    QCOMPARE(screen->childList()->items().size(), 1);
    QVERIFY(screen->isContentRead());
    QVERIFY(!loaded.project->screen(QStringLiteral("other"))->isContentRead());
    QVERIFY(!loaded.project->isModified());
}

void tst_ProjectLoading::aScreenThatCannotBeReadIsShownAsSuchAndKept_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QByteArray& json, const char* message) {
        QTest::newRow(name) << json << QString::fromUtf8(message);
    };
    row("empty", "", "The file is empty.");
    row("truncated", "{\"class\": \"Screen\",\n\"elem", "Line 2: This is not JSON");
    row("not JSON", "hello", "Line 1: This is not JSON");
    row("a list", "[{}]", "must hold a JSON object");
    row("nested too deeply", QByteArray("{\"elements\":") + QByteArray(2000, '['), "too deeply nested");
    row("duplicate key", "{\"elements\": [{\"class\": \"AllTypes\", \"id\": \"a\",\n\"id\": \"b\"}]}",
        "Line 2: The key \"id\" stands here for the second time");
    row("merge conflict", "{\n<<<<<<< ours\n\"elements\": []\n=======\n>>>>>>> theirs\n}", "Line 2: A merge conflict");
    row("class of another object", R"({"class": "AllTypes", "elements": []})", "\"class\" must be \"Screen\"");
    row("elements of the wrong kind", R"({"elements": {}})", "\"elements\" must be a list, not an object");
    row("element of the wrong kind", R"({"elements": [{"class": "AllTypes", "id": "a"}, 3]})",
        "\"elements[1]\" must be an object, not a number");
    row("properties of the wrong kind", R"({"properties": 1})", "\"properties\" must be an object, not a number");
}

void tst_ProjectLoading::aScreenThatCannotBeReadIsShownAsSuchAndKept()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main"), QStringLiteral("other")});
    fixture.write("screens/main.json", json);
    fixture.writeScreen("other");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QVERIFY(project);
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().file, QStringLiteral("screens/main.json"));
    QCOMPARE(problems.first().object, QStringLiteral("main"));
    QVERIFY2(problems.first().message.contains(message), qUtf8Printable(problems.first().message));
    const Screen* screen = project->screen(QStringLiteral("main"));
    QVERIFY(!screen->contentError().isEmpty());
    QVERIFY(screen->childList()->items().isEmpty());

    addElement(project.get(), project->screen(QStringLiteral("other")));
    QString reason;
    QVERIFY2(ProjectStore::save(project.get(), fixture.folder(), &reason), qUtf8Printable(reason));
    QCOMPARE(fixture.read("screens/main.json"), json);
    QVERIFY2(ProjectStore::save(project.get(), fixture.path("copy"), &reason), qUtf8Printable(reason));
    QCOMPARE(readFile(fixture.path("copy/screens/main.json")), json);
}

void tst_ProjectLoading::aFaultInAScreenIsReportedAndMended_data()
{
    QTest::addColumn<QByteArray>("elements");
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("ids");
    const auto row = [](const char* name, const char* elements, const char* object, const char* message,
                        const QStringList& ids) {
        QTest::newRow(name) << QByteArray(elements) << QString::fromUtf8(object) << QString::fromUtf8(message) << ids;
    };
    const QString a = QStringLiteral("a");
    const QString made = QStringLiteral("allTypes1");
    row("id missing", R"({"class": "AllTypes"})", "main/allTypes1", "\"elements[0].id\" is missing.", {made});
    row("id of the wrong kind", R"({"class": "AllTypes", "id": 5})", "main/allTypes1",
        "\"elements[0].id\" must be a text, not a number.", {made});
    row("id empty", R"({"class": "AllTypes", "id": ""})", "main/allTypes1", "\"elements[0].id\" is \"\"", {made});
    row("id that is none", R"({"class": "AllTypes", "id": "has space"})", "main/allTypes1",
        "is \"has space\", which is no id", {made});
    row("reserved word", R"({"class": "AllTypes", "id": "function"})", "main/allTypes1", "which is no id", {made});
    row("id twice", R"({"class": "AllTypes", "id": "a"}, {"class": "AllTypes", "id": "a"})", "main/allTypes1",
        "The id \"a\" stands twice: at elements[0] and at elements[1].", {a, made});
    row("id twice, once in a group",
        R"({"class": "Group", "id": "g", "elements": [{"class": "AllTypes", "id": "a"}]}, {"class": "AllTypes", "id": "a"})",
        "main/allTypes1", "The id \"a\" stands twice: at elements[0].elements[0] and at elements[1].",
        {QStringLiteral("g"), made});
    row("id twice, once of an unknown class", R"({"class": "Hologram", "id": "a"}, {"class": "AllTypes", "id": "a"})",
        "main/allTypes1", "The id \"a\" stands twice", {a, made});
}

void tst_ProjectLoading::aFaultInAScreenIsReportedAndMended()
{
    QFETCH(QByteArray, elements);
    QFETCH(QString, object);
    QFETCH(QString, message);
    QFETCH(QStringList, ids);
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")});
    fixture.writeScreen("main", elements);
    const auto before = filesOf(fixture.folder());
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    const auto found = std::find_if(problems.cbegin(), problems.cend(), [&](const Problem& problem) {
        return problem.severity == Problem::Severity::Error && problem.file == QLatin1String("screens/main.json")
               && problem.object == object && problem.message.contains(message);
    });
    QVERIFY2(found != problems.cend(), qUtf8Printable(textOf(problems)));
    QStringList present;
    for (const DesignerObject* element : project->screens().first()->childList()->items())
        present.append(element->getIdName());
    QCOMPARE(present, ids);

    // Mended in memory only: a save that changes nothing leaves the file as it is.
    QVERIFY(!project->isModified());
    QString reason;
    QVERIFY(ProjectStore::save(project.get(), fixture.folder(), &reason));
    QCOMPARE(filesOf(fixture.folder()), before);
}

void tst_ProjectLoading::madeUpIdsNeverCollideWithLaterOnes()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")});
    fixture.writeScreen("main", R"({"class": "AllTypes"}, {"class": "AllTypes", "id": "allTypes1",
        "properties": {"text": "keeps its id"}}, {"class": "AllTypes"})");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QCOMPARE(problems.size(), 2);
    const Screen* screen = project->screens().first();
    QCOMPARE(valueOf(screen->element(QStringLiteral("allTypes1")), "text"), QStringLiteral("keeps its id"));
    QVERIFY(screen->element(QStringLiteral("allTypes2")));
    QVERIFY(screen->element(QStringLiteral("allTypes3")));
}

void tst_ProjectLoading::aListedScreenWithoutFileIsReported()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main"), QStringLiteral("gone"), QStringLiteral("main")});
    fixture.writeScreen("main");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QCOMPARE(project->screens().size(), 2);
    const QString text = textOf(problems);
    QVERIFY2(text.contains(QLatin1String("error: screens/gone.json: gone: The file of the screen is missing.")),
             qUtf8Printable(text));
    QVERIFY2(text.contains(QLatin1String("\"screens\" names \"main\" twice: at 0 and at 2.")), qUtf8Printable(text));
    QString reason;
    QVERIFY2(ProjectStore::save(project.get(), fixture.path("copy"), &reason), qUtf8Printable(reason));
    QVERIFY(!QFile::exists(fixture.path("copy/screens/gone.json")));
}

void tst_ProjectLoading::aFileThatIsNotListedIsReportedAndLeftAlone()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")});
    fixture.writeScreen("main");
    fixture.writeScreen("old");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().severity, Problem::Severity::Warning);
    QVERIFY(problems.first().text().startsWith(QLatin1String("screens/old.json: The file is not listed")));

    // A new screen of that name would overwrite it.
    auto screen = std::make_unique<Screen>();
    QVERIFY(screen->initialize() && screen->setIdName(QStringLiteral("old")));
    QVERIFY(project->addListItem(project->childList(), screen.release(), -1));
    QString reason;
    QVERIFY(!ProjectStore::save(project.get(), fixture.folder(), &reason));
    QVERIFY2(reason.contains(QLatin1String("screens/old.json: There is already a file of this name")),
             qUtf8Printable(reason));
}

void tst_ProjectLoading::unknownKeysOfTheProjectAreReported()
{
    const ProjectFixture fixture;
    fixture.writeProject({}, R"(, "author": "me", "notes": ["a", 1])");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QCOMPARE(problems.size(), 2);
    QCOMPARE(problems.first().severity, Problem::Severity::Warning);
    QVERIFY(problems.first().text().contains(QLatin1String("The key \"author\" is not known.")));
}

void tst_ProjectLoading::valuesThatAreNoTextsAreTakenAndReported()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")}, R"(, "extra": 1)");
    fixture.writeScreen("main", R"({"class": "AllTypes", "id": "a", "properties": {"number": 7, "real": 0.25,
        "text": true, "size": [5, 6], "color": null}})");
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    const DesignerObject* element = project->screens().first()->element(QStringLiteral("a"));
    QCOMPARE(valueOf(element, "number"), QStringLiteral("7"));
    QCOMPARE(valueOf(element, "real"), QStringLiteral("0.25"));
    QCOMPARE(valueOf(element, "text"), QStringLiteral("true"));
    QCOMPARE(valueOf(element, "size"), QStringLiteral("[5,6]"));
    QCOMPARE(valueOf(element, "color"), QStringLiteral("null"));
    const QString text = textOf(problems);
    QVERIFY2(
        text.contains(QLatin1String(
            "error: screens/main.json: main/a.size: \"elements[0].properties.size\" is a list; values are texts.")),
        qUtf8Printable(text));
}

void tst_ProjectLoading::linksOutOfTheFolderAreNotFollowed()
{
#ifdef Q_OS_UNIX
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main"), QStringLiteral("inside"), QStringLiteral("broken")});
    writeFile(fixture.path("secret.json"), R"({"class": "Screen", "id": "main", "elements": []})");
    QDir(fixture.folder()).mkdir(QStringLiteral("screens"));
    QVERIFY(QFile::link(fixture.path("secret.json"), fixture.folder() + QStringLiteral("/screens/main.json")));
    fixture.write("real.json", R"({"class": "Screen", "id": "inside"})");
    QVERIFY(QFile::link(QStringLiteral("../real.json"), fixture.folder() + QStringLiteral("/screens/inside.json")));
    QVERIFY(QFile::link(QStringLiteral("nothing"), fixture.folder() + QStringLiteral("/screens/broken.json")));
    QList<Problem> problems;
    const auto project = load(fixture.folder(), &problems);
    QCOMPARE(problems.size(), 2);
    QVERIFY(problems.at(0).text().contains(QLatin1String("leads out of the project's folder")));
    QVERIFY(problems.at(1).text().contains(QLatin1String("leads nowhere")));
    QVERIFY(project->screen(QStringLiteral("inside"))->contentError().isEmpty());

    // Nothing is written through a link either.
    const ProjectFixture other;
    other.writeProject({QStringLiteral("main")});
    QDir().mkpath(other.path("elsewhere"));
    QVERIFY(QFile::link(other.path("elsewhere"), other.folder() + QStringLiteral("/screens")));
    const auto second = load(other.folder());
    addElement(second.get(), second->screens().first());
    auto screen = std::make_unique<Screen>();
    QVERIFY(screen->initialize() && screen->setIdName(QStringLiteral("fresh")));
    QVERIFY(second->addListItem(second->childList(), screen.release(), -1));
    QString reason;
    QVERIFY(!ProjectStore::save(second.get(), other.folder(), &reason));
    QVERIFY2(reason.contains(QLatin1String("nothing is saved through it")), qUtf8Printable(reason));
    QVERIFY(QDir(other.path("elsewhere")).isEmpty());
#endif
}

void tst_ProjectLoading::specialFilesAreRefused()
{
#ifdef Q_OS_UNIX
    const ProjectFixture fixture;
    QCOMPARE(::mkfifo(QFile::encodeName(fixture.folder() + QStringLiteral("/project.json")).constData(), 0600), 0);
    const QString text = textOf(ProjectStore::load(fixture.folder()).problems);
    QVERIFY2(text.contains(QLatin1String("This is not a regular file.")), qUtf8Printable(text));

    const ProjectFixture other;
    other.write("project.json", MinimalProject);
    QVERIFY(QDir(other.folder()).mkpath(QStringLiteral("screens/main.json")));
    QVERIFY(ProjectStore::load(other.folder()).project);
#endif
}

QTEST_MAIN(tst_ProjectLoading)
#include "tst_ProjectLoading.moc"
