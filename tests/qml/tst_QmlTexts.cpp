#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/qml/QmlExporter.h"
#include "host/core/values/ValueConversion.h"
#include "tests/project/ProjectTestSupport.h"
#include "tests/qml/QmlProbe.h"

#include <QFont>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Texts of a project stay texts: whatever they hold, a QML engine reads the very same values and runs none of it.
class tst_QmlTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hostileTextsStayTexts_data();
    void hostileTextsStayTexts();
    void anyTextIsReadBack();
    void numbersAreReadBack();
    void theDisplayIsReadBack();

private:
    /// The screen "main" of the export of \a project, as an engine reads it.
    std::unique_ptr<QmlProbe> readBack(Project* project, const char* file = "screens/main.qml");

    AllTypesFactory m_factory;
    QQmlEngine m_engine;
    QString m_error;
};

void tst_QmlTexts::initTestCase()
{
    for (const char* type : {"Screen", "AllTypes", "Group", "Display"})
        qmlRegisterType<QmlProbe>("Meridane.Display", 1, 0, type);
}

std::unique_ptr<QmlProbe> tst_QmlTexts::readBack(Project* project, const char* file)
{
    const ProjectFixture fixture;
    m_error = textOf(QmlExporter::exportProject(project, fixture.path("export")));
    if (!m_error.isEmpty())
        return nullptr;
    QQmlComponent component(&m_engine);
    component.setData(readFile(fixture.path("export/") + QString::fromUtf8(file)), QUrl());
    std::unique_ptr<QObject> object(component.create());
    m_error = component.errorString();
    return std::unique_ptr<QmlProbe>(qobject_cast<QmlProbe*>(object.release()));
}

void tst_QmlTexts::hostileTextsStayTexts_data()
{
    QTest::addColumn<QString>("text");
    const char* const texts[] = {"\"",
                                 "\\",
                                 "\\\"",
                                 "\"; Component.onCompleted: Qt.quit(); \"",
                                 "\" + (function() { throw 1 })() + \"",
                                 "\n}\nRectangle { color: \"red\" }",
                                 "// no comment",
                                 "/* none */",
                                 "${1 + 1}",
                                 "`1`",
                                 "'",
                                 "\\u0022",
                                 "\\n",
                                 "%1 %2 %%1",
                                 "<b>bold</b>",
                                 "&amp;",
                                 "\xe2\x80\xa8\xe2\x80\xa9",
                                 "\xef\xbb\xbf",
                                 "\x01\x1f\x7f",
                                 "\xf0\x9f\x98\x80",
                                 "id: x",
                                 "qsTr(\"x\")",
                                 " ",
                                 "true",
                                 "0"};
    int number = 0;
    for (const char* text : texts)
        QTest::newRow(qPrintable(QString::number(++number))) << QString::fromUtf8(text);
    QTest::newRow("NUL") << QString(QChar(0)) + QStringLiteral("1");
    QTest::newRow("lone surrogate") << QString(QChar(0xd800)) + QStringLiteral("x") + QChar(0xdc00);
    QTest::newRow("noncharacters") << QString(QChar(0xfffe)) + QChar(0xffff) + QChar(0xfdd0);
    QTest::newRow("line breaks of all kinds") << QStringLiteral("a\rb\r\nc\nd\u0085e\u000bf\u000cg");
}

void tst_QmlTexts::hostileTextsStayTexts()
{
    QFETCH(QString, text);
    auto project = ProjectStore::create(text, QSizeF(100, 100));
    DesignerObject* element = addElement(project.get(), project->screens().first());
    setValue(project->screens().first(), "name", text);
    setValue(element, "text", text);
    setValue(element, "hidden", text);
    QFont font;
    font.setFamilies({text});
    font.setPixelSize(10);
    setValue(element, "font", ValueConversion::toString(font));
    const auto screen = readBack(project.get());
    QVERIFY2(screen, qUtf8Printable(m_error));
    QCOMPARE(screen->childCount(), 1);
    QCOMPARE(screen->child(0)->text, text);
    QCOMPARE(screen->child(0)->hidden, text);
    if (element->getProperty(QStringLiteral("font"))->isConverted())
        QCOMPARE(screen->child(0)->family, ValueConversion::toFont(valueOf(element, "font")).family());

    // As values of other types they do not convert and must leave no trace.
    for (const char* property :
         {"size", "color", "border", "number", "real", "points", "style", "rotation", "position"})
        element->getProperty(QString::fromUtf8(property))->fill(text + QLatin1Char('!'));
    const auto inert = readBack(project.get());
    QVERIFY2(inert, qUtf8Printable(m_error));
    QCOMPARE(inert->child(0)->color, QString());
    QCOMPARE(inert->child(0)->text, text);
}

