#include "host/core/values/ValueConversion.h"

#include <QtGui/QBrush>
#include <QtGui/QGuiApplication>
#include <QtTest/QtTest>

#include <limits>

using namespace Korvex::Meridane::Designer;

/** The fixed forms of the value strings, and what each parser refuses. */
class tst_ValueConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenForms_data();
    void writtenForms();
    void numbersRefuse_data();
    void numbersRefuse();
    void integersRefuseWhatIsNoInt_data();
    void integersRefuseWhatIsNoInt();
    void pairsRefuse_data();
    void pairsRefuse();
    void polygonsRefuse_data();
    void polygonsRefuse();
    void theEmptyTextIsTheEmptyPolygon();
    void colorsAreRead_data();
    void colorsAreRead();
    void colorsRefuse_data();
    void colorsRefuse();
    void bordersRefuse_data();
    void bordersRefuse();
    void rotationsRefuse_data();
    void rotationsRefuse();
    void fontsAreRead();
    void fontsDoNotDependOnTheApplicationFont();
    void fontsRefuse_data();
    void fontsRefuse();
    void spacingsKeepTheTextThatWasEntered();
    void gradientStopsRefuse_data();
    void gradientStopsRefuse();
    void groupsAreRead();
    void groupsRefuse_data();
    void groupsRefuse();
    void linksRefuseWaysOutOfTheProject_data();
    void linksRefuseWaysOutOfTheProject();
    void booleansRefuse();
    void valuesThatAreNoNumbersAreWrittenAsZero();
    void qmlNumbers_data();
    void qmlNumbers();
    void aHundredThousandValuesTakeLittleTime();
};

namespace {
/** Rows of texts that no parser of numbers takes, alone or as a part of something. */
void addBadNumbers()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"",
                             " ",
                             " 5",
                             "5 ",
                             "5px",
                             "nan",
                             "NaN",
                             "-nan",
                             "inf",
                             "-inf",
                             "infinity",
                             "+5",
                             "1,000",
                             "0x10",
                             "1e",
                             "1e+",
                             "--5",
                             "-",
                             ".",
                             "1.2.3",
                             "1e999",
                             "-1e999",
                             "1e-999",
                             "\t5",
                             "5\n",
                             "\xc2\xa0"
                             "5",
                             "\xd9\xa3",
                             "\xe2\x88\x92"
                             "5",
                             "one"}) {
        QTest::newRow(qPrintable(QString::fromUtf8(text).toHtmlEscaped() + u'|')) << QString::fromUtf8(text);
    }
    QTest::newRow("digit and NUL") << QString(QStringLiteral("5") + QChar(u'\0'));
}
} // namespace

