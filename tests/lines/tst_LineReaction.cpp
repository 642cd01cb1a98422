#include "lines/GraphicsLine.h"
#include "lines/Line.h"
#include "tests/lines/AnyNumber.h"
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
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr double Pixel = 0.5; // how far an outline may be from what was asked for

double anyAngle()
{
    return anyNumber(0, 3) == 0 ? 90.0 * anyNumber(0, 4) : anyNumber(0, 36000) / 100.0;
}

int anyThickness()
{
    return anyNumber(0, 2) == 0 ? anyNumber(1, 6) : anyNumber(1, 101);
}

bool near(const QSizeF& a, const QSizeF& b, double tolerance)
{
    return std::abs(a.width() - b.width()) <= tolerance && std::abs(a.height() - b.height()) <= tolerance;
}

} // namespace

/// How a line follows a new outer size: by length, angle and place, with a kept ratio also by thickness.
class tst_LineReaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_line = std::make_unique<ShapeFixture>(std::make_unique<Line>()); }
    void cleanup() { m_line.reset(); }

    void aTypedOuterSizeIsThatOfTheOutlineWhoseTopLeftCornerStays()
    {
        QVERIFY(rc::check("any line, turned or not, any size that a line of its thickness has", [this] {
            init();
            const int thickness = anyThickness();
            fill(anyHundredths(1, *rc::gen::element(60, 500, 9999)), anyAngle(), thickness);
            line().set("position",
                       ValueConversion::toString(QPointF(anyHundredths(-500, 500), anyHundredths(-500, 500))));
            if (anyNumber(0, 3) == 0) {
                RotationInfo rotation;
                rotation.setAngle(anyNumber(-360, 361));
                rotation.setFixedPoint(QString::fromLatin1(*rc::gen::element("Center", "TopLeft", "BottomRight")));
                line().set("rotation", ValueConversion::toString(rotation));
            }
            const auto* item = line().place<GraphicsLine>();
            const QPointF corner = topLeftOnParent();
            const QPolygonF aim =
                lineOutline(anyHundredths(1, *rc::gen::element(60, 500, 9999)), anyAngle(), thickness);
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
            fill(anyHundredths(1, *rc::gen::element(60, 9999)), anyAngle(), anyThickness());
            line().set("position", "300,200");
            line().set("keepRatio", ValueConversion::toString(anyHundredths(0, 9) + 0.01));
            line().place<GraphicsLine>();
            const double length = real("length");
            const QRectF before = line().element->getBoundingRect();
            const QPointF corner = topLeftOnParent();
            QSizeF wanted = ValueConversion::toSize(line().value("boundingSize"));
            const bool byWidth = *rc::gen::arbitrary<bool>();
            if (byWidth)
                wanted.setWidth(*rc::gen::element(anyHundredths(0, 500), 1e6, -3.0));
            else
                wanted.setHeight(*rc::gen::element(anyHundredths(0, 500), 1e6, -3.0));
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

QTEST_MAIN(tst_LineReaction)
#include "tst_LineReaction.moc"
