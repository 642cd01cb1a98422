#include "tests/shapes/FramedShapeTest.h"

#include "host/core/values/ValueConversion.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

#include <rapidcheck.h>

namespace Korvex::Meridane::Designer::Test {

namespace {

/// The outer size after \a before was changed to \a wanted, case by case as the elements promise it.
QSizeF expectedOuterSize(const QSizeF& before, const QSizeF& wanted, double smallest, double ratio)
{
    double width = wanted.width();
    double height = wanted.height();
    if (before.width() != width) {
        width = std::max(width, smallest);
        if (ratio > 0) {
            height = width / ratio;
            return height < smallest ? QSizeF(smallest * ratio, smallest) : QSizeF(width, height);
        }
        if (before.height() != height)
            height = std::max(height, smallest);
        return {width, height};
    }
    height = std::max(height, smallest);
    if (!(ratio > 0))
        return {width, height};
    width = height * ratio;
    return width < smallest ? QSizeF(smallest, smallest / ratio) : QSizeF(width, height);
}

bool near(const QSizeF& a, const QSizeF& b, double tolerance)
{
    return std::abs(a.width() - b.width()) <= tolerance && std::abs(a.height() - b.height()) <= tolerance;
}

} // namespace

FramedShapeTest::FramedShapeTest() = default;

FramedShapeTest::~FramedShapeTest() = default;

void FramedShapeTest::init()
{
    m_shape = std::make_unique<ShapeFixture>(makeElement());
}

void FramedShapeTest::cleanup()
{
    m_shape.reset();
}

void FramedShapeTest::theSizeFollowsTheOuterSize_data()
{
    addReactionColumns();
    addReactionRow("both", "100,75", 0, "0", "200,150", "200,150", "200,150");
    addReactionRow("both, each too small", "100,75", 0, "0", "0.2,-5", "1,1", "1,1");
    addReactionRow("both 0", "100,75", 0, "0", "0,0", "1,1", "1,1");
    addReactionRow("the width", "100,75", 0, "0", "140,75", "140,75", "140,75");
    addReactionRow("the width, too small", "100,50", 0, "0", "0,50", "1,50", "1,50");
    addReactionRow("the height", "100,75", 0, "0", "100,30", "100,30", "100,30");
    addReactionRow("the height, too small", "100,75", 0, "0", "100,-1", "100,1", "100,1");
    addReactionRow("the width, the height being small already", "50,0.5", 0, "0", "60,0.5", "60,0.5", "60,0.5");
    addReactionRow("the height, the width being small already", "0.5,50", 0, "0", "0.5,60", "0.5,60", "0.5,60");
    addReactionRow("huge", "100,75", 0, "0", "1e300,1e300", "1e+300,1e+300", "1e+300,1e+300");
    addReactionRow("hugest", "100,75", 0, "0", "1.5e308,75", "1.5e+308,75", "1.5e+308,75");
    addReactionRow("hugely negative", "100,75", 0, "0", "-1e300,-1e300", "1,1", "1,1");
    addReactionRow("kept ratio, both", "100,50", 0, "2", "120,90", "120,60", "120,60");
    addReactionRow("kept ratio, the width", "100,50", 0, "2", "120,50", "120,60", "120,60");
    addReactionRow("kept ratio, the height", "100,50", 0, "2", "100,80", "160,80", "160,80");
    addReactionRow("kept ratio, both, the height gets too small", "100,50", 0, "4", "2,7", "4,1", "4,1");
    addReactionRow("kept ratio, the height gets too small", "100,50", 0, "4", "2,50", "4,1", "4,1");
    addReactionRow("kept ratio, the width gets too small", "100,50", 0, "0.25", "100,2", "1,4", "1,4");
    addReactionRow("kept ratio, a negative width", "100,50", 0, "4", "-3,50", "4,1", "4,1");
    addReactionRow("kept ratio, a negative height", "100,50", 0, "0.25", "100,-3", "1,4", "1,4");
    addReactionRow("a negative ratio is none", "100,50", 0, "-2", "120,50", "120,50", "120,50");
    addReactionRow("a ratio that does not convert is none", "100,50", 0, "wide", "120,50", "120,50", "120,50");
    addReactionRow("a huge ratio", "100,50", 0, "1e300", "120,50", "1e+300,1", "1e+300,1");
    addReactionRow("border 1, both too small", "99,49", 1, "0", "1,1", "1,1", "2,2");
    addReactionRow("border 1, the width too small", "99,49", 1, "0", "1,50", "1,49", "2,50");
    addReactionRow("border 1, kept ratio is that of the outer size", "99,49", 1, "2", "120,50", "119,59", "120,60");
    addReactionRow("border 1, kept ratio, the height gets too small", "99,49", 1, "4", "4,50", "7,1", "8,2");
}

void FramedShapeTest::theSizeFollowsTheOuterSize()
{
    checkReaction();
}

void FramedShapeTest::anyOuterSizeIsFollowedByTheRules()
{
    QVERIFY(rc::check("outer size and size", [this] {
        init();
        // Quarters, so that sums are exact.
        const auto pixels = [](int least, int most) {
            return rc::gen::map(rc::gen::inRange(least * 4, most * 4), [](int n) { return n / 4.0; });
        };
        const int border = *rc::gen::inRange(0, 52);
        const QSizeF size(*pixels(1, 400), *pixels(1, 400));
        const double ratio = *pixels(-2, 10);
        const QSizeF before = size + QSizeF(border, border);
        const QSizeF wanted(*rc::gen::oneOf(rc::gen::just(before.width()), pixels(-50, 400)),
                            *rc::gen::oneOf(rc::gen::just(before.height()), pixels(-50, 400)));
        RC_PRE(wanted.width() != before.width() || wanted.height() != before.height());

        setBorder(border);
        shape().set("size", ValueConversion::toString(size));
        shape().set("keepRatio", ValueConversion::toString(ratio));
        place();
        RC_ASSERT(shape().value("boundingSize") == ValueConversion::toString(before));
        RC_ASSERT(shape().set("boundingSize", ValueConversion::toString(wanted)));

        const QSizeF outer = expectedOuterSize(before, wanted, smallestSide(border), ratio);
        const QSizeF newSize = ValueConversion::toSize(shape().value("size"));
        // Two typed dimensions that keep the ratio but for the rounding of an editor are taken as they are.
        const double tolerance = ratio > 0 ? 2e-6 * std::max(1.0, 1 / ratio) : 1e-9;
        RC_ASSERT(near(newSize + QSizeF(border, border), outer, tolerance));
        const QSizeF shown = ValueConversion::toSize(shape().value("boundingSize"));
        RC_ASSERT(near(shown, newSize + QSizeF(border, border), 1e-6));
    }));
}

void FramedShapeTest::aHeightStaysAsTypedWhenItsWidthWasCompletedAndRounded()
{
    shape().set("size", "100,300");
    place();
    shape().set("keepRatio", "0.3333333333333333");
    QVERIFY(shape().set("boundingSize", "66.666667,200"));
    QCOMPARE(shape().value("size"), QStringLiteral("66.666667,200"));
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("66.666667,200"));
}

