#include "host/common/PaintHelper.h"
#include "tests/runtime/BorderedShape.h"
#include "tests/runtime/DisplayTypeTest.h"

#include <QFont>
#include <QPainter>
#include <QPen>
#include <QQuickItem>
#include <QTest>

#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
constexpr int LargestInt = std::numeric_limits<int>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();

const QStringList StyleNames{QStringLiteral("Normal"), QStringLiteral("Outline"), QStringLiteral("Raised"),
                             QStringLiteral("Sunken")};

/** The font that the canvas makes of the properties of @p item; of those beyond the limits, that at the limit. */
QFont canvasFont(const QQuickItem& item)
{
    QFont font;
    font.setFamilies({item.property("family").toString()});
    font.setPixelSize(qBound(1, item.property("fontSize").toInt(), 10000));
    font.setWeight(item.property("bold").toBool() ? QFont::Bold : QFont::Normal);
    font.setItalic(item.property("italic").toBool());
    font.setUnderline(item.property("underline").toBool());
    font.setOverline(item.property("overline").toBool());
    font.setStrikeOut(item.property("strikeout").toBool());
    font.setLetterSpacing(QFont::AbsoluteSpacing, qBound(-1e4, item.property("letterSpacing").toDouble(), 1e4));
    font.setWordSpacing(qBound(-1e4, item.property("wordSpacing").toDouble(), 1e4));
    return font;
}

int canvasAlignment(const QQuickItem& item)
{
    constexpr int Horizontal[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    constexpr int Vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    const int column = item.property("horizontalAlignment").toInt();
    const int row = item.property("verticalAlignment").toInt();
    return Horizontal[column >= 0 && column < 3 ? column : 0] | Vertical[row >= 0 && row < 3 ? row : 0];
}

void paintAsOnTheCanvas(const QQuickItem& item, QPainter* painter)
{
    Common::PaintHelper::paintTextBox(item.size(), canvasFont(item), QPen(item.property("color").value<QColor>()),
                                      item.property("text").toString(), canvasAlignment(item),
                                      StyleNames.value(item.property("textStyle").toInt(), StyleNames.constFirst()),
                                      QPen(item.property("styleColor").value<QColor>()), painter);
}

QString someText()
{
    return *rc::gen::element(
        QStringLiteral("21.5 \u00b0C"), QStringLiteral("The quick brown fox jumps over the lazy dog"),
        QStringLiteral("\u05e9\u05dc\u05d5\u05dd, \u05e2\u05d5\u05dc\u05dd! (3)"),
        QStringLiteral("\u0645\u0631\u062d\u0628\u0627 42"), QStringLiteral("Cafe\u0301 \u1ec7\u0303 na\u00efve"),
        QStringLiteral("\U0001f600 \u2600 \U0001f468\u200d\U0001f469\u200d\U0001f467"),
        QStringLiteral("<b>bold</b> &amp; <img src='x'/>\n$1 %1 \\n"), QStringLiteral("one\ntwo\r\nthree\rfour"),
        QStringLiteral("\u4f60\u597d"), QStringLiteral(" \t a  b "), QString());
}

QString someFamily()
{
    return *rc::gen::element(QStringLiteral("DejaVu Sans"), QStringLiteral("DejaVu Serif"),
                             QStringLiteral("DejaVu Sans Mono"), QStringLiteral("No Such Family"),
                             QStringLiteral("DejaVu Sans, DejaVu Serif"), QString());
}

QColor someColor()
{
    return QColor(*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256),
                  *rc::gen::element(255, 255, 100));
}

QVariantMap someValues()
{
    return {{QStringLiteral("text"), someText()},
            {QStringLiteral("width"), *rc::gen::inRange(100, 18000) / 100.0},
            {QStringLiteral("height"), *rc::gen::inRange(100, 12000) / 100.0},
            {QStringLiteral("horizontalAlignment"), *rc::gen::inRange(0, 3)},
            {QStringLiteral("verticalAlignment"), *rc::gen::inRange(0, 3)},
            {QStringLiteral("color"), someColor()},
            {QStringLiteral("textStyle"), *rc::gen::inRange(0, 4)},
            {QStringLiteral("styleColor"), someColor()},
            {QStringLiteral("family"), someFamily()},
            {QStringLiteral("fontSize"), *rc::gen::inRange(5, 50)},
            {QStringLiteral("bold"), *rc::gen::arbitrary<bool>()},
            {QStringLiteral("italic"), *rc::gen::arbitrary<bool>()},
            {QStringLiteral("underline"), *rc::gen::arbitrary<bool>()},
            {QStringLiteral("overline"), *rc::gen::arbitrary<bool>()},
            {QStringLiteral("strikeout"), *rc::gen::arbitrary<bool>()},
            {QStringLiteral("letterSpacing"), *rc::gen::inRange(-128, 640) / 64.0},
            {QStringLiteral("wordSpacing"), *rc::gen::inRange(-128, 640) / 64.0}};
}