void tst_QmlTexts::anyTextIsReadBack()
{
    QVERIFY(rc::check("texts, families and file names come back as they were", [this] {
        const auto anyText = [] {
            return QString::fromStdU16String(*rc::gen::container<std::u16string>(
                rc::gen::oneOf(rc::gen::element<char16_t>(u'"', u'\\', u'\n', u'\r', u'{', u'}', u'$', u'/', u'*', u'`',
                                                          u'\'', u'%', u'u', u'0', u'\u2028', u'\ufeff'),
                               rc::gen::arbitrary<char16_t>())));
        };
        auto project = ProjectStore::create(QStringLiteral("Test"), QSizeF(100, 100));
        DesignerObject* element = addElement(project.get(), project->screens().first());
        const QString text = anyText();
        setValue(element, "text", text);
        setValue(element, "hidden", anyText());
        const QString image = anyText() + QStringLiteral(".png");
        if (ObjectLinkInfo(image).isValid() && image.size() < 60) {
            writeFile(project->imagesPath() + QLatin1Char('/') + image, "not looked at");
            if (QFile::exists(project->imagesPath() + QLatin1Char('/') + image)) {
                project->setImageResources({image});
                setValue(element, "image", image);
                RC_ASSERT(valueOf(element, "image") == image);
            }
        }
        const auto screen = readBack(project.get());
        if (!screen)
            RC_FAIL(m_error.toStdString());
        RC_ASSERT(screen->child(0)->text == text);
        RC_ASSERT(screen->child(0)->hidden == valueOf(element, "hidden"));
        RC_ASSERT(screen->child(0)->image == valueOf(element, "image"));
    }));
}

void tst_QmlTexts::numbersAreReadBack()
{
    QVERIFY(rc::check("numbers come back to four decimals", [this] {
        auto project = ProjectStore::create(QStringLiteral("Test"), QSizeF(100, 100));
        DesignerObject* element = addElement(project.get(), project->screens().first());
        const double x = *rc::gen::inRange(-1000000, 1000000) / 10000.0;
        const double y = *rc::gen::inRange(-1000000, 1000000) * 10000.0;
        const double real = *rc::gen::inRange(-100000, 100000) / 1e9;
        setValue(element, "position", ValueConversion::toString(QPointF(x, y)));
        setValue(element, "real", ValueConversion::toString(real));
        setValue(element, "points", ValueConversion::toString(QPolygonF{{x, y}, {y, x}}));
        const auto screen = readBack(project.get());
        if (!screen)
            RC_FAIL(m_error.toStdString());
        RC_ASSERT(screen->child(0)->x == x);
        RC_ASSERT(screen->child(0)->y == y);
        RC_ASSERT(std::abs(screen->child(0)->real - real) <= 0.00005);
    }));
}

void tst_QmlTexts::theDisplayIsReadBack()
{
    auto project = ProjectStore::create(QStringLiteral("Test"), QSizeF(100.5, 60));
    auto second = std::make_unique<Screen>();
    QVERIFY(second->initialize() && second->setIdName(QStringLiteral("other")));
    QVERIFY(project->addListItem(project->childList(), second.release(), -1));
    const auto display = readBack(project.get(), "Main.qml");
    QVERIFY2(display, qUtf8Printable(m_error));
    QCOMPARE(display->width, 100.5);
    QCOMPARE(display->height, 60);
    QCOMPARE(display->screens.value<QJSValue>().toVariant().toStringList(),
             (QStringList{QStringLiteral("main"), QStringLiteral("other")}));
}

QTEST_MAIN(tst_QmlTexts)
#include "tst_QmlTexts.moc"