void FramedShapeTest::theOuterSizeThatIsThereAlreadyIsReportedAndChangesNothing()
{
    place();
    QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
    QVERIFY(shape().set("boundingSize", "100,75"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("100,75"));
}

void FramedShapeTest::anOuterSizeThatDoesNotConvertIsInertAndTheNextOneIsNot()
{
    place();
    QVERIFY(shape().set("boundingSize", "wide"));
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("wide"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
    QVERIFY(shape().set("boundingSize", "100,60"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,60"));
}

void FramedShapeTest::withoutACanvasItemTheSizeStays()
{
    QVERIFY(shape().set("boundingSize", "50,50"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("50,50"));
}

void FramedShapeTest::anItemOfAnotherShapeIsNotFollowed()
{
    placeItemOfAnotherShape();
    QVERIFY(shape().set("boundingSize", "50,50"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
}

void FramedShapeTest::whileTheItemChangesSizeTheElementDoesNotReact()
{
    place();
    shape().element->graphicsItem()->setChangingSize(true);
    QVERIFY(shape().set("boundingSize", "50,50"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
    shape().element->graphicsItem()->setChangingSize(false);
    QVERIFY(shape().set("boundingSize", "60,50"));
    QCOMPARE(shape().value("size"), QStringLiteral("60,50"));
}

void FramedShapeTest::aRatioThatLeadsBeyondAllNumbersChangesNothing()
{
    place();
    shape().set("keepRatio", "1e-320");
    QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
    QVERIFY(shape().set("boundingSize", "120,75"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("100,75"));
}

void FramedShapeTest::otherPropertiesDoNotTouchTheSize()
{
    place();
    setBorder(7);
    shape().set("keepRatio", "3");
    shape().set("color", "#102030");
    shape().set("position", "4,5");
    shape().set("rotation", "angle: 33; fixedPoint: TopLeft;");
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("107,82"));
}

void FramedShapeTest::theBoundingRectangleIsGrownByHalfTheBorder()
{
    QCOMPARE(shape().element->getBoundingRect(), QRectF(0, 0, 100, 75));
    setBorder(3);
    QCOMPARE(shape().element->getBoundingRect(), QRectF(-1.5, -1.5, 103, 78));
    shape().set("border", "thick");
    QCOMPARE(shape().element->getBoundingRect(), QRectF());
    setBorder(4);
    QCOMPARE(shape().element->getBoundingRect(), QRectF(-2, -2, 104, 79));
    shape().set("size", "broken");
    QCOMPARE(shape().element->getBoundingRect(), QRectF());
}

void FramedShapeTest::valuesThatDoNotConvertAreKeptAndInert_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* id, const char* text, const char* line) {
        QTest::addRow("%s \"%s\"", id, text)
            << QString::fromLatin1(id) << QString::fromUtf8(text) << QString::fromLatin1(line);
    };
    for (const char* text :
         {"", "wide", "100", "100,", "100,75,1", "100 ,75", "nan,75", "inf,75", "1e400,75", "100;75"})
        row("size", text, "width:");
    for (const char* text : {"", "ratio", "nan", "inf", "1,5"})
        row("keepRatio", text, "keepRatio:");
    for (const char* text : {"", "chartreusish", "#12345", "#1234567", "rgb(1,2,3)", " red"})
        row("color", text, "color:");
    for (const char* text : {"", "3", "width: 3;", "width: -1; color: #000000;", "width: 1.5; color: #000000;",
                             "width: 2147483648; color: #000000;", "width: 3; color: ink;"})
        row("border", text, "borderWidth:");
}

void FramedShapeTest::valuesThatDoNotConvertAreKeptAndInert()
{
    QFETCH(QString, id);
    QFETCH(QString, text);
    QFETCH(QString, line);
    setBorder(3);
    place();
    const QByteArray property = id.toLatin1();
    const QRectF outer = shape().element->graphicsItem()->outerRect();
    const QString before = shape().element->toQml(0);
    QVERIFY(shape().set(property.constData(), text));
    QCOMPARE(shape().value(property.constData()), text);
    QCOMPARE(shape().element->graphicsItem()->outerRect(), outer);
    QCOMPARE(shape().value("boundingSize"), QStringLiteral("103,78"));
    // The lines of the other properties are as before.
    const QString qml = shape().element->toQml(0);
    QVERIFY(!qml.contains(QLatin1Char('\t') + line));
    QStringList missing = before.split(QLatin1Char('\n'));
    missing.removeIf([&qml](const QString& written) { return qml.contains(written); });
    QCOMPARE(missing.size(), id == QLatin1String("keepRatio") ? 0 : id == QLatin1String("color") ? 1 : 2);
}

void FramedShapeTest::noPropertyIsNoChange()
{
    place();
    shape().element->afterPropertyChanged(nullptr, QStringLiteral("1,1"));
    QCOMPARE(shape().value("size"), QStringLiteral("100,75"));
}

void FramedShapeTest::setBorder(int width) const
{
    QVERIFY(shape().set("border", ValueConversion::toString(BorderInfo(width, Qt::black))));
}

void FramedShapeTest::addReactionColumns()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<int>("border");
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("newSize");
    QTest::addColumn<QString>("newOuter");
}

void FramedShapeTest::addReactionRow(const char* name, const char* size, int border, const char* ratio,
                                     const char* typed, const char* newSize, const char* newOuter)
{
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    QTest::newRow(name) << text(size) << border << text(ratio) << text(typed) << text(newSize) << text(newOuter);
}

void FramedShapeTest::checkReaction() const
{
    QFETCH(QString, size);
    QFETCH(int, border);
    QFETCH(QString, ratio);
    QFETCH(QString, typed);
    QFETCH(QString, newSize);
    QFETCH(QString, newOuter);
    setBorder(border);
    shape().set("size", size);
    shape().set("keepRatio", ratio);
    place();
    QVERIFY(shape().set("boundingSize", typed));
    QCOMPARE(shape().value("size"), newSize);
    QCOMPARE(shape().value("boundingSize"), newOuter);
}

} // namespace Korvex::Meridane::Designer::Test