void tst_ValueConversion::writtenForms_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QString& written, const char* expected) {
        QTest::newRow(name) << written << QString::fromUtf8(expected);
    };
    row("int", ValueConversion::toString(12), "12");
    row("least int", ValueConversion::toString(std::numeric_limits<int>::min()), "-2147483648");
    row("real", ValueConversion::toString(43.3), "43.3");
    row("whole real", ValueConversion::toString(100000.0), "100000");
    row("minus zero", ValueConversion::toString(-0.0), "0");
    row("large", ValueConversion::toString(1e15), "1e+15");
    row("just plain", ValueConversion::toString(123456789012345.0), "123456789012345");
    row("huge", ValueConversion::toString(1e300), "1e+300");
    row("small", ValueConversion::toString(0.00001), "0.00001");
    row("smaller", ValueConversion::toString(1e-7), "1e-07");
    row("least", ValueConversion::toString(5e-324), "5e-324");
    row("true", ValueConversion::toString(true), "true");
    row("false", ValueConversion::toString(false), "false");
    row("size", ValueConversion::toString(QSizeF(100, 75)), "100,75");
    row("point", ValueConversion::toString(QPointF(12.5, -3)), "12.5,-3");
    row("polygon", ValueConversion::toString(QPolygonF({{0, 0}, {10.5, 0}, {-1, 2}})), "0,0 10.5,0 -1,2");
    row("empty polygon", ValueConversion::toString(QPolygonF()), "");
    row("colour", ValueConversion::toString(QColor(248, 151, 29)), "#f8971d");
    row("translucent colour", ValueConversion::toString(QColor(248, 151, 29, 128)), "#80f8971d");
    row("HSV colour", ValueConversion::toString(QColor::fromHsv(0, 255, 255)), "#ff0000");
    row("no colour", ValueConversion::toString(QColor()), "");
    row("border", ValueConversion::toString(BorderInfo(2, Qt::black)), "width: 2; color: #000000;");
    RotationInfo rotation;
    rotation.setAngle(45);
    row("rotation", ValueConversion::toString(rotation), "angle: 45; fixedPoint: Center;");
    row("font", ValueConversion::toString(QFont(QStringLiteral("Droid Sans"), 24)),
        "family: Droid Sans; pointSize: 24;");
    QFont rich(QStringLiteral("A;b:c\\d"));
    rich.setPixelSize(12);
    rich.setBold(true);
    rich.setItalic(true);
    rich.setUnderline(true);
    rich.setOverline(true);
    rich.setStrikeOut(true);
    rich.setLetterSpacing(QFont::AbsoluteSpacing, 1);
    rich.setWordSpacing(2);
    row("rich font", ValueConversion::toString(rich),
        "family: A\\;b\\:c\\\\d; pixelSize: 12; bold: true; italic: true; underline: true; overline: true; "
        "strikeOut: true; letterSpacing: 1; wordSpacing: 2;");
    QFont demiBold(QStringLiteral("Droid Sans"));
    demiBold.setPointSizeF(10.5);
    demiBold.setWeight(QFont::DemiBold);
    row("semi-bold font", ValueConversion::toString(demiBold), "family: Droid Sans; pointSize: 10.5; weight: 600;");
    row("gradient stops", ValueConversion::toString(QGradientStops{{0.33, QColor(248, 151, 29)}, {0.67, Qt::white}}),
        "0.33 #f8971d, 0.67 #ffffff");
    row("link", ValueConversion::toString(ObjectLinkInfo(QStringLiteral("my logo.png"))), "my logo.png");
    row("group",
        ValueConversion::groupToString({{QStringLiteral("textStyle"), QStringLiteral("Outline")},
                                        {QStringLiteral("styleColor"), QStringLiteral("#ff0000")}}),
        "textStyle: Outline; styleColor: #ff0000;");
}

void tst_ValueConversion::writtenForms()
{
    QFETCH(QString, written);
    QTEST(written, "expected");
}

void tst_ValueConversion::numbersRefuse_data()
{
    addBadNumbers();
}

void tst_ValueConversion::numbersRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(ValueConversion::toReal(text, &ok), 0.0);
    QVERIFY(!ok);
    ok = true;
    QCOMPARE(ValueConversion::toInt(text, &ok), 0);
    QVERIFY(!ok);
}

void tst_ValueConversion::integersRefuseWhatIsNoInt_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"1.0", "1.", "1e3", "2147483648", "-2147483649", "99999999999999999999"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::integersRefuseWhatIsNoInt()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(ValueConversion::toInt(text, &ok), 0);
    QVERIFY(!ok);
}

