#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QFont>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

class tst_ProjectChecker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundProjectHasNoProblems();
    void everyKindOfFaultIsFound_data();
    void everyKindOfFaultIsFound();
    void unreadableScreensAndFaultyIdsAreFound();
    void elementsThatCannotBeMadeAreFound();
    void missingFilesAreFound();
    void theDisplayNeedsASize();
    void faultsThatWereMendedAreGone();
    void problemsAreTextsOfOneLine();

private:
    static QList<Problem> check(const ProjectFixture& fixture)
    {
        auto loaded = ProjectStore::load(fixture.folder());
        return loaded.project ? ProjectChecker::check(loaded.project.get()) : loaded.problems;
    }

    AllTypesFactory m_factory;
};

void tst_ProjectChecker::aSoundProjectHasNoProblems()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")});
    fixture.writeScreen("main", R"({"class": "AllTypes", "id": "a", "properties": {"target": "b"}},
        {"class": "AllTypes", "id": "b", "properties": {"position": "-19,-9"}},
        {"class": "AllTypes", "id": "corner", "properties": {"position": "202,50", "border": "width: 6; color: #000000;"}},
        {"class": "AllTypes", "id": "turned", "properties": {"position": "201,20", "size": "4,60", "rotation": "angle: 90; fixedPoint: Center;"}},
        {"class": "AllTypes", "id": "empty", "properties": {"size": "x", "position": "999,0"}})");
    const QList<Problem> problems = check(fixture);
    QCOMPARE(problems.size(), 1); // "x" is no size
    QCOMPARE(problems.first().object, QStringLiteral("main/empty"));
}

void tst_ProjectChecker::everyKindOfFaultIsFound_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QByteArray& element, const char* line) {
        QTest::newRow(name) << element << QString::fromUtf8(line);
    };
    const auto with = [](const char* properties) {
        return QByteArray(R"({"class": "AllTypes", "id": "a", "properties": {)") + properties + "}}";
    };
    row("value that does not convert", with(R"("size": "wide")"),
        "error: screens/main.json: main/a.size: \"wide\" is not a valid value for \"Size\".");
    row("editor state that does not convert", R"({"class": "AllTypes", "id": "a", "editor": {"keepRatio": "x"}})",
        "error: screens/main.json: main/a.keepRatio: \"x\" is not a valid value");
    row("value that a validator refuses", with(R"("number": "101")"),
        "error: screens/main.json: main/a.number: The number must not be above 100.");
    row("number below what can be entered", with(R"("real": "-0.5")"),
        "warning: screens/main.json: main/a.real: -0.5 is below 0, the smallest value that can be entered.");
    row("number above what can be entered", with(R"("real": "360")"),
        "warning: screens/main.json: main/a.real: 360 is above 359.99, the largest value that can be entered.");
    row("size below what can be entered", with(R"("size": "20,0.5")"),
        "warning: screens/main.json: main/a.size: 20,0.5 is smaller than 1,1, the smallest size");
    row("value that is unusual", with(R"("text": "0123456789012345678901234567890123456789!")"),
        "warning: screens/main.json: main/a.text: Is the text not too long?");
    row("link to nothing", with(R"("target": "nobody")"),
        "error: screens/main.json: main/a.target: \"nobody\" does not exist");
    row("link to an object of another class", with(R"("target": "box")"),
        "error: screens/main.json: main/a.target: \"box\" cannot be linked here.");
    row("link to an image that is not there", with(R"("image": "none.png")"),
        "error: screens/main.json: main/a.image: \"none.png\" does not exist");
    row("link to a listed image without file", with(R"("image": "listed.png")"),
        "error: screens/main.json: main/a.image: The image file \"images/listed.png\" is missing.");
    row("link that leads out", with(R"("image": "../x.png")"),
        "error: screens/main.json: main/a.image: \"../x.png\" is not a valid value");
    row("font that is missing", with(R"("font": "family: Nowhere Sans; pixelSize: 10;")"),
        "warning: screens/main.json: main/a.font: The font \"Nowhere Sans\" is neither in");
    row("element right of the screen", with(R"("position": "200,0")"),
        "warning: screens/main.json: main/a: The element lies outside of its screen");
    row("element above the screen", with(R"("position": "0,-10")"),
        "warning: screens/main.json: main/a: The element lies outside of its screen");
    row("element turned away from the screen",
        with(R"("position": "-1,50", "rotation": "angle: 180; fixedPoint: TopLeft;")"),
        "warning: screens/main.json: main/a: The element lies outside of its screen");
    row("element in a group off the screen",
        R"({"class": "Group", "id": "g", "properties": {"position": "500,0"}, "elements": [
            {"class": "AllTypes", "id": "a"}]})",
        "warning: screens/main.json: main/g: The element lies outside of its screen");
    row("class that nobody serves", R"({"class": "Hologram", "id": "a"})",
        "error: screens/main.json: main/a: No loaded plug-in serves the class \"Hologram\".");
    row("unknown property", with(R"("glow": "1")"),
        "warning: screens/main.json: main/a.glow: \"glow\" is not known below \"properties\" of the class \"AllTypes\".");
    row("unknown key", R"({"class": "AllTypes", "id": "a", "layer": 1})",
        "warning: screens/main.json: main/a: The key \"layer\" is not known.");
}

