#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/qml/QmlExporter.h"
#include "tests/project/ProjectTestSupport.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// What an export consists of.
class tst_QmlExporter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<ProjectFixture>(); }

    void mainNamesTheDisplayAndItsScreens();
    void aScreenIsWrittenWithItsElements();
    void aProjectWithoutScreensIsExported();
    void theSameProjectGivesTheSameBytes();
    void onlyImagesInUseAreCopied();
    void onlyFontFilesInUseAreCopied();
    void inertValuesNeedNoFile();
    void whatTheDisplayWouldLackIsRefused_data();
    void whatTheDisplayWouldLackIsRefused();
    void imagesOutsideOfTheProjectAreRefused();
    void aDisplayWithoutSizeIsRefused();

private:
    QString target() const { return m_fixture->path("export"); }
    QString exported(Project* project) const { return textOf(QmlExporter::exportProject(project, target())); }
    QString exported() const { return exported(ProjectStore::load(m_fixture->folder()).project.get()); }
    QByteArray file(const char* name) const { return readFile(target() + QLatin1Char('/') + QString::fromUtf8(name)); }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
};

void tst_QmlExporter::mainNamesTheDisplayAndItsScreens()
{
    m_fixture->write("project.json",
                     R"({"formatVersion": 1, "displaySize": "800,480", "screens": ["main", "settings"]})");
    m_fixture->writeScreen("main");
    m_fixture->writeScreen("settings");
    QCOMPARE(exported(), QString());
    QCOMPARE(file("Main.qml"),
             QByteArray("import Meridane.Display\n\nDisplay {\n\twidth: 800\n\theight: 480\n\tscreens: "
                        "[ \"main\", \"settings\" ]\n}\n"));
    QCOMPARE(filesOf(target()).keys(),
             (QStringList{QStringLiteral(".meridane-export"), QStringLiteral("Main.qml"),
                          QStringLiteral("screens/main.qml"), QStringLiteral("screens/settings.qml")}));
}

void tst_QmlExporter::aScreenIsWrittenWithItsElements()
{
    m_fixture->writeProject({QStringLiteral("main")});
    m_fixture->writeScreen("main", R"({"class": "Group", "id": "pair", "properties": {"position": "5,6"}, "elements": [
        {"class": "AllTypes", "id": "lamp", "properties": {"text": "\"on\""}}]})");
    QCOMPARE(exported(), QString());
    const QByteArray qml = file("screens/main.qml");
    QVERIFY2(qml.startsWith("import Meridane.Display\n\nScreen {\n\twidth: 200\n\theight: 100\n"), qml.constData());
    QVERIFY2(qml.contains("\n\tGroup {\n\t\tid: pair\n\t\tx: 5\n\t\ty: 6\n"), qml.constData());
    QVERIFY2(qml.contains("\n\t\tAllTypes {\n\t\t\tid: lamp\n"), qml.constData());
    QVERIFY2(qml.contains("\n\t\t\ttext: \"\\\"on\\\"\"\n"), qml.constData());
    QVERIFY2(qml.endsWith("\n}\n") && !qml.contains('\r'), qml.constData());
}

void tst_QmlExporter::aProjectWithoutScreensIsExported()
{
    m_fixture->writeProject({});
    QCOMPARE(exported(), QString());
    QVERIFY(file("Main.qml").contains("\tscreens: []\n"));
}

void tst_QmlExporter::theSameProjectGivesTheSameBytes()
{
    m_fixture->writeProject({QStringLiteral("main")});
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp"})");
    QCOMPARE(exported(), QString());
    const auto first = filesOf(target());
    QCOMPARE(exported(), QString());
    QCOMPARE(filesOf(target()), first);
    // The list of files is in the form of sha256sum.
    QByteArray list;
    for (auto file = first.cbegin(); file != first.cend(); ++file) {
        if (file.key() != QLatin1String(".meridane-export")) {
            list += QCryptographicHash::hash(file.value(), QCryptographicHash::Sha256).toHex() + "  "
                    + file.key().toUtf8() + '\n';
        }
    }
    QCOMPARE(first.value(QStringLiteral(".meridane-export")), list);
}

void tst_QmlExporter::onlyImagesInUseAreCopied()
{
    m_fixture->writeProject({QStringLiteral("main")}, R"(, "images": ["used.png", "unused.png"])");
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "a", "properties": {"image": "used.png"}},
        {"class": "AllTypes", "id": "b", "properties": {"image": "used.png"}})");
    m_fixture->write("images/used.png", QByteArray("\0\r\n\xff", 4));
    m_fixture->write("images/unused.png", "y");
    QCOMPARE(exported(), QString());
    QCOMPARE(file("images/used.png"), QByteArray("\0\r\n\xff", 4));
    QVERIFY(!QFile::exists(target() + QStringLiteral("/images/unused.png")));
    QCOMPARE(file("screens/main.qml").count("image: \"used.png\""), 2);
}

