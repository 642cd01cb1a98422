#include "host/common/DrawingCheck.h"

#include "tests/support/CpuTime.h"
#include "tests/support/SamplePictures.h"

#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

namespace {
constexpr QSize Size(40, 30);

QByteArray drawing(const QByteArray& content)
{
    return SamplePictures::drawing(Size, content);
}

/** @p drawing with a document type of these declarations. */
QByteArray declaring(const QByteArray& declarations, const QByteArray& content)
{
    return "<!DOCTYPE svg [" + declarations + "]>" + drawing(content);
}

QByteArray imageOf(const QByteArray& reference)
{
    return "<image width=\"9\" height=\"9\" xlink:href=\"" + reference + "\"/>";
}

QByteArray embedded(const QByteArray& picture)
{
    return imageOf("data:image/png;base64," + picture.toBase64());
}

/** Groups that each use the one before @p fan times, with nothing but a rectangle in the first one. */
QByteArray multiplied(int levels, int fan, const QByteArray& attribute = "xlink:href=\"#g")
{
    QByteArray content = "<g id=\"g0\"><rect width=\"1\" height=\"1\"/></g>";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray use = "<use " + attribute + QByteArray::number(level - 1) + "\"/>";
        content += "<g id=\"g" + QByteArray::number(level) + "\">" + use.repeated(fan) + "</g>";
    }
    return drawing(content);
}

/** What multiplied() comes to. */
qint64 elementsOfMultiplied(int levels, int fan)
{
    qint64 group = 2;
    qint64 all = 1 + group;
    for (int level = 1; level <= levels; ++level) {
        group = 1 + fan * (1 + group);
        all += group;
    }
    return all;
}

QByteArray nested(int levels)
{
    return QByteArray("<g>").repeated(levels) + QByteArray("</g>").repeated(levels);
}

QByteArray styleSheet(const QByteArray& rule, int count)
{
    QByteArray rules;
    for (int i = 0; i < count; ++i)
        rules += QByteArray(rule).replace("%1", QByteArray::number(i));
    return "<style>" + rules + "</style>";
}

QByteArray attributes(int count)
{
    QByteArray list;
    for (int i = 0; i < count; ++i)
        list += " a" + QByteArray::number(i) + "=\"1\"";
    return list;
}
} // namespace

class TestDrawingCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void harmlessDrawingsAreTaken_data();
    void harmlessDrawingsAreTaken();
    void harmfulDrawingsAreRefusedAtOnce_data();
    void harmfulDrawingsAreRefusedAtOnce();
    void referencesAreCountedExactly();
    void noContentCrashesTheCheck();
};

