#include "lines/GraphicsLine.h"
#include "lines/Line.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LineGeometry.h"
#include "host/common/TransformOrigin.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::ShapeFixture;

namespace {

constexpr double Pixel = 0.5; // how far an outline may be from what was asked for

/// From \a low to below \a high, evenly in every case: RapidCheck's own range begins with the small numbers.
int number(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

double hundredths(int low, int high)
{
    return number(100 * low, 100 * high) / 100.0;
}

double anyAngle()
{
    return number(0, 3) == 0 ? 90.0 * number(0, 4) : number(0, 36000) / 100.0;
}

int anyThickness()
{
    return number(0, 2) == 0 ? number(1, 6) : number(1, 101);
}

bool near(const QSizeF& a, const QSizeF& b, double tolerance)
{
    return std::abs(a.width() - b.width()) <= tolerance && std::abs(a.height() - b.height()) <= tolerance;
}

} // namespace

/// The line's data object: its properties, its outline, and how it follows its outer size.
class tst_Line : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_line = std::make_unique<ShapeFixture>(std::make_unique<Line>()); }
    void cleanup() { m_line.reset(); }

    void theIdentityIsThatOfALine()
    {
        QCOMPARE(line().identity(),
                 QStringLiteral("Line,Line,Line,Line,Screen,Line,line,line").split(QLatin1Char(',')));
        QVERIFY(line().element->classNames().contains(QLatin1String("VisualElement")));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(line().runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("angle|Angle|3|1"),
                              QStringLiteral("length|Length|3|1"), QStringLiteral("lineWidth|Thickness|2|1")}));
    }

    void aNewLineIs100LongAnd2ThickAndLevel()
    {
        QCOMPARE(line().element->getBoundingRect(), QRectF(0, -1, 100, 2));
        QCOMPARE(line().value("color"), QStringLiteral("#f8971d"));
        line().place<GraphicsLine>();
        QCOMPARE(line().value("boundingSize"), QStringLiteral("100,2"));
    }

    void withoutThePlugInThereIsNoItem() { QVERIFY(!line().element->createGraphicsItem()); }

    void theBoundingRectangleIsThatOfTheOutline_data()
    {
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("angle");
        QTest::addColumn<QString>("width");
        QTest::addColumn<QRectF>("bounds");
        const auto row = [](const char* name, const char* length, const char* angle, const char* width,
                            const QRectF& bounds) {
            QTest::newRow(name) << QString::fromLatin1(length) << QString::fromLatin1(angle)
                                << QString::fromLatin1(width) << bounds;
        };
        row("level", "100", "0", "2", QRectF(0, -1, 100, 2));
        row("down", "100", "90", "2", QRectF(-1, 0, 2, 100));
        row("left", "100", "180", "2", QRectF(-100, -1, 100, 2));
        row("up", "100", "270", "2", QRectF(-1, -100, 2, 100));
        row("up, counted backwards", "100", "-90", "2", QRectF(-1, -100, 2, 100));
        row("odd thickness", "50.5", "0", "3", QRectF(0, -1.5, 50.5, 3));
        const double root = std::sqrt(0.5);
        row("slanted", "100", "45", "20", QRectF(-10 * root, -10 * root, 120 * root, 120 * root));
        row("slanted, up and left", "100", "225", "20", QRectF(-110 * root, -110 * root, 120 * root, 120 * root));
        row("no thickness", "100", "30", "0", QRectF());
        row("negative thickness", "100", "30", "-5", QRectF());
        row("no length", "0", "30", "2", QRectF());
        row("negative length", "-100", "30", "2", QRectF());
        row("a length that does not convert", "long", "30", "2", QRectF());
        row("an angle that does not convert", "100", "", "2", QRectF());
        row("a thickness that does not convert", "100", "30", "2.5", QRectF());
        row("huge", "1e300", "0", "2147483647", QRectF(0, -1073741823.5, 1e300, 2147483647));
    }

    void theBoundingRectangleIsThatOfTheOutline()
    {
        QFETCH(QString, length);
        QFETCH(QString, angle);
        QFETCH(QString, width);
        QFETCH(QRectF, bounds);
        QVERIFY(line().set("length", length));
        QVERIFY(line().set("angle", angle));
        QVERIFY(line().set("width", width));
        const QRectF found = line().element->getBoundingRect();
        QCOMPARE(found.topLeft(), bounds.topLeft());
        QCOMPARE(found.size(), bounds.size());
        QCOMPARE(found.isNull(), bounds.isNull());
    }

    void theThicknessIsWrittenAsLineWidth()
    {
        const auto width = line().element->getProperty(QStringLiteral("width"));
        QVERIFY(line().set("width", "5"));
        QCOMPARE(width->toQml(2), QStringLiteral("\t\tlineWidth: 5"));
        for (const char* text : {"", "thick", "5.5"}) {
            QVERIFY(line().set("width", text));
            QCOMPARE(width->toQml(2), QString());
        }
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(line().element->setIdName(QStringLiteral("hand")));
        line().set("position", "10,20.5");
        line().set("rotation", "angle: 15; fixedPoint: TopLeft;");
        line().set("length", "33.33333333");
        line().set("angle", "359.99");
        line().set("width", "100");
        line().set("color", "#80f8971d");
        line().set("keepRatio", "2");
        QCOMPARE(line().element->toQml(1), QStringLiteral("\tLine {\n"
                                                          "\t\tid: hand\n"
                                                          "\t\tx: 10\n"
                                                          "\t\ty: 20.5\n"
                                                          "\t\trotation: 15\n"
                                                          "\t\tfixedPoint: \"TopLeft\"\n"
                                                          "\t\tlength: 33.3333\n"
                                                          "\t\tangle: 359.99\n"
                                                          "\t\tlineWidth: 100\n"
                                                          "\t\tcolor: \"#80f8971d\"\n"
                                                          "\t}"));
    }

    void valuesBeyondTheLimitsOfTheEditorsAreTaken_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* id, const char* value) {
            QTest::addRow("%s %s", id, value) << QString::fromLatin1(id) << QString::fromLatin1(value);
        };
        for (const char* value : {"0", "-5", "0.5", "10000", "1e+300"})
            row("length", value);
        for (const char* value : {"-30", "360", "720.5", "1e+300"})
            row("angle", value);
        for (const char* value : {"0", "-5", "101", "2147483647", "-2147483648"})
            row("width", value);
    }

    void valuesBeyondTheLimitsOfTheEditorsAreTaken()
    {
        QFETCH(QString, id);
        QFETCH(QString, value);
        const QByteArray property = id.toLatin1();
        const auto* item = line().place<GraphicsLine>();
        QVERIFY(line().set(property.constData(), value));
        QCOMPARE(line().value(property.constData()), value);
        const QRectF bounds = line().element->getBoundingRect();
        QCOMPARE(item->outerRect(), bounds);
        QVERIFY(std::isfinite(bounds.width()) && std::isfinite(bounds.height()));
        QVERIFY(
            near(ValueConversion::toSize(line().value("boundingSize")), bounds.size(), 1e-6 * bounds.width() + 1e-6));
        QVERIFY(line().element->toQml(0).contains(QLatin1String("length: ")));
    }

    void textsThatDoNotConvertAreKeptAndInert_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* id, const char* text) {
            QTest::addRow("%s \"%s\"", id, text) << QString::fromLatin1(id) << QString::fromLatin1(text);
        };
        for (const char* text : {"", "long", "nan", "inf", "1e400", "1,5", " 5"}) {
            row("length", text);
            row("angle", text);
        }
        for (const char* text : {"", "thick", "2.5", "2147483648", "1e3"})
            row("width", text);
        for (const char* text : {"", "chartreusish", "#12345"})
            row("color", text);
        for (const char* text : {"", "ratio", "nan"})
            row("keepRatio", text);
        for (const char* text : {"", "100", "100;2", "nan,2"})
            row("boundingSize", text);
    }

    void textsThatDoNotConvertAreKeptAndInert()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        const QByteArray property = id.toLatin1();
        line().set("length", "60");
        line().set("angle", "30");
        line().set("width", "7");
        const auto* item = line().place<GraphicsLine>();
        const QRectF outline = item->outerRect();
        const QString outer = line().value("boundingSize");
        const QStringList before = line().element->toQml(0).split(QLatin1Char('\n'));
        QVERIFY(line().set(property.constData(), text));
        QCOMPARE(line().value(property.constData()), text);
        QCOMPARE(item->outerRect(), outline);
        if (id != QLatin1String("boundingSize"))
            QCOMPARE(line().value("boundingSize"), outer);
        // The line of that property is missing, and no other one is.
        QStringList missing = before;
        const QString after = line().element->toQml(0);
        missing.removeIf([&after](const QString& written) { return after.contains(written); });
        const bool exported = id != QLatin1String("keepRatio") && id != QLatin1String("boundingSize");
        QCOMPARE(missing.size(), exported ? 1 : 0);
    }

    void aTypedOuterSizeIsThatOfTheOutlineWhoseTopLeftCornerStays()
    {
        QVERIFY(rc::check("any line, turned or not, any size that a line of its thickness has", [this] {
            init();
            const int thickness = anyThickness();
            fill(hundredths(1, *rc::gen::element(60, 500, 9999)), anyAngle(), thickness);
            line().set("position", ValueConversion::toString(QPointF(hundredths(-500, 500), hundredths(-500, 500))));
            if (number(0, 3) == 0) {
                RotationInfo rotation;
                rotation.setAngle(number(-360, 361));
                rotation.setFixedPoint(QString::fromLatin1(*rc::gen::element("Center", "TopLeft", "BottomRight")));
                line().set("rotation", ValueConversion::toString(rotation));
            }
            const auto* item = line().place<GraphicsLine>();
            const QPointF corner = topLeftOnParent();
            const QPolygonF aim = lineOutline(hundredths(1, *rc::gen::element(60, 500, 9999)), anyAngle(), thickness);
            const QSizeF wanted = aim.boundingRect().size();
            const QStringList before = values();
            line().set("boundingSize", ValueConversion::toString(wanted));

            const QSizeF size = line().element->getBoundingRect().size();
            if (values() == before) {
                RC_TAG("dropped");
                return; // which sizes are is tested with the numbers alone
            }
            RC_ASSERT(near(size, wanted, Pixel));
            RC_ASSERT((topLeftOnParent() - corner).manhattanLength() <= 1e-6);
            RC_ASSERT(line().value("width") == QString::number(thickness));
            RC_ASSERT(item->outerRect() == line().element->getBoundingRect());
            RC_ASSERT(near(ValueConversion::toSize(line().value("boundingSize")), size, 1e-6));
        }));
    }

    void alongAnAxisWholeLengthsStayWhole_data()
    {
        QTest::addColumn<QString>("angle");
        QTest::addColumn<QString>("outer");
        QTest::addColumn<QString>("position");
        QTest::newRow("right") << QStringLiteral("0") << QStringLiteral("150,3") << QStringLiteral("300.1,200");
        QTest::newRow("down") << QStringLiteral("90") << QStringLiteral("3,150") << QStringLiteral("300.1,200");
        // The end stays where it is, and the start moves away.
        QTest::newRow("left") << QStringLiteral("180") << QStringLiteral("150,3") << QStringLiteral("350.1,200");
        QTest::newRow("up") << QStringLiteral("270") << QStringLiteral("3,150") << QStringLiteral("300.1,250");
    }

    void alongAnAxisWholeLengthsStayWhole()
    {
        QFETCH(QString, angle);
        QFETCH(QString, outer);
        QFETCH(QString, position);
        line().set("angle", angle);
        line().set("width", "3");
        line().set("position", "300.1,200");
        line().place<GraphicsLine>();
        QVERIFY(line().set("boundingSize", outer));
        QCOMPARE(line().value("length"), QStringLiteral("150"));
        QCOMPARE(line().value("angle"), angle);
        QCOMPARE(line().value("width"), QStringLiteral("3"));
        QCOMPARE(line().value("position"), position);
        QCOMPARE(line().value("boundingSize"), outer);
    }

    void aSizeThatNoLineHasSnapsBack_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed :
             {"100,1", "100,0", "0,0", "-100,2", "100,-2", "-100,-2", "0.5,2", "0.5,1e-9", "1e-300,50"})
            QTest::newRow(typed) << QString::fromLatin1(typed);
    }

    void aSizeThatNoLineHasSnapsBack()
    {
        QFETCH(QString, typed);
        line().place<GraphicsLine>();
        const QStringList before = values();
        QVERIFY(line().set("boundingSize", typed));
        QCOMPARE(values(), before);
    }

    void theSizeThatIsThereAlreadyChangesNothing_data()
    {
        QTest::addColumn<QString>("ratio");
        QTest::newRow("free") << QStringLiteral("0");
        QTest::newRow("kept ratio") << QStringLiteral("2");
    }

    void theSizeThatIsThereAlreadyChangesNothing()
    {
        QFETCH(QString, ratio);
        line().set("angle", "37.123");
        line().set("width", "9");
        line().place<GraphicsLine>();
        line().set("keepRatio", ratio);
        const QStringList before = values();
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        QVERIFY(line().set("boundingSize", line().value("boundingSize")));
        QCOMPARE(values(), before);
    }

    void aKeptRatioScalesThicknessAndLengthByOneFactor_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("outer");
        const auto row = [](const char* name, const char* typed, const char* length, const char* width,
                            const char* outer) {
            QTest::newRow(name) << QString::fromLatin1(typed) << QString::fromLatin1(length)
                                << QString::fromLatin1(width) << QString::fromLatin1(outer);
        };
        // From 100 x 10.
        row("the width", "150,10", "150", "15", "150,15");
        row("the height", "100,20", "200", "20", "200,20");
        row("both: the width decides", "120,50", "120", "12", "120,12");
        row("the thickness is whole", "124,10", "124", "12", "124,12");
        row("the thickness is rounded upwards", "125,10", "125", "13", "125,13");
        row("no thicker than 100", "5000,10", "1000", "100", "1000,100");
        row("no thinner than 1", "3,10", "10", "1", "10,1");
        row("nothing", "0,10", "10", "1", "10,1");
        row("negative", "-70,10", "10", "1", "10,1");
        row("huge", "1e300,10", "1000", "100", "1000,100");
    }

    void aKeptRatioScalesThicknessAndLengthByOneFactor()
    {
        QFETCH(QString, typed);
        QFETCH(QString, length);
        QFETCH(QString, width);
        QFETCH(QString, outer);
        line().set("width", "10");
        line().set("keepRatio", "10");
        line().place<GraphicsLine>();
        QVERIFY(line().set("boundingSize", typed));
        QCOMPARE(line().value("length"), length);
        QCOMPARE(line().value("width"), width);
        QCOMPARE(line().value("angle"), QStringLiteral("0"));
        QCOMPARE(line().value("boundingSize"), outer);
    }

    void aKeptRatioLimitsTheLength()
    {
        line().set("length", "5000");
        line().set("keepRatio", "1");
        line().place<GraphicsLine>();
        QVERIFY(line().set("boundingSize", "50000,2"));
        QCOMPARE(line().value("length"), QStringLiteral("9999"));
        QCOMPARE(line().value("width"), QStringLiteral("4"));
        line().set("length", "3");
        line().set("width", "50");
        QVERIFY(line().set("boundingSize", "0.5,50"));
        QCOMPARE(line().value("length"), QStringLiteral("1"));
        QCOMPARE(line().value("width"), QStringLiteral("17"));
        // At the limit already.
        QVERIFY(line().set("boundingSize", "0.5,17"));
        QCOMPARE(line().value("length"), QStringLiteral("1"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("1,17"));
    }

    void withAKeptRatioNoLineLeavesTheLimits()
    {
        QVERIFY(rc::check("any line, any size", [this] {
            init();
            fill(hundredths(1, *rc::gen::element(60, 9999)), anyAngle(), anyThickness());
            line().set("position", "300,200");
            line().set("keepRatio", ValueConversion::toString(hundredths(0, 9) + 0.01));
            line().place<GraphicsLine>();
            const double length = real("length");
            const QRectF before = line().element->getBoundingRect();
            const QPointF corner = topLeftOnParent();
            QSizeF wanted = ValueConversion::toSize(line().value("boundingSize"));
            const bool byWidth = *rc::gen::arbitrary<bool>();
            if (byWidth)
                wanted.setWidth(*rc::gen::element(hundredths(0, 500), 1e6, -3.0));
            else
                wanted.setHeight(*rc::gen::element(hundredths(0, 500), 1e6, -3.0));
            RC_PRE(wanted != ValueConversion::toSize(line().value("boundingSize")));
            const QString angle = line().value("angle");
            const int width = line().value("width").toInt();
            line().set("boundingSize", ValueConversion::toString(wanted));

            RC_ASSERT(real("length") >= 1 && real("length") <= 9999);
            RC_ASSERT(line().value("width").toInt() >= 1 && line().value("width").toInt() <= 100);
            RC_ASSERT(line().value("angle") == angle);
            RC_ASSERT((topLeftOnParent() - corner).manhattanLength() <= 1e-6);
            const QSizeF now = line().element->getBoundingRect().size();
            if (real("length") == length)
                return;
            // One factor, but for the rounding of the thickness.
            RC_ASSERT(std::abs(line().value("width").toInt() - width * real("length") / length) <= 0.5 + 1e-6);
            const bool limited = real("length") <= 1 + 1e-9 || real("length") >= 9999 - 1e-9
                                 || std::abs(width * real("length") / length - 1) < 1e-9
                                 || std::abs(width * real("length") / length - 100) < 1e-7;
            if (!limited && byWidth)
                RC_ASSERT(std::abs(now.width() - wanted.width()) <= Pixel + 1e-6 * wanted.width() / before.width());
            if (!limited && !byWidth)
                RC_ASSERT(std::abs(now.height() - wanted.height()) <= Pixel + 1e-6 * wanted.height() / before.height());
            // The ratio is now that of the line as it is.
            RC_ASSERT(real("keepRatio") == now.width() / now.height());
        }));
    }

    void aKeptRatioDescribesTheLineAsItIs()
    {
        line().set("width", "10");
        line().place<GraphicsLine>();
        line().set("length", "200");
        QCOMPARE(line().value("keepRatio"), QStringLiteral("0"));
        line().set("keepRatio", "20");
        line().set("length", "300");
        QCOMPARE(line().value("keepRatio"), QStringLiteral("30"));
        line().set("width", "20");
        QCOMPARE(line().value("keepRatio"), QStringLiteral("15"));
        line().set("angle", "90");
        QCOMPARE(ValueConversion::toReal(line().value("keepRatio")), 20.0 / 300);
        line().set("color", "#000000");
        line().set("position", "1,2");
        QCOMPARE(ValueConversion::toReal(line().value("keepRatio")), 20.0 / 300);
        // A line that is none has no ratio, and leaves the one that it had.
        line().set("length", "0");
        QCOMPARE(ValueConversion::toReal(line().value("keepRatio")), 20.0 / 300);
        line().set("keepRatio", "wide");
        line().set("length", "100");
        QCOMPARE(line().value("keepRatio"), QStringLiteral("wide"));
    }

    void whatCannotBeReadLeavesTheLineAlone_data()
    {
        QTest::addColumn<QString>("id");
        QTest::newRow("position") << QStringLiteral("position");
        QTest::newRow("keepRatio") << QStringLiteral("keepRatio");
    }

    void whatCannotBeReadLeavesTheLineAlone()
    {
        QFETCH(QString, id);
        line().place<GraphicsLine>();
        line().set(id.toLatin1().constData(), "broken");
        const QStringList before = values();
        QVERIFY(line().set("boundingSize", "150,2"));
        QCOMPARE(values(), before);
    }

    void anOuterSizeThatDoesNotConvertIsInertAndTheNextOneIsNot()
    {
        line().place<GraphicsLine>();
        QVERIFY(line().set("boundingSize", "wide"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("wide"));
        QCOMPARE(line().value("length"), QStringLiteral("100"));
        // There is no size before this one, and the item says what it is.
        QVERIFY(line().set("boundingSize", "150,2"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("100,2"));
        QVERIFY(line().set("boundingSize", "150,2"));
        QCOMPARE(line().value("length"), QStringLiteral("150"));
    }

    void aLineThatIsNoneComesBackWithASize()
    {
        line().place<GraphicsLine>();
        line().set("length", "0");
        QCOMPARE(line().value("boundingSize"), QStringLiteral("0,0"));
        QVERIFY(line().set("boundingSize", "80,2"));
        QCOMPARE(line().value("length"), QStringLiteral("80"));
        QCOMPARE(line().element->getBoundingRect().size(), QSizeF(80, 2));
        // Without a thickness there is nothing to make a line of.
        line().set("width", "0");
        QVERIFY(line().set("boundingSize", "80,2"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("0,0"));
        line().set("keepRatio", "3");
        QVERIFY(line().set("boundingSize", "80,2"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("0,0"));
        QCOMPARE(line().value("length"), QStringLiteral("80"));
    }

    void withoutACanvasItemTheLineStays()
    {
        QVERIFY(line().set("boundingSize", "50,50"));
        QCOMPARE(line().value("length"), QStringLiteral("100"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("50,50"));
    }

    void anItemOfAnotherShapeIsNotFollowed()
    {
        line().place<GraphicsRectangle>();
        QVERIFY(line().set("boundingSize", "50,50"));
        QCOMPARE(line().value("length"), QStringLiteral("100"));
    }

    void whileTheItemChangesSizeTheElementDoesNotReact()
    {
        auto* item = line().place<GraphicsLine>();
        item->setChangingSize(true);
        QVERIFY(line().set("boundingSize", "50,2"));
        QCOMPARE(line().value("length"), QStringLiteral("100"));
        item->setChangingSize(false);
        QVERIFY(line().set("boundingSize", "60,2"));
        QCOMPARE(line().value("length"), QStringLiteral("60"));
    }

    void otherPropertiesLeaveTheLineAlone()
    {
        line().place<GraphicsLine>();
        line().set("color", "#102030");
        line().set("position", "4,5");
        line().set("rotation", "angle: 33; fixedPoint: TopLeft;");
        line().set("keepRatio", "50");
        QCOMPARE(line().value("length"), QStringLiteral("100"));
        QCOMPARE(line().value("angle"), QStringLiteral("0"));
        QCOMPARE(line().value("width"), QStringLiteral("2"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("100,2"));
    }

    void noPropertyIsNoChange() { line().element->afterPropertyChanged(nullptr, QString()); }

private:
    [[nodiscard]] ShapeFixture& line() const { return *m_line; }

    void fill(double length, double angle, int thickness) const
    {
        line().set("length", ValueConversion::toString(length));
        line().set("angle", ValueConversion::toString(angle));
        line().set("width", QString::number(thickness));
    }

    [[nodiscard]] double real(const char* id) const { return ValueConversion::toReal(line().value(id)); }

    [[nodiscard]] QStringList values() const
    {
        QStringList values;
        for (const auto& property : line().element->properties())
            values.append(property->id() + QLatin1Char('=') + property->valueString());
        return values;
    }

    /// Where the top left corner of the unturned outline is, in the parent's coordinates: the line turns about its start.
    [[nodiscard]] QPointF topLeftOnParent() const
    {
        const double angle = ValueConversion::toRotationInfo(line().value("rotation")).angle();
        const QPointF corner = line().element->getBoundingRect().topLeft();
        return ValueConversion::toPoint(line().value("position")) + rotationAbout(QPointF(0, 0), angle).map(corner);
    }

    std::unique_ptr<ShapeFixture> m_line;
};

QTEST_MAIN(tst_Line)
#include "tst_Line.moc"