void tst_ValueConversion::pairsRefuse_data()
{
    addBadNumbers();
    for (const char* text : {"5", "5,", ",5", ",", "5;5", "5, 5", "5 ,5", "5,5,5", "5,nan", "inf,5", "5x5"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::pairsRefuse()
{
    QFETCH(QString, text);
    if (text == QLatin1String("1,000")) {
        return; // two numbers
    }
    bool ok = true;
    QCOMPARE(ValueConversion::toSize(text, &ok), QSizeF(0, 0));
    QVERIFY(!ok);
    ok = true;
    QCOMPARE(ValueConversion::toPoint(text, &ok), QPointF());
    QVERIFY(!ok);
}

void tst_ValueConversion::polygonsRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {" ", "1,2 ", " 1,2", "1,2  3,4", "1,2 3", "1,2,3,4", "1,2;3,4", "1,2\n3,4", "1,2 nan,0"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::polygonsRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QVERIFY(ValueConversion::toPolygon(text, &ok).isEmpty());
    QVERIFY(!ok);
}

void tst_ValueConversion::theEmptyTextIsTheEmptyPolygon()
{
    bool ok = false;
    QVERIFY(ValueConversion::toPolygon(QString(), &ok).isEmpty());
    QVERIFY(ok);
}

void tst_ValueConversion::colorsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("rgb") << QStringLiteral("#F8971d") << QColor(248, 151, 29);
    QTest::newRow("argb") << QStringLiteral("#80f8971D") << QColor(248, 151, 29, 128);
    QTest::newRow("short") << QStringLiteral("#fa0") << QColor(255, 170, 0);
    QTest::newRow("name") << QStringLiteral("red") << QColor(255, 0, 0);
    QTest::newRow("name in capitals") << QStringLiteral("DarkBlue") << QColor(0, 0, 139);
    QTest::newRow("transparent") << QStringLiteral("transparent") << QColor(0, 0, 0, 0);
}

void tst_ValueConversion::colorsAreRead()
{
    QFETCH(QString, text);
    bool ok = false;
    QTEST(ValueConversion::toColor(text, &ok), "expected");
    QVERIFY(ok);
}

void tst_ValueConversion::colorsRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", " ", "#", "#12", "#1234", "#12345", "#1234567", "#123456789", "#12345g", "# 12345",
                             " red", "red ", "dark blue", "reddish", "rgb(1,2,3)", "#+12345", "123456"}) {
        QTest::newRow(qPrintable(QString::fromLatin1(text) + u'|')) << QString::fromLatin1(text);
    }
    QTest::newRow("full-width digits") << QStringLiteral("#\uff11\uff11\uff11");
}

void tst_ValueConversion::colorsRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QVERIFY(!ValueConversion::toColor(text, &ok).isValid());
    QVERIFY(!ok);
}

void tst_ValueConversion::bordersRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"", "2", "width: 2;", "color: #000000;", "width: -1; color: #000000;", "width: 1.5; color: #000000;",
          "width: 2; color: none;", "width: 2; width: 2;", "width: 2; color: #000000",
          "width: 2; color: #000000; style: dashed;", " width: 2; color: #000000;", "width: 2; color: #000000; "}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::bordersRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(ValueConversion::toBorderInfo(text, &ok), BorderInfo());
    QVERIFY(!ok);
}

void tst_ValueConversion::rotationsRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "45", "angle: 45;", "fixedPoint: Center;", "angle: nan; fixedPoint: Center;",
                             "angle: 45; fixedPoint: center;", "angle: 45; fixedPoint: Middle;",
                             "angle: 45; fixedPoint: Center; angle: 45;"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::rotationsRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(ValueConversion::toRotationInfo(text, &ok), RotationInfo());
    QVERIFY(!ok);
}

void tst_ValueConversion::fontsAreRead()
{
    bool ok = false;
    const QFont font = ValueConversion::toFont(QStringLiteral("weight: 600; bold: true; italic: false; pointSize: 7.5; "
                                                              "letterSpacing: -1.5; family: Noto Sans, Bold;"),
                                               &ok);
    QVERIFY(ok);
    QCOMPARE(font.family(), QStringLiteral("Noto Sans, Bold"));
    QCOMPARE(font.pointSizeF(), 7.5);
    QCOMPARE(font.pixelSize(), -1);
    QCOMPARE(font.weight(), QFont::DemiBold);
    QVERIFY(!font.italic());
    QCOMPARE(font.letterSpacingType(), QFont::AbsoluteSpacing);
    QCOMPARE(font.letterSpacing(), -1.5);
}