void TestDrawingCheck::harmlessDrawingsAreTaken_data()
{
    QTest::addColumn<QByteArray>("svg");
    const auto row = [](const char* name, const QByteArray& svg) { QTest::newRow(name) << svg; };
    row("shapes", SamplePictures::drawnQuarters(Size));
    row("nothing in it", drawing({}));
    row("without a namespace", "<svg width=\"4\" height=\"4\"><rect width=\"4\" height=\"4\"/></svg>");
    row("a prefix that nobody declares", "<svg><use xlink:href=\"#a\"/><g id=\"a\" inkscape:label=\"b\"/></svg>");
    row("prefixes everywhere", "<svg:svg xmlns:svg=\"http://www.w3.org/2000/svg\"><svg:rect/></svg:svg>");
    row("with declaration, comment and type", "<?xml version=\"1.0\"?><!-- it's <b> --><!DOCTYPE svg PUBLIC "
                                              "\"-//W3C//DTD SVG 1.1//EN\" \"svg11.dtd\">"
                                                  + drawing("<rect/>"));
    row("names of a drawing program", declaring("<!ENTITY ns \"http://ns.example.com/\">", "<g xmlns:x=\"&ns;\"/>"));
    row("an entity in a text", declaring("<!ENTITY a \"hello\">", "<text>&a; &a;</text>"));
    row("used twice", drawing("<g id=\"a\"><rect/></g><use xlink:href=\"#a\"/><use href=\"#a\"/>"));
    row("used before it is there", drawing("<use xlink:href=\"#a\"/><g id=\"a\"><rect/></g>"));
    row("nothing under that name", drawing("<use xlink:href=\"#nobody\"/>"));
    row("an empty reference", drawing("<use xlink:href=\"\"/>" + imageOf("")));
    row("two elements of one name", drawing("<g id=\"a\"/><g id=\"a\"/><use xlink:href=\"#a\"/>"));
    row("gradients that build on each other",
        drawing("<linearGradient id=\"a\"><stop/></linearGradient><linearGradient id=\"b\" xlink:href=\"#a\"/>"
                "<rect fill=\"url(#b)\"/>"));
    row("a link to another site", drawing("<a xlink:href=\"https://example.com/\"><rect/></a>"));
    row("a link to itself", drawing("<a id=\"a\" xlink:href=\"#a\"><rect/></a>"));
    row("an animation of what it stands in", drawing("<g id=\"a\"><animate xlink:href=\"#a\"/></g>"));
    row("a small picture", drawing(embedded(SamplePictures::quarters(QSize(8, 6), "png"))));
    row("a JPEG picture", drawing(embedded(SamplePictures::quarters(QSize(8, 6), "jpg"))));
    row("a script with many assignments",
        drawing("<script><![CDATA[" + QByteArray("a = b;").repeated(2000) + "]]></script>"));
    row("a style", drawing(styleSheet(".c%1 { fill: red }", 200) + QByteArray("<rect class=\"c1\"/>").repeated(500)));
    row("a long description", drawing("<metadata>" + QByteArray("word ").repeated(20000) + "</metadata>"));
    row("200 levels", drawing(nested(199)));
    row("300 attributes", drawing("<rect" + attributes(300) + "/>"));
    row("1000 colours", drawing("<linearGradient>" + QByteArray("<stop/>").repeated(1000) + "</linearGradient>"));
    row("many elements", drawing(QByteArray("<rect/>").repeated(99000)));
    row("a long path", drawing("<path d=\"" + QByteArray("M0 0L1 1").repeated(100000) + "\"/>"));
    row("a page of text", drawing("<text>" + QByteArray("word ").repeated(1000) + "</text>"));
}

void TestDrawingCheck::harmlessDrawingsAreTaken()
{
    QFETCH(QByteArray, svg);
    QString reason = QStringLiteral("something");
    QVERIFY2(isHarmlessDrawing(svg, &reason), qPrintable(reason));
    QCOMPARE(reason, QString());
    QVERIFY(isHarmlessDrawing(svg));
}