DisplayType textBox()
{
    DisplayType type;
    type.name = QStringLiteral("TextBox");
    BorderedShape::addSize(&type);
    type.defaults = {{QStringLiteral("text"), QStringLiteral("[text]")},
                     {QStringLiteral("horizontalAlignment"), 0},
                     {QStringLiteral("verticalAlignment"), 0},
                     {QStringLiteral("color"), QColor(Qt::black)},
                     {QStringLiteral("textStyle"), 0},
                     {QStringLiteral("styleColor"), QColor(Qt::red)},
                     {QStringLiteral("family"), QStringLiteral("Droid Sans")},
                     {QStringLiteral("fontSize"), 32},
                     {QStringLiteral("bold"), false},
                     {QStringLiteral("italic"), false},
                     {QStringLiteral("underline"), false},
                     {QStringLiteral("overline"), false},
                     {QStringLiteral("strikeout"), false},
                     {QStringLiteral("letterSpacing"), 0.0},
                     {QStringLiteral("wordSpacing"), 0.0}};
    type.sample.insert({{QStringLiteral("text"), QStringLiteral("Oven on")},
                        {QStringLiteral("textStyle"), 2},
                        {QStringLiteral("fontSize"), 20}});
    type.changes.insert({{QStringLiteral("text"), QStringLiteral("Off")},
                         {QStringLiteral("width"), 50.0},
                         {QStringLiteral("height"), 18.0},
                         {QStringLiteral("horizontalAlignment"), 1},
                         {QStringLiteral("verticalAlignment"), 2},
                         {QStringLiteral("color"), QColor(0, 80, 160, 200)},
                         {QStringLiteral("textStyle"), 1},
                         {QStringLiteral("styleColor"), QColor(Qt::green)},
                         {QStringLiteral("family"), QStringLiteral("DejaVu Sans Mono")},
                         {QStringLiteral("fontSize"), 27},
                         {QStringLiteral("bold"), true},
                         {QStringLiteral("italic"), true},
                         {QStringLiteral("underline"), true},
                         {QStringLiteral("overline"), true},
                         {QStringLiteral("strikeout"), true},
                         {QStringLiteral("letterSpacing"), 2.5},
                         {QStringLiteral("wordSpacing"), -1.25}});
    // A line in the middle and one that reaches from end to end, so that something shows in all of it.
    type.huge.insert({{QStringLiteral("text"), QString(900, QLatin1Char('M'))},
                      {QStringLiteral("verticalAlignment"), 1},
                      {QStringLiteral("fontSize"), 300}});
    for (int number : {-1, 3, LargestInt, -LargestInt - 1}) {
        for (const char* property : {"horizontalAlignment", "verticalAlignment", "textStyle"}) {
            type.extremes.append({QString::fromLatin1(property), number});
        }
    }
    for (int size : {0, -1, -LargestInt - 1, 1, 999, 10001, LargestInt}) {
        type.extremes.append({QStringLiteral("fontSize"), size});
    }
    for (const char* property : {"letterSpacing", "wordSpacing"}) {
        for (double spacing : {-1e9, 1e9, Infinity, -Infinity, 1e-9}) {
            type.extremes.append({QString::fromLatin1(property), spacing});
        }
    }
    type.extremes.append({QStringLiteral("color"), QColor()});
    type.extremes.append({QStringLiteral("styleColor"), QColor()});
    type.extremes.append({QStringLiteral("family"), QString()});
    type.extremes.append({QStringLiteral("text"), QString(100000, QLatin1Char('x'))});
    type.invisible.append({QStringLiteral("text"), QString()});
    // Glyphs stand on quarters of a pixel; turned ones that start beside the item may be rounded to another one.
    type.strayPixelsWhenTurned = 150;
    type.someValues = someValues;
    type.paint = paintAsOnTheCanvas;
    return type;
}
} // namespace

class TestDisplayTextBox : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayTextBox()
        : DisplayTypeTest(textBox())
    {}