void tst_ValueConversion::fontsDoNotDependOnTheApplicationFont()
{
    const QString text = QStringLiteral("family: Droid Sans; pointSize: 24;");
    const QFont before = ValueConversion::toFont(text);
    const QFont applicationFont = QGuiApplication::font();
    QFont striking(QStringLiteral("Serif"), 50, QFont::Black, true);
    striking.setUnderline(true);
    striking.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    QGuiApplication::setFont(striking);
    const QFont after = ValueConversion::toFont(text);
    QGuiApplication::setFont(applicationFont);
    QCOMPARE(after, before);
    QCOMPARE(after, QFont(QStringLiteral("Droid Sans"), 24));
}

void tst_ValueConversion::fontsRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"", "Droid Sans", "family: Droid Sans;", "pointSize: 24;", "family: A; pointSize: 24; pixelSize: 32;",
          "family: A; pointSize: 0;", "family: A; pointSize: -3;", "family: A; pointSize: nan;",
          "family: A; pointSize: 10001;", "family: A; pixelSize: 1.5;", "family: A; pixelSize: 0;",
          "family: A; pointSize: 24; bold: yes;", "family: A; pointSize: 24; weight: 0;",
          "family: A; pointSize: 24; weight: 1001;", "family: A; pointSize: 24; colour: red;",
          "family: A; family: A; pointSize: 24;", "family: A; pointSize: 24; letterSpacing: 1e9;",
          "family: A;B; pointSize: 24;", "family: A; pointSize: 24"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::fontsRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(ValueConversion::toFont(text, &ok), QFont());
    QVERIFY(!ok);
}

void tst_ValueConversion::spacingsKeepTheTextThatWasEntered()
{
    for (const char* spacing : {"0.1", "-0.1", "0.5", "1", "-2.5", "10.2"}) {
        const QString text =
            QStringLiteral("family: A; pointSize: 24; letterSpacing: %1; wordSpacing: %1;").arg(QLatin1String(spacing));
        QCOMPARE(ValueConversion::toString(ValueConversion::toFont(text)), text);
    }
}

void tst_ValueConversion::gradientStopsRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "0.5", "0.5 ", " #ffffff", "0.5 #ffffff,", "0.5 #ffffff, ", "0.5 #ffffff,1 #000000",
                             "0.5  #ffffff", "0.5 #ffffff 1", "nan #ffffff", "0.5 #ffffff, 1 black ", "0.5 nothing"}) {
        QTest::newRow(qPrintable(QString::fromLatin1(text) + u'|')) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::gradientStopsRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QVERIFY(ValueConversion::toGradientStops(text, &ok).isEmpty());
    QVERIFY(!ok);
}

void tst_ValueConversion::groupsAreRead()
{
    using Group = QMap<QString, QString>;
    bool ok = false;
    QCOMPARE(ValueConversion::toGroupProperties(QStringLiteral("textStyle: Normal;"), &ok),
             (Group{{QStringLiteral("textStyle"), QStringLiteral("Normal")}}));
    QVERIFY(ok);
    QCOMPARE(ValueConversion::toGroupProperties(QStringLiteral("a:1;b_2:  x ;c: \\;\\:\\\\;d: ;"), &ok),
             (Group{{QStringLiteral("a"), QStringLiteral("1")},
                    {QStringLiteral("b_2"), QStringLiteral(" x ")},
                    {QStringLiteral("c"), QStringLiteral(";:\\")},
                    {QStringLiteral("d"), QString()}}));
    QVERIFY(ok);
}

void tst_ValueConversion::groupsRefuse_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"", " ", ";", ":", "a", "a:", "a: 1", "a: 1; b", "a: 1;; b: 2;", ": 1;", "a b: 1;", " a: 1;", "a: 1; ",
          "a: 1;  b: 2;", "a: 1; a: 2;", "a: b: c;", "a: \\x;", "a: 1\\", "a: 1\\;"}) {
        QTest::newRow(qPrintable(QString::fromLatin1(text) + u'|')) << QString::fromLatin1(text);
    }
}