void tst_ProjectChecker::everyKindOfFaultIsFound()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, line);
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")}, R"(, "images": ["listed.png"])");
    fixture.writeScreen("main", R"({"class": "Group", "id": "box", "elements": []}, )" + element);
    const QStringList lines = textOf(check(fixture)).split(QLatin1Char('\n'));
    const auto found =
        std::count_if(lines.cbegin(), lines.cend(), [&line](const QString& text) { return text.startsWith(line); });
    QVERIFY2(found == 1, qUtf8Printable(lines.join(QLatin1Char('\n'))));
    // Of one fault there is one report; the other line is that of the listed file which is missing.
    QCOMPARE(lines.size(), 2);
}

void tst_ProjectChecker::unreadableScreensAndFaultyIdsAreFound()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main"), QStringLiteral("broken"), QStringLiteral("gone")});
    fixture.writeScreen("main", R"({"class": "AllTypes", "id": "a"}, {"class": "AllTypes", "id": "a"})");
    fixture.write("screens/broken.json", "{");
    const QString text = textOf(check(fixture));
    QVERIFY(text.contains(QLatin1String("error: screens/main.json: main/allTypes1: The id \"a\" stands twice")));
    QVERIFY(text.contains(QLatin1String("error: screens/broken.json: broken: Line 1: This is not JSON")));
    QVERIFY(text.contains(QLatin1String("error: screens/gone.json: gone: The file of the screen is missing.")));
    QCOMPARE(text.count(QLatin1Char('\n')), 2);
}

void tst_ProjectChecker::elementsThatCannotBeMadeAreFound()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")});
    fixture.writeScreen("main", R"({"class": "AllTypes", "id": "a", "properties": []}, {"id": "b"})");
    const QString text = textOf(check(fixture));
    QVERIFY(text.contains(QLatin1String("main/a: \"elements[0].properties\" must be an object, not a list.")));
    QVERIFY(text.contains(QLatin1String("main/b: \"elements[1].class\" must be the name of a class.")));
    QCOMPARE(text.count(QLatin1String("The element cannot be made from what the file says.")), 2);
}

void tst_ProjectChecker::missingFilesAreFound()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")}, R"(, "images": ["a.png"], "fonts": ["A.ttf", "B.ttf"])");
    fixture.writeScreen("main");
    fixture.write("fonts/B.ttf", "no font");
    const QString text = textOf(check(fixture));
    QVERIFY(text.contains(QLatin1String("warning: images/a.png: The file is missing.")));
    QVERIFY(text.contains(QLatin1String("warning: fonts/A.ttf: The file is missing.")));
    QVERIFY(text.contains(QLatin1String("warning: fonts/B.ttf: The file holds no font that can be used.")));
}

void tst_ProjectChecker::theDisplayNeedsASize()
{
    const ProjectFixture fixture;
    const auto textWith = [&fixture](const QByteArray& size) {
        fixture.write("project.json", "{\"formatVersion\": 1, \"screens\": [], \"displaySize\": \"" + size + "\"}");
        return textOf(check(fixture));
    };
    for (const char* size : {"0,100", "100,-1", "100000,100"}) {
        QVERIFY2(
            textWith(size).contains(QLatin1String("error: project.json: displaySize: The size of a display must be")),
            size);
    }
    QVERIFY(textWith("big").contains(QLatin1String("displaySize: \"big\" is not a valid value")));
    QCOMPARE(textWith("800,480"), QStringLiteral("warning: project.json: The project has no screen. Add one."));
}

void tst_ProjectChecker::faultsThatWereMendedAreGone()
{
    const ProjectFixture fixture;
    fixture.writeProject({QStringLiteral("main")});
    fixture.writeScreen("main", R"({"class": "AllTypes", "properties": {"number": "101"}})");
    const auto project = load(fixture.folder());
    QCOMPARE(ProjectChecker::check(project.get()).size(), 2);
    setValue(project->screens().first()->element(QStringLiteral("allTypes1")), "number", QStringLiteral("5"));
    QCOMPARE(ProjectChecker::check(project.get()).size(), 1);
    QString message;
    QVERIFY(ProjectStore::save(project.get(), fixture.folder(), &message));
    QCOMPARE(textOf(ProjectChecker::check(project.get())), QString());
}

void tst_ProjectChecker::problemsAreTextsOfOneLine()
{
    const auto text = [](const char* file, const char* object, const char* property) {
        return Problem::error(QString::fromUtf8(file), QString::fromUtf8(object), QString::fromUtf8(property),
                              QStringLiteral("It is\nwrong\t\x1b[31m."))
            .text();
    };
    const QString message = QStringLiteral("It is\\nwrong\\t\\u001b[31m.");
    QCOMPARE(text("a.json", "main/b", "c"), QStringLiteral("a.json: main/b.c: ") + message);
    QCOMPARE(text("a.json", "main", ""), QStringLiteral("a.json: main: ") + message);
    QCOMPARE(text("a.json", "", "c"), QStringLiteral("a.json: c: ") + message);
    QCOMPARE(text("", "", ""), message);
}

QTEST_MAIN(tst_ProjectChecker)
#include "tst_ProjectChecker.moc"
