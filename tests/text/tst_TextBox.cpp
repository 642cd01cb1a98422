#include "text/GraphicsTextBox.h"
#include "text/TextBox.h"

#include "tests/shapes/ShapeFixture.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::ShapeFixture;

/// The text box without a canvas: its identity, its QML, and how its size follows its outer size.
class tst_TextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_box = std::make_unique<ShapeFixture>(std::make_unique<TextBox>()); }

    void cleanup() { m_box.reset(); }

    void theIdentityIsThatOfATextBox()
    {
        QCOMPARE(
            m_box->identity(),
            QStringLiteral("TextBox,TextBox,Text Box,TextBox,Screen,TextBox,textBox,textBox").split(QLatin1Char(',')));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_box->runtimeRows(), (QStringList{
                                           QStringLiteral("horizontalAlignment|Horizontal Alignment|2|1"),
                                           QStringLiteral("verticalAlignment|Vertical Alignment|2|1"),
                                           QStringLiteral("styleColor|Style Color|6|1"),
                                           QStringLiteral("textStyle|Text Style|2|1"),
                                           QStringLiteral("wordSpacing|Word Spacing|3|1"),
                                           QStringLiteral("overline|Overline|1|1"),
                                           QStringLiteral("underline|Underline|1|1"),
                                           QStringLiteral("strikeout|Strikeout|1|1"),
                                           QStringLiteral("fontSize|Font Size|2|1"),
                                           QStringLiteral("letterSpacing|Letter Spacing|3|1"),
                                           QStringLiteral("italic|Italic|1|1"),
                                           QStringLiteral("family|Font Family|4|1"),
                                           QStringLiteral("bold|Bold|1|1"),
                                           QStringLiteral("color|Color|6|1"),
                                           QStringLiteral("text|Text|4|1"),
                                       }));
    }

    void aNewTextBoxWritesItsPlaceholderTopLeftInTheNormalStyle()
    {
        QCOMPARE(qml("text"), QStringLiteral("\t\ttext: \"[text]\""));
        QCOMPARE(qml("alignment"), QStringLiteral("\t\tverticalAlignment: 0\n\t\thorizontalAlignment: 0"));
        QCOMPARE(qml("textStyle"), QStringLiteral("\t\ttextStyle: 0\n\t\tstyleColor: \"#ff0000\""));
    }

    void anEmptyTextStillWritesALine()
    {
        m_box->set("text", "");
        QCOMPARE(qml("text"), QStringLiteral("\t\ttext: \"\""));
    }

    void aTextIsWrittenAsItIsTypedAndNeverReadAsCode()
    {
        m_box->set("text", "%1 \"quoted\" \\ \n${x}");
        QCOMPARE(qml("text"), QStringLiteral("\t\ttext: \"%1 \\\"quoted\\\" \\\\ \\n${x}\""));
    }

    void eachAlignmentWritesItsTwoLines_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("vertical");
        QTest::addColumn<int>("horizontal");
        const auto row = [](const char* value, int vertical, int horizontal) {
            QTest::newRow(value) << QString::fromLatin1(value) << vertical << horizontal;
        };
        row("33", 0, 0);
        row("34", 0, 2);
        row("36", 0, 1);
        row("65", 2, 0);
        row("66", 2, 2);
        row("68", 2, 1);
        row("129", 1, 0);
        row("130", 1, 2);
        row("132", 1, 1);
        // Numbers that the editor never writes.
        row("40", 0, 0);
        row("0", 0, 0);
        row("-7", 0, 0);
        row("2147483647", 0, 0);
    }

    void eachAlignmentWritesItsTwoLines()
    {
        QFETCH(QString, value);
        QFETCH(int, vertical);
        QFETCH(int, horizontal);
        QVERIFY(m_box->set("alignment", value));
        QCOMPARE(
            qml("alignment"),
            QStringLiteral("\t\tverticalAlignment: %1\n\t\thorizontalAlignment: %2").arg(vertical).arg(horizontal));
    }

    void anAlignmentThatIsNoNumberWritesNothing()
    {
        for (const char* value : {"", "left", "1.5"}) {
            m_box->set("alignment", value);
            QCOMPARE(qml("alignment"), QString());
        }
    }

    void eachStyleWritesItsTwoLines_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char* name, const char* value, int style, const char* color) {
            QTest::newRow(name) << QString::fromLatin1(value)
                                << QStringLiteral("\t\ttextStyle: %1\n\t\tstyleColor: \"%2\"")
                                       .arg(style)
                                       .arg(QString::fromLatin1(color));
        };
        row("normal ignores its colour", "textStyle: Normal; styleColor: #00ff00;", 0, "#ff0000");
        row("outline", "textStyle: Outline; styleColor: #102030;", 1, "#102030");
        row("raised without a colour", "textStyle: Raised;", 2, "#ff0000");
        row("sunken as stored", "textStyle: Sunken; styleColor: #00ff00;", 3, "#00ff00");
        row("a colour by its name", "textStyle: Sunken; styleColor: navy;", 3, "navy");
        row("a translucent colour", "textStyle: Outline; styleColor: #80102030;", 1, "#80102030");
        row("an unknown style keeps its colour", "textStyle: Glow; styleColor: #102030;", 0, "#102030");
        row("a colour that is none", "textStyle: Outline; styleColor: reddish;", 1, "#ff0000");
    }

    void eachStyleWritesItsTwoLines()
    {
        QFETCH(QString, value);
        QFETCH(QString, lines);
        QVERIFY(m_box->set("textStyle", value));
        QCOMPARE(qml("textStyle"), lines);
    }

    void aStyleThatIsNoGroupOrNamesNoStyleWritesNothing()
    {
        for (const char* value : {"", "Outline", "styleColor: #00ff00;", "textStyle Outline"}) {
            m_box->set("textStyle", value);
            QCOMPARE(qml("textStyle"), QString());
        }
    }

    void theFontIsWrittenInPixels()
    {
        m_box->set("font", "family: DejaVu Sans; pointSize: 24; bold: true;");
        QVERIFY2(qml("font").contains(QLatin1String("\t\tfontSize: 32")), qPrintable(qml("font")));
        QVERIFY(qml("font").contains(QLatin1String("\t\tbold: true")));
    }

    void theSizeFollowsTheOuterSize_data()
    {
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("size");
        const auto row = [](const char* name, const char* ratio, const char* typed, const char* size) {
            QTest::newRow(name) << QString::fromLatin1(ratio) << QString::fromLatin1(typed)
                                << QString::fromLatin1(size);
        };
        row("both", "0", "50,40", "50,40");
        row("both, too small", "0", "0,-3", "1,1");
        row("both, kept ratio", "4", "80,50", "80,20");
        row("the width", "0", "80,66", "80,66");
        row("the width, kept ratio", "2", "80,66", "80,40");
        row("the width to nothing, kept ratio", "2", "0,66", "2,1");
        row("the height", "0", "116,30", "116,30");
        row("the height, kept ratio", "2", "116,30", "60,30");
        row("the height to nothing, kept ratio", "0.5", "116,0", "1,2");
        row("a ratio that is no number", "wide", "80,66", "80,66");
        row("a negative ratio", "-2", "80,66", "80,66");
    }

    void theSizeFollowsTheOuterSize()
    {
        QFETCH(QString, ratio);
        QFETCH(QString, typed);
        m_box->place<GraphicsTextBox>();
        m_box->set("keepRatio", ratio);
        QVERIFY(m_box->set("boundingSize", typed));
        QTEST(m_box->value("size"), "size");
        QTEST(m_box->value("boundingSize"), "size");
    }

    void theOuterSizeThatIsThereAlreadyChangesNothing()
    {
        m_box->place<GraphicsTextBox>();
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        m_box->set("boundingSize", "116,66");
        QCOMPARE(m_box->value("size"), QStringLiteral("116,66"));
    }

    void whileTheItemChangesSizeTheElementDoesNotReact()
    {
        auto* item = m_box->place<GraphicsTextBox>();
        item->setChangingSize(true);
        m_box->set("boundingSize", "50,40");
        QCOMPARE(m_box->value("size"), QStringLiteral("116,66"));
    }

    void theBoundingRectangleIsTheContent()
    {
        QCOMPARE(m_box->element->getBoundingRect(), QRectF(0, 0, 116, 66));
        m_box->set("size", "broken");
        QVERIFY(m_box->element->getBoundingRect().isNull());
    }

private:
    QString qml(const char* id) const { return m_box->element->getProperty(QLatin1String(id))->toQml(2); }

    std::unique_ptr<ShapeFixture> m_box;
};

QTEST_MAIN(tst_TextBox)
#include "tst_TextBox.moc"