void tst_ValueConversion::groupsRefuse()
{
    QFETCH(QString, text);
    bool ok = true;
    QVERIFY(ValueConversion::toGroupProperties(text, &ok).isEmpty());
    QVERIFY(!ok);
}

void tst_ValueConversion::linksRefuseWaysOutOfTheProject_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {".", "..", "../secret.png", "/etc/passwd", "a/b.png", "a\\b.png", "c:x.png", " a.png",
                             "a.png ", "a\nb", "a\tb"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
    QTest::newRow("NUL") << QString(QStringLiteral("a") + QChar(u'\0') + QStringLiteral(".png"));
    QTest::newRow("lone surrogate") << QString(QChar(0xd800));
}

void tst_ValueConversion::linksRefuseWaysOutOfTheProject()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(ValueConversion::toLinkInfo(text, &ok), ObjectLinkInfo());
    QVERIFY(!ok);
}

void tst_ValueConversion::booleansRefuse()
{
    for (const char* text : {"", "True", "TRUE", "1", "0", "yes", " true", "true "}) {
        bool ok = true;
        QVERIFY(!ValueConversion::toBool(QString::fromLatin1(text), &ok));
        QVERIFY2(!ok, text);
    }
}

void tst_ValueConversion::valuesThatAreNoNumbersAreWrittenAsZero()
{
    QCOMPARE(ValueConversion::toString(std::numeric_limits<double>::quiet_NaN()), QStringLiteral("0"));
    QCOMPARE(ValueConversion::toString(QSizeF(-std::numeric_limits<double>::infinity(), 1)), QStringLiteral("0,1"));
}

void tst_ValueConversion::qmlNumbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");
    const auto row = [](double value, int decimals, const char* expected) {
        QTest::newRow(expected) << value << decimals << QString::fromLatin1(expected);
    };
    row(1.5, 2, "1.5");
    row(100, 2, "100");
    row(100, 0, "100");
    row(1.005, 2, "1"); // the double lies below 1.005
    row(1.255, 2, "1.25");
    row(0.125, 2, "0.13");
    row(12.345678, 4, "12.3457");
    row(-0.001, 2, "0");
    row(-0.0, 2, "0");
    row(0.999, 2, "1");
    row(7.5, -3, "8");
    row(1e-7, 4, "0");
    row(std::numeric_limits<double>::infinity(), 2, "0");
    row(std::numeric_limits<double>::quiet_NaN(), 2, "0");
    row(1e21, 2, "1000000000000000000000");
}

void tst_ValueConversion::qmlNumbers()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QTEST(ValueConversion::toQmlString(value, decimals), "expected");
}

void tst_ValueConversion::aHundredThousandValuesTakeLittleTime()
{
    const QString texts[] = {QStringLiteral("100,75"), QStringLiteral("width: 2; color: #000000;"),
                             QStringLiteral("angle: 45; fixedPoint: Center;"),
                             QStringLiteral("family: Droid Sans; pointSize: 24; bold: true;"),
                             QStringLiteral("0.33 #f8971d, 0.67 #ffffff")};
    QElapsedTimer timer;
    timer.start();
    int read = 0;
    for (int i = 0; i < 20000; ++i) {
        bool ok = false;
        ValueConversion::toSize(texts[0], &ok);
        read += ok;
        ValueConversion::toBorderInfo(texts[1], &ok);
        read += ok;
        ValueConversion::toRotationInfo(texts[2], &ok);
        read += ok;
        ValueConversion::toFont(texts[3], &ok);
        read += ok;
        ValueConversion::toGradientStops(texts[4], &ok);
        read += ok;
    }
    QCOMPARE(read, 100000);
    qInfo("100 000 values in %lld ms", static_cast<long long>(timer.elapsed()));
    QVERIFY2(timer.elapsed() < 5000, "far slower than the parsers are, even in a debug build");
}

QTEST_MAIN(tst_ValueConversion)
#include "tst_ValueConversion.moc"
