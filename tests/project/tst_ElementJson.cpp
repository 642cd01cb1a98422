#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ElementJson.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

class tst_ElementJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedValuesAndEditorStateAreWritten();
    void everyStoredPropertyIsWrittenAlsoAtItsDefault();
    void readingFillsInAnyOrderWithoutValidators();
    void unknownKeysComeBackAsTheyWere();
    void unknownClassesCarryTheirEntry_data();
    void unknownClassesCarryTheirEntry();
    void groupsCarryTheirElements();
    void aScreenCannotStandOnAScreen();
    void aRenamedUnknownElementIsWrittenWithItsNewId();

private:
    AllTypesFactory m_factory;
};

static QJsonObject parsed(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

void tst_ElementJson::storedValuesAndEditorStateAreWritten()
{
    AllTypesElement element;
    QVERIFY(element.initialize());
    QVERIFY(element.setIdName(QStringLiteral("lamp")));
    element.getProperty(QStringLiteral("keepRatio"))->fill(QStringLiteral("1.5"));
    element.getProperty(QStringLiteral("number"))->fill(QStringLiteral("twelve"));
    const QJsonObject entry = ElementJson::write(&element);
    QCOMPARE(entry.keys(), (QStringList{QStringLiteral("class"), QStringLiteral("editor"), QStringLiteral("id"),
                                        QStringLiteral("properties")}));
    QCOMPARE(entry[QLatin1String("class")].toString(), QStringLiteral("AllTypes"));
    QCOMPARE(entry[QLatin1String("id")].toString(), QStringLiteral("lamp"));
    QCOMPARE(entry[QLatin1String("editor")].toObject(), parsed(R"({"keepRatio": "1.5"})"));
    const QJsonObject properties = entry[QLatin1String("properties")].toObject();
    QCOMPARE(properties[QLatin1String("number")].toString(), QStringLiteral("twelve"));
    QCOMPARE(properties[QLatin1String("size")].toString(), QStringLiteral("20,10"));
    QVERIFY(!properties.contains(QLatin1String("boundingSize")));
    QVERIFY(!properties.contains(QLatin1String("hidden")));
    QVERIFY(properties.contains(QLatin1String("point"))); // stored, though it cannot be edited
}

void tst_ElementJson::everyStoredPropertyIsWrittenAlsoAtItsDefault()
{
    AllTypesElement element;
    QVERIFY(element.initialize());
    const QJsonObject properties = ElementJson::write(&element)[QLatin1String("properties")].toObject();
    for (const auto& property : element.properties())
        QCOMPARE(properties.contains(property->id()), property->hasFlag(Stored));
}

void tst_ElementJson::readingFillsInAnyOrderWithoutValidators()
{
    QList<Problem> problems;
    const auto element = ElementJson::read(parsed(R"({"properties": {"number": "500", "border": "nonsense",
        "boundingSize": "7,7", "color": "#123456", "target": "nobody"}, "id": "a", "class": "AllTypes"})"),
                                           &problems);
    QCOMPARE(element->className(), QStringLiteral("AllTypes"));
    QCOMPARE(valueOf(element.get(), "number"), QStringLiteral("500"));
    QCOMPARE(valueOf(element.get(), "border"), QStringLiteral("nonsense"));
    QVERIFY(!element->getProperty(QStringLiteral("border"))->isConverted());
    QCOMPARE(valueOf(element.get(), "boundingSize"), QStringLiteral("20,10"));
    QCOMPARE(valueOf(element.get(), "target"), QStringLiteral("nobody"));
    QCOMPARE(element->unknownKeys(), parsed(R"({"properties": {"boundingSize": "7,7"}})"));
    QCOMPARE(textOf(problems), QString());
}