private Q_SLOTS:
    void withoutASizeItHasThatOfANewTextBox();
    void everyAlignmentAndStyleIsThatOfTheCanvas_data();
    void everyAlignmentAndStyleIsThatOfTheCanvas();
    void markupIsShownAsItStands();
    void spacingsSurviveTheirDecimalsInAnExport();
    void aSpacingThatIsNoNumberIsNone();
};

void TestDisplayTextBox::withoutASizeItHasThatOfANewTextBox()
{
    QCOMPARE(item().size(), QSizeF(116, 66));
    QVERIFY(!isBlank());
    QVERIFY(looksAsPainted());
}

void TestDisplayTextBox::everyAlignmentAndStyleIsThatOfTheCanvas_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("size");
    for (const char* family : {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono", "No Such Family"}) {
        for (int size : {9, 17, 30}) {
            QTest::addRow("%s, %d pixels", family, size) << QString::fromLatin1(family) << size;
        }
    }
}

void TestDisplayTextBox::everyAlignmentAndStyleIsThatOfTheCanvas()
{
    QFETCH(QString, family);
    QFETCH(int, size);
    setValues({{QStringLiteral("family"), family},
               {QStringLiteral("fontSize"), size},
               {QStringLiteral("width"), 150.5},
               {QStringLiteral("height"), 100.25},
               {QStringLiteral("x"), 20.4},
               {QStringLiteral("y"), 10.7}});
    const QString texts[] = {QStringLiteral("Room 21.5 \u00b0C\nand some more"),
                             QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627!"),
                             QStringLiteral("Cafe\u0301 \U0001f600")};
    QImage last;
    for (int alignment = 0; alignment < 9; ++alignment) {
        for (int style = 0; style < StyleNames.size(); ++style) {
            setValues({{QStringLiteral("text"), texts[(alignment + style) % 3]},
                       {QStringLiteral("horizontalAlignment"), alignment % 3},
                       {QStringLiteral("verticalAlignment"), alignment / 3},
                       {QStringLiteral("textStyle"), style}});
            QVERIFY(looksAsPainted());
            const QImage now = sheet().running();
            QVERIFY(now != last);
            last = now;
        }
    }
}

void TestDisplayTextBox::markupIsShownAsItStands()
{
    setValues({{QStringLiteral("width"), 200.0},
               {QStringLiteral("fontSize"), 14},
               {QStringLiteral("text"), QStringLiteral("<b>&amp;</b>")}});
    const QImage markup = sheet().running();
    QVERIFY(looksAsPainted());
    item().setProperty("text", QStringLiteral("&"));
    QVERIFY(DisplaySheet::pixelsThatDiffer(markup, sheet().running(), Tolerance) > 100);
}

void TestDisplayTextBox::spacingsSurviveTheirDecimalsInAnExport()
{
    setValues({{QStringLiteral("width"), 200.0},
               {QStringLiteral("fontSize"), 14},
               {QStringLiteral("text"), QString(60, QLatin1Char('i'))}});
    for (int sixtyFourths : {1, 5, -5, 63, 64}) {
        const QString exported = QString::number(sixtyFourths / 64.0, 'f', 4);
        item().setProperty("letterSpacing", exported.toDouble());
        item().setProperty("wordSpacing", exported.toDouble());
        QFont font = canvasFont(item());
        font.setLetterSpacing(QFont::AbsoluteSpacing, sixtyFourths / 64.0);
        font.setWordSpacing(sixtyFourths / 64.0);
        const QImage canvas = sheet().painted(QRectF(QPointF(0, 0), item().size()), [&](QPainter* painter) {
            Common::PaintHelper::paintTextBox(item().size(), font, QPen(Qt::black), item().property("text").toString(),
                                              canvasAlignment(item()), StyleNames.constFirst(), QPen(Qt::red), painter);
        });
        QVERIFY(DisplaySheet::difference(sheet().running(), canvas) <= Tolerance);
    }
}

void TestDisplayTextBox::aSpacingThatIsNoNumberIsNone()
{
    setValues({{QStringLiteral("text"), QStringLiteral("a b c")}, {QStringLiteral("fontSize"), 14}});
    const QImage none = sheet().running();
    for (const char* property : {"letterSpacing", "wordSpacing"}) {
        item().setProperty(property, 3.0);
        QVERIFY(sheet().running() != none);
        item().setProperty(property, std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(sheet().running(), none);
    }
}

QTEST_MAIN(TestDisplayTextBox)
#include "tst_DisplayTextBox.moc"
