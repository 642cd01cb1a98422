#include <QFontDatabase>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
const QByteArray Main = "import Meridane.Display\n\nDisplay {\n\twidth: 800\n\theight: 480\n"
                        "\tscreens: [ \"main\", \"settings\" ]\n}\n";
const QByteArray Settings = "import Meridane.Display\n\nScreen {\n\tid: settings\n\tcolor: \"#202020\"\n}\n";
const QByteArray FirstScreen = "import Meridane.Display\n\nScreen {\n\tid: main\n\tcolor: \"#00ff00\"\n"
                               "\tRectangle2 {\n\t\tid: rectangle1\n\t\twidth: 100\n\t\theight: 75\n\t}\n}\n";
} // namespace

class TestDisplayRoot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void firstScreenIsShown();
    void screensFollowEachOther();
    void initialScreenIsShownAtOnce();
    void unknownScreenIsRefused();
    void unknownInitialScreenIsReported();
    void namesHoldNoPath();
    void brokenScreenIsReported();
    void removedScreenGivesWayToTheFirst();
    void screenWithBlanksAndPercentSigns();
    void screenClipsItsChildren();
    void screenHasItsDefaults();
    void fontsOfTheExportAreKnown();
    void brokenFontIsReported();

private:
    void write(const QString& name, const QByteArray& text) const;
    std::unique_ptr<QQuickItem> create(const QVariantMap& properties = {});

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QQmlEngine> m_engine;
    QStringList m_warnings;
};

void TestDisplayRoot::initTestCase()
{
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
}

void TestDisplayRoot::init()
{
    m_warnings.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("screens")));
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->setOutputWarningsToStandardError(false);
    m_engine->addImportPath(QCoreApplication::applicationDirPath() + QLatin1String("/../qml"));
    connect(m_engine.get(), &QQmlEngine::warnings, this, [this](const QList<QQmlError>& warnings) {
        for (const QQmlError& warning : warnings) {
            m_warnings.append(warning.toString());
        }
    });
    write(QStringLiteral("Main.qml"), Main);
    write(QStringLiteral("screens/main.qml"), FirstScreen);
    write(QStringLiteral("screens/settings.qml"), Settings);
}

void TestDisplayRoot::write(const QString& name, const QByteArray& text) const
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

std::unique_ptr<QQuickItem> TestDisplayRoot::create(const QVariantMap& properties)
{
    QQmlComponent component(m_engine.get(), QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("Main.qml"))));
    QObject* object = component.createWithInitialProperties(properties);
    if (!object) {
        qWarning("%s", qPrintable(component.errorString()));
    }
    return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem*>(object));
}

void TestDisplayRoot::firstScreenIsShown()
{
    const auto display = create();
    QVERIFY(display);
    QCOMPARE(display->size(), QSizeF(800, 480));
    QCOMPARE(display->property("currentScreen").toString(), QStringLiteral("main"));
    QCOMPARE(display->childItems().size(), 1);
    const QQuickItem* screen = display->childItems().constFirst();
    QCOMPARE(screen->property("color").value<QColor>(), QColor(0, 255, 0));
    QCOMPARE(screen->size(), QSizeF(800, 480));
    QVERIFY(m_warnings.isEmpty());
}