void TestDrawingCheck::harmfulDrawingsAreRefusedAtOnce_data()
{
    QTest::addColumn<QByteArray>("svg");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& svg, const char* reason) {
        QTest::newRow(name) << svg << QString::fromLatin1(reason);
    };
    // What is no drawing.
    row("empty", "", "");
    row("no XML", "hello", "");
    row("cut off", drawing("<g>").chopped(10), "");
    row("packed", QByteArray::fromHex("1f8b0800000000000203b3292e4bb7b30300"), "");
    row("UTF-16", QByteArray("<\0s\0v\0g\0/\0>\0", 12), "UTF-8");
    row("larger than 8 MiB", drawing(QByteArray(8 * 1024 * 1024, ' ')), "8 MiB");
    // Nesting and numbers.
    row("201 levels", drawing(nested(200)), "nested");
    row("a million levels", drawing(nested(500000)), "nested");
    row("too many elements", drawing(QByteArray("<rect/>").repeated(100000)), "too many elements");
    row("301 attributes", drawing("<rect" + attributes(301) + "/>"), "attributes");
    row("300 000 attributes", drawing("<rect" + attributes(300000) + "/>"), "attributes");
    row("attributes behind a bracket", drawing("<rect b=\">\"" + attributes(300000) + "/>"), "attributes");
    row("attributes behind a comment", drawing("<!-- ' --><rect" + attributes(300000) + "/>"), "attributes");
    row("spaced attributes", drawing("<rect" + attributes(5000).replace("=", " =\n ") + "/>"), "attributes");
    row("1001 colours", drawing("<linearGradient>" + QByteArray("<stop/>").repeated(1001) + "</linearGradient>"),
        "colours");
    row("a novel", drawing("<text>" + QByteArray("word ").repeated(5000) + "</text>"), "too many elements");
    row("a novel in parts", drawing("<text>" + QByteArray("<tspan>word </tspan>").repeated(5000) + "</text>"),
        "too many elements");
    row("a novel in a frame", drawing("<textArea width=\"1\">" + QByteArray("a ").repeated(15000) + "</textArea>"),
        "too many elements");
    row("a text many times",
        drawing("<text id=\"a\">" + QByteArray(2000, 'x') + "</text>"
                + QByteArray("<use xlink:href=\"#a\"/>").repeated(20)),
        "too many elements");
    // References.
    row("multiplying uses", multiplied(20, 2), "multiply");
    row("multiplying uses without the cross", multiplied(20, 2, "href=\"#g"), "multiply");
    row("multiplying uses behind a blank", multiplied(20, 2, "xlink:href=\" #g"), "multiply");
    row("multiplying uses without the sign", multiplied(20, 2, "xlink:href=\"Xg"), "another file");
    row("multiplying fillings", multiplied(20, 2, "fill=\"url(#g").replace("\"/>", ")\"/>"), "multiply");
    row("multiplying styles", multiplied(20, 2, "style=\"fill: url( '#g").replace("\"/>", "' )\"/>"), "multiply");
    row("hidden behind a later element of the name", multiplied(20, 2).replace("</svg>", "<g id=\"g19\"/></svg>"),
        "multiply");
    row("hidden behind an earlier element of the name",
        multiplied(20, 2).replace("<g id=\"g0\">", "<g id=\"g19\"/><g id=\"g0\">"), "multiply");
    row("one name for everything", drawing(QByteArray("<g id=\"a\"/><use href=\"#a\"/>").repeated(40000)), "multiply");
    row("itself", drawing("<g id=\"a\"><use xlink:href=\"#a\"/></g>"), "itself");
    row("itself by way of others",
        drawing(
            "<g id=\"a\"><use href=\"#b\"/></g><g id=\"b\"><use href=\"#c\"/></g><g id=\"c\"><use href=\"#a\"/></g>"),
        "itself");
    QByteArray chain;
    for (int i = 0; i < 20000; ++i)
        chain += "<linearGradient id=\"g" + QByteArray::number(i) + "\" href=\"#g" + QByteArray::number(i + 1) + "\"/>";
    row("a chain of references", drawing(chain), "itself");
    // Entities.
    QByteArray laughs = "<!ENTITY a0 \"lol\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    row("a billion laughs", declaring(laughs, "<text>&a9;</text>"), "entities");
    row("a large entity many times",
        declaring("<!ENTITY a \"" + QByteArray(4000, 'x') + "\">",
                  "<desc>" + QByteArray("&a;").repeated(100000) + "</desc>"),
        "entities");
    row("an entity with elements", declaring("<!ENTITY a \"<rect/>\">", "&a;"), "entities");
    row("an entity from a file", declaring("<!ENTITY a SYSTEM \"/etc/passwd\">", "<text>&a;</text>"), "another file");
    row("an entity of the document type", declaring("<!ENTITY % a \"<!ENTITY b 'c'>\">%a;", "<text>&b;</text>"),
        "entities");
    row("an entity that nobody declares", drawing("<text>&a;</text>"), "");
    // Style sheets.
    row("too many selectors for the elements",
        drawing(styleSheet(".c%1 g .d%1 {fill:red}", 2000) + QByteArray("<rect class=\"c1 x\"/>").repeated(20000)),
        "style");
    row("too many selectors in one rule",
        drawing("<style>" + QByteArray(".a,").repeated(50000) + "b{fill:red}</style>"
                + QByteArray("<g/>").repeated(1000)),
        "style");
    row("too large a style sheet", drawing(styleSheet(".c%1 {fill:red}", 20000)), "style");
    row("too large a style", drawing("<rect style=\"" + QByteArray("fill:red;").repeated(8000) + "\"/>"), "style");
    row("too many names of a class",
        drawing(styleSheet(".c%1 {fill:red}", 1000) + "<rect class=\"" + QByteArray("a b ").repeated(50000) + "\"/>"),
        "style");
    row("neighbours of neighbours",
        drawing("<style>rect + rect {fill:red}</style>" + QByteArray("<rect/>").repeated(60000)), "style");
    row("a style in a file", "<?xml-stylesheet type=\"text/css\" href=\"other.css\"?>" + drawing("<rect/>"),
        "another file");
    row("a style without end", "<?xml-stylesheet type=\"text/css\" href=\"/dev/zero\"?>" + drawing("<rect/>"),
        "another file");
    // Other files.
    row("a picture in a file", drawing(imageOf("secret.png")), "another file");
    row("a picture above", drawing(imageOf("../../secret.png")), "another file");
    row("a picture by its path", drawing(imageOf("file:///etc/passwd")), "another file");
    row("a picture called like a place", drawing(imageOf("#secret.png")), "another file");
    row("a picture called like data", drawing(imageOf("data/secret.png")), "another file");
    row("a picture on the net", drawing(imageOf("https://example.com/a.png")), "another file");
    row("a part of another drawing", drawing("<use xlink:href=\"other.svg#a\"/>"), "another file");
    // Embedded pictures.
    row("a picture of 900 million pixels", drawing(embedded(SamplePictures::greyPng(QSize(30000, 30000)))),
        "too large");
    row("pictures of 17 million pixels", drawing(embedded(SamplePictures::greyPng(QSize(1000, 1000))).repeated(17)),
        "pictures in it are too large");
    row("a large picture behind a small one",
        drawing(imageOf("data:image/png;base64," + SamplePictures::quarters(QSize(2, 2), "png").toBase64() + " base64,"
                        + SamplePictures::greyPng(QSize(30000, 30000)).toBase64())),
        "too large");
    row("a drawing in a drawing", drawing(embedded(drawing("<rect/>"))), "cannot be used");
    row("a picture that is none", drawing(embedded("hello")), "cannot be used");
    row("a picture without packing", drawing(imageOf("data:image/svg+xml,%3Csvg/%3E")), "another file");
}