void tst_QmlExporter::onlyFontFilesInUseAreCopied()
{
    // Any installed font file will do, and as the project's own it is exported although the machine has it too.
    const QByteArray font = readFile(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"));
    const QByteArray other = readFile(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf"));
    QVERIFY2(!font.isEmpty() && !other.isEmpty(), "the fonts DejaVu Sans and DejaVu Sans Mono are not installed");
    m_fixture->writeProject({QStringLiteral("main")}, R"(, "fonts": ["Own.ttf", "Other.ttf"])");
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "a",
        "properties": {"font": "family: DejaVu Sans; pixelSize: 9;"}})");
    m_fixture->write("fonts/Own.ttf", font);
    m_fixture->write("fonts/Other.ttf", other);
    QCOMPARE(exported(), QString());
    QVERIFY(file("fonts/Own.ttf") == font);
    QVERIFY(!QFile::exists(target() + QStringLiteral("/fonts/Other.ttf")));
}

void tst_QmlExporter::inertValuesNeedNoFile()
{
    m_fixture->writeProject({QStringLiteral("main")});
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "a", "properties": {"image": "../secret.png",
        "color": "red; }", "number": "x", "size": "wide"}})");
    QCOMPARE(exported(), QString());
    const QByteArray qml = file("screens/main.qml");
    for (const char* text : {"secret", "red", "image:", "color: \"red", "number:"})
        QVERIFY2(!qml.contains(text), qml.constData());
}

void tst_QmlExporter::whatTheDisplayWouldLackIsRefused_data()
{
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QString>("message");
    const auto screen = [](const char* elements) {
        return QByteArray(R"({"class": "Screen", "id": "main", "elements": [)") + elements + "]}";
    };
    QTest::newRow("unknown class") << screen(R"({"class": "Hologram", "id": "ghost"})")
                                   << "error: screens/main.json: main/ghost: No loaded plug-in serves the class";
    QTest::newRow("unknown class in a group")
        << screen(R"({"class": "Group", "id": "g", "elements": [{"class": "Hologram", "id": "ghost"}]})")
        << "error: screens/main.json: main/ghost: No loaded plug-in serves the class";
    QTest::newRow("missing image") << screen(R"({"class": "AllTypes", "id": "a", "properties": {"image": "no.png"}})")
                                   << "error: screens/main.json: main/a.image: The image file \"images/no.png\" is "
                                      "missing.";
    QTest::newRow("unreadable screen") << QByteArray("{") << "error: screens/main.json: main: Line 1: This is not JSON";
}

void tst_QmlExporter::whatTheDisplayWouldLackIsRefused()
{
    QFETCH(QByteArray, screen);
    QFETCH(QString, message);
    m_fixture->writeProject({QStringLiteral("main"), QStringLiteral("other")});
    m_fixture->write("screens/main.json", screen);
    m_fixture->writeScreen("other");
    const QString text = exported();
    QVERIFY2(text.startsWith(message), qUtf8Printable(text));
    QVERIFY(!QFile::exists(target()));
}

void tst_QmlExporter::imagesOutsideOfTheProjectAreRefused()
{
#ifdef Q_OS_UNIX
    m_fixture->writeProject({QStringLiteral("main")}, R"(, "images": ["a.png"])");
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "a", "properties": {"image": "a.png"}})");
    writeFile(m_fixture->path("secret"), "secret");
    QDir(m_fixture->folder()).mkdir(QStringLiteral("images"));
    QVERIFY(QFile::link(m_fixture->path("secret"), m_fixture->folder() + QStringLiteral("/images/a.png")));
    const QString text = exported();
    QVERIFY2(text.contains(QLatin1String("leads out of the project's folder")), qUtf8Printable(text));
    QVERIFY(!QFile::exists(target()));
#endif
}

void tst_QmlExporter::aDisplayWithoutSizeIsRefused()
{
    m_fixture->write("project.json", R"({"formatVersion": 1, "displaySize": "big", "screens": []})");
    const QString text = exported();
    QVERIFY2(text.startsWith(QLatin1String("error: project.json: displaySize: Give the display")),
             qUtf8Printable(text));
}

QTEST_MAIN(tst_QmlExporter)
#include "tst_QmlExporter.moc"