void TestDisplayRoot::screensFollowEachOther()
{
    const auto display = create();
    QVERIFY(display);
    QSignalSpy changed(display.get(), SIGNAL(currentScreenChanged()));
    display->setProperty("currentScreen", QStringLiteral("settings"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(display->childItems().size(), 1);
    QCOMPARE(display->childItems().constFirst()->property("color").value<QColor>(), QColor(0x20, 0x20, 0x20));
    display->setProperty("currentScreen", QStringLiteral("main"));
    QCOMPARE(display->childItems().constFirst()->property("color").value<QColor>(), QColor(0, 255, 0));
    QVERIFY(m_warnings.isEmpty());
}

void TestDisplayRoot::initialScreenIsShownAtOnce()
{
    // The first screen is not even loaded.
    write(QStringLiteral("screens/main.qml"), "broken");
    const auto display = create({{QStringLiteral("currentScreen"), QStringLiteral("settings")}});
    QVERIFY(display);
    QCOMPARE(display->childItems().constFirst()->property("color").value<QColor>(), QColor(0x20, 0x20, 0x20));
    QVERIFY(m_warnings.isEmpty());
}

void TestDisplayRoot::unknownScreenIsRefused()
{
    const auto display = create();
    QVERIFY(display);
    display->setProperty("currentScreen", QStringLiteral("nowhere"));
    QCOMPARE(display->property("currentScreen").toString(), QStringLiteral("main"));
    QCOMPARE(display->childItems().size(), 1);
    QCOMPARE(m_warnings.size(), 1);
    QVERIFY(m_warnings.constFirst().contains(QLatin1String("there is no screen \"nowhere\"")));
}

void TestDisplayRoot::unknownInitialScreenIsReported()
{
    const auto display = create({{QStringLiteral("currentScreen"), QStringLiteral("nowhere")}});
    QVERIFY(display);
    QCOMPARE(display->property("currentScreen").toString(), QStringLiteral("main"));
    QCOMPARE(m_warnings.size(), 1);
}

void TestDisplayRoot::namesHoldNoPath()
{
    write(QStringLiteral("outside.qml"), Settings);
    for (const char* name : {"../outside", "..\\\\outside", "..", ".hidden", "/etc/outside"}) {
        m_warnings.clear();
        write(QStringLiteral("Main.qml"), QByteArray(Main).replace("main", name));
        m_engine->clearComponentCache();
        const auto display = create();
        QVERIFY(display);
        QVERIFY(display->childItems().isEmpty());
        QCOMPARE(m_warnings.size(), 1);
        QVERIFY(m_warnings.constFirst().contains(QLatin1String("is no name of a screen")));
    }
}

void TestDisplayRoot::brokenScreenIsReported()
{
    write(QStringLiteral("screens/settings.qml"), "import Meridane.Display\nScreen { nothing: 1 }\n");
    const auto display = create();
    QVERIFY(display);
    display->setProperty("currentScreen", QStringLiteral("settings"));
    QVERIFY(display->childItems().isEmpty());
    const QString warnings = m_warnings.join(QLatin1Char('\n'));
    QVERIFY(warnings.contains(QLatin1String("the screen \"settings\" cannot be loaded")));
    QVERIFY(warnings.contains(QLatin1String("screens/settings.qml:2")));
    m_warnings.clear();
    display->setProperty("currentScreen", QStringLiteral("main"));
    QCOMPARE(display->childItems().size(), 1);
    QVERIFY(m_warnings.isEmpty());
}

void TestDisplayRoot::removedScreenGivesWayToTheFirst()
{
    const auto display = create({{QStringLiteral("currentScreen"), QStringLiteral("settings")}});
    QVERIFY(display);
    display->setProperty("screens", QStringList{QStringLiteral("main")});
    QCOMPARE(display->property("currentScreen").toString(), QStringLiteral("main"));
    QCOMPARE(display->childItems().constFirst()->property("color").value<QColor>(), QColor(0, 255, 0));
    display->setProperty("screens", QStringList());
    QVERIFY(display->childItems().isEmpty());
}

void TestDisplayRoot::screenWithBlanksAndPercentSigns()
{
    write(QStringLiteral("Main.qml"), QByteArray(Main).replace("main", "Küche 100%?#"));
    write(QString::fromUtf8("screens/Küche 100%?#.qml"), Settings);
    const auto display = create();
    QVERIFY(display);
    QCOMPARE(display->childItems().size(), 1);
    QVERIFY2(m_warnings.isEmpty(), qPrintable(m_warnings.join(QLatin1Char('\n'))));
}

void TestDisplayRoot::screenClipsItsChildren()
{
    const auto display = create();
    QVERIFY(display);
    QVERIFY(display->childItems().constFirst()->clip());
}

void TestDisplayRoot::screenHasItsDefaults()
{
    QQmlComponent component(m_engine.get());
    component.setData("import Meridane.Display\nScreen { }\n", QUrl());
    const std::unique_ptr<QObject> screen(component.create());
    QVERIFY(screen);
    QCOMPARE(screen->property("width").toDouble(), 800.0);
    QCOMPARE(screen->property("height").toDouble(), 480.0);
    QCOMPARE(screen->property("color").value<QColor>(), QColor(Qt::white));
}

void TestDisplayRoot::fontsOfTheExportAreKnown()
{
    const QString source = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    if (!QFile::exists(source)) {
        QSKIP("no font file is at hand");
    }
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("fonts")));
    const QString copy = m_folder->filePath(QStringLiteral("fonts/copy.ttf"));
    QVERIFY(QFile::copy(source, copy));
    // Fonts are numbered as they come: the display added one, and only once.
    const int before = QFontDatabase::addApplicationFont(source);
    QVERIFY(create());
    QCOMPARE(QFontDatabase::addApplicationFont(source), before + 2);
    QVERIFY(create());
    QCOMPARE(QFontDatabase::addApplicationFont(source), before + 3);
    QVERIFY(m_warnings.isEmpty());
}

void TestDisplayRoot::brokenFontIsReported()
{
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("fonts")));
    write(QStringLiteral("fonts/broken.ttf"), "no font");
    QVERIFY(create());
    QCOMPARE(m_warnings.size(), 1);
    QVERIFY(m_warnings.constFirst().contains(QLatin1String("broken.ttf cannot be loaded")));
}

QTEST_MAIN(TestDisplayRoot)
#include "tst_DisplayRoot.moc"