void TestDrawingCheck::harmfulDrawingsAreRefusedAtOnce()
{
    QFETCH(QByteArray, svg);
    QFETCH(QString, reason);
    QString found;
    const double start = cpuTime();
    QVERIFY(!isHarmlessDrawing(svg, &found));
    QVERIFY(cpuTime() - start < AtOnce);
    QVERIFY(!found.isEmpty());
    QVERIFY2(found.contains(reason), qPrintable(found));
    QVERIFY(!isHarmlessDrawing(svg));
}

void TestDrawingCheck::referencesAreCountedExactly()
{
    QVERIFY(rc::check("up to 100 000 elements", [] {
        const int levels = *rc::gen::inRange(0, 12);
        const int fan = *rc::gen::inRange(1, levels > 3 ? 12 : 60);
        const qint64 elements = elementsOfMultiplied(levels, fan);
        RC_TAG(elements <= 100000 ? "taken" : "refused");
        RC_ASSERT(isHarmlessDrawing(multiplied(levels, fan)) == (elements <= 100000));
    }));
}

void TestDrawingCheck::noContentCrashesTheCheck()
{
    const QByteArray whole =
        declaring("<!ENTITY a \"b\">", "<style>.a{fill:red}</style><g id=\"a\" class=\"a\"><rect/></g>"
                                       "<use xlink:href=\"#a\"/><text>&a;</text>"
                                           + embedded(SamplePictures::quarters(QSize(2, 2), "png")));
    QVERIFY(isHarmlessDrawing(whole));
    QVERIFY(rc::check("a damaged drawing is taken or refused", [&whole] {
        QByteArray damaged = whole;
        const auto damages = *rc::gen::container<std::vector<std::pair<int, char>>>(
            rc::gen::pair(rc::gen::inRange(0, int(whole.size())), rc::gen::arbitrary<char>()));
        for (const auto& [at, byte] : damages)
            damaged[at] = byte;
        damaged.truncate(*rc::gen::inRange(0, int(whole.size()) + 1));
        QString reason;
        const bool taken = isHarmlessDrawing(damaged, &reason);
        RC_ASSERT(taken == reason.isEmpty());
    }));
}

QTEST_MAIN(TestDrawingCheck)
#include "tst_DrawingCheck.moc"