void tst_ElementJson::unknownKeysComeBackAsTheyWere()
{
    const QJsonObject entry = parsed(R"({"class": "AllTypes", "id": "a", "locked": [true, null, 1.25, {"x": "y"}],
        "elements": [5], "properties": {"glow": {"deep": []}, "number": "3"}, "editor": {"fold": 1}})");
    const auto element = ElementJson::read(entry);
    const QJsonObject written = ElementJson::write(element.get());
    QCOMPARE(written[QLatin1String("locked")], entry[QLatin1String("locked")]);
    QCOMPARE(written[QLatin1String("elements")], entry[QLatin1String("elements")]);
    QCOMPARE(written[QLatin1String("properties")][QLatin1String("glow")],
             entry[QLatin1String("properties")][QLatin1String("glow")]);
    QCOMPARE(written[QLatin1String("properties")][QLatin1String("number")].toString(), QStringLiteral("3"));
    QCOMPARE(written[QLatin1String("editor")][QLatin1String("fold")].toInt(), 1);
    QCOMPARE(ElementJson::write(ElementJson::read(written).get()), written);
}

void tst_ElementJson::unknownClassesCarryTheirEntry_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* json, const char* problem) {
        QTest::newRow(name) << QByteArray(json) << QString::fromUtf8(problem);
    };
    row("class that nobody serves", R"({"class": "Hologram", "id": "a", "depth": 3, "elements": [{"id": "b"}]})", "");
    row("class missing", R"({"id": "a", "properties": {"x": "1"}})",
        "\"elements[0].class\" must be the name of a class");
    row("class of the wrong kind", R"({"class": 5, "id": "a"})", "must be the name of a class");
    row("abstract class", R"({"class": "VisualElement", "id": "a"})", "");
    row("properties of the wrong kind", R"({"class": "AllTypes", "id": "a", "properties": ["x"]})",
        "\"elements[0].properties\" must be an object, not a list");
    row("editor of the wrong kind", R"({"class": "AllTypes", "id": "a", "editor": "x"})",
        "\"elements[0].editor\" must be an object, not a text");
    row("elements of the wrong kind", R"({"class": "Group", "id": "a", "elements": {}})",
        "\"elements[0].elements\" must be a list, not an object");
    row("child of the wrong kind",
        R"({"class": "Group", "id": "a", "elements": [{"class": "AllTypes", "id": "b"}, null]})",
        "\"elements[0].elements[1]\" must be an object, not null");
}

void tst_ElementJson::unknownClassesCarryTheirEntry()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);
    QList<Problem> problems;
    const QJsonObject entry = parsed(json.constData());
    QVERIFY(!entry.isEmpty());
    const auto element = ElementJson::read(entry, &problems);
    QVERIFY(qobject_cast<UnknownElement*>(element.get()));
    QCOMPARE(ElementJson::write(element.get()), entry);
    QCOMPARE(problems.isEmpty(), problem.isEmpty());
    QVERIFY2(textOf(problems).contains(problem), qUtf8Printable(textOf(problems)));
}

void tst_ElementJson::groupsCarryTheirElements()
{
    const QJsonObject entry = parsed(R"({"class": "Group", "id": "g", "properties": {"position": "1,2"},
        "elements": [{"class": "AllTypes", "id": "a"}, {"class": "Group", "id": "h", "elements": [
        {"class": "AllTypes", "id": "b"}, {"class": "Hologram", "id": "c"}]}]})");
    const auto group = ElementJson::read(entry);
    QVERIFY(qobject_cast<Group*>(group.get()));
    const auto& items = group->childList()->items();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0)->getIdName(), QStringLiteral("a"));
    QCOMPARE(items.at(1)->childList()->items().at(1)->getIdName(), QStringLiteral("c"));
    const QJsonObject written = ElementJson::write(group.get());
    QCOMPARE(ElementJson::write(ElementJson::read(written).get()), written);
}

void tst_ElementJson::aScreenCannotStandOnAScreen()
{
    for (const char* json : {R"({"class": "Screen", "id": "a"})", R"({"class": "Project", "id": "a"})"})
        QVERIFY(qobject_cast<UnknownElement*>(ElementJson::read(parsed(json)).get()));
}

void tst_ElementJson::aRenamedUnknownElementIsWrittenWithItsNewId()
{
    const auto element = ElementJson::read(parsed(R"({"class": "Hologram", "id": "a", "depth": 3})"));
    QVERIFY(element->setIdName(QStringLiteral("b")));
    QCOMPARE(ElementJson::write(element.get()), parsed(R"({"class": "Hologram", "id": "b", "depth": 3})"));
}

QTEST_MAIN(tst_ElementJson)
#include "tst_ElementJson.moc"
