#include "lines/LineShape.h"
#include "tests/lines/AnyNumber.h"

#include "host/common/RealComparison.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>
#include <limits>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;
using Korvex::Meridane::Common::fuzzyEqual;

namespace {

constexpr double Pixel = 0.5; // how far an outline may be from what was asked for

double anyLength()
{
    return anyNumber(0, 2) == 0 ? anyReal(1, 60) : std::pow(10, anyReal(0, std::log10(9999.0)));
}

double anyAngle()
{
    return anyNumber(0, 3) == 0 ? 90.0 * anyNumber(0, 4) : anyReal(0, 359.99);
}

double anyThickness()
{
    return anyNumber(0, 2) == 0 ? anyNumber(1, 6) : anyNumber(1, 101);
}

int quadrant(double angle)
{
    return int(std::floor(angle / 90)) % 4;
}

/// The line that lies in the quadrant \a wanted as \a angle lies in its own.
double mirrored(double angle, int wanted)
{
    const double rest = std::fmod(angle, 90);
    const double fromHorizontal = quadrant(angle) % 2 == 0 ? rest : 90 - rest;
    return wanted % 2 == 0 ? 90 * wanted + fromHorizontal : 90 * (wanted + 1) - fromHorizontal;
}

bool hasSize(const LineShape& line, const QSizeF& box)
{
    const QSizeF size = line.bounds().size();
    return std::abs(size.width() - box.width()) <= Pixel && std::abs(size.height() - box.height()) <= Pixel;
}

void addLineColumns()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("thickness");
    QTest::addColumn<QSizeF>("box");
}

} // namespace

/// How a line follows a change of its outer size, in numbers.
class tst_LineShape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAlongAnAxisHaveExactBounds_data()
    {
        QTest::addColumn<double>("angle");
        QTest::addColumn<QRectF>("bounds");
        QTest::newRow("0") << 0.0 << QRectF(0, -1.5, 100.1, 3);
        QTest::newRow("90") << 90.0 << QRectF(-1.5, 0, 3, 100.1);
        QTest::newRow("180") << 180.0 << QRectF(-100.1, -1.5, 100.1, 3);
        QTest::newRow("270") << 270.0 << QRectF(-1.5, -100.1, 3, 100.1);
        QTest::newRow("360") << 360.0 << QRectF(0, -1.5, 100.1, 3);
        QTest::newRow("ten turns and 90") << 3690.0 << QRectF(-1.5, 0, 3, 100.1);
        QTest::newRow("many turns") << 3.6e15 << QRectF(0, -1.5, 100.1, 3);
        QTest::newRow("-90") << -90.0 << QRectF(-1.5, -100.1, 3, 100.1);
    }

    void linesAlongAnAxisHaveExactBounds()
    {
        QFETCH(double, angle);
        QFETCH(QRectF, bounds);
        const QRectF found = LineShape{100.1, angle, 3}.bounds();
        QVERIFY(found.x() == bounds.x());
        QVERIFY(found.y() == bounds.y());
        QVERIFY(found.width() == bounds.width());
        QVERIFY(found.height() == bounds.height());
    }

    void whatIsNoLineHasNoBounds()
    {
        QCOMPARE((LineShape{100, 30, 0.99}.bounds()), QRectF());
        QCOMPARE((LineShape{0, 30, 2}.bounds()), QRectF());
        QCOMPARE((LineShape{-5, 30, 2}.bounds()), QRectF());
        const double endless = std::numeric_limits<double>::infinity();
        QCOMPARE((LineShape{endless, 30, 2}.bounds()), QRectF());
        QCOMPARE((LineShape{100, -endless, 2}.bounds()), QRectF());
        QCOMPARE((LineShape{100, 30, endless}.bounds()), QRectF());
    }

    void theOutlineGetsTheSizeAskedForInTheQuadrantOfTheLine()
    {
        QVERIFY(rc::check("any line, any size that a line of its thickness has", [] {
            const double thickness = anyThickness();
            const LineShape line{anyLength(), anyAngle(), thickness};
            const LineShape aim{anyLength(), anyAngle(), thickness};
            const QSizeF box = aim.bounds().size();
            const auto fitted = line.fitted(box);
            if (!fitted) {
                // Dropped: a line of the same length, or one that would end above 359.99 degrees.
                RC_TAG("dropped");
                const double there = mirrored(aim.angle, quadrant(line.angle));
                RC_ASSERT(fuzzyEqual(aim.length, line.length) || there > 359.98);
                return;
            }
            RC_ASSERT(hasSize(*fitted, box));
            RC_ASSERT(fitted->thickness == thickness);
            RC_ASSERT(fitted->length >= LineShape::Shortest && fitted->length <= LineShape::Longest);
            RC_ASSERT(fitted->angle >= 0 && fitted->angle <= LineShape::LastAngle);
            // Its end may be the first axis of the next quadrant.
            const double turned = fitted->angle - 90 * quadrant(line.angle);
            RC_ASSERT(turned >= 0 && turned <= 90);
        }));
    }

    void aShortLineIsFoundBesideOneThatIsTooShort_data()
    {
        QTest::addColumn<double>("length");
        QTest::addColumn<double>("angle");
        QTest::addColumn<double>("thickness");
        // Each of their sizes is also, and more exactly on a step of the search, that of a line shorter than 1.
        QTest::newRow("level") << 1.07168 << 0.459 << 4.0;
        QTest::newRow("level and thick") << 1.07423 << 0.163888 << 22.0;
        QTest::newRow("plumb") << 1.18272 << 89.855 << 23.0;
        QTest::newRow("plumb and thick") << 1.07792 << 89.9766 << 71.0;
    }

    void aShortLineIsFoundBesideOneThatIsTooShort()
    {
        QFETCH(double, length);
        QFETCH(double, angle);
        QFETCH(double, thickness);
        const QSizeF box = LineShape{length, angle, thickness}.bounds().size();
        const auto fitted = LineShape{77, 45, thickness}.fitted(box);
        QVERIFY(fitted);
        QVERIFY(hasSize(*fitted, box));
    }

    void anySizeGivesALineWithinTheLimitsOrNone()
    {
        QVERIFY(rc::check("any size", [] {
            const auto side = [] {
                if (anyNumber(0, 4) > 0)
                    return anyNumber(0, 3) > 0 ? anyReal(-10, 1000) : anyReal(0, 5);
                return *rc::gen::element(std::pow(10, anyReal(-300, 308)), 0.0, std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN());
            };
            const LineShape line{*rc::gen::element(anyLength(), 0.0, -5.0, 1e300), anyAngle(), anyThickness()};
            const double width = side();
            const auto fitted = line.fitted({width, side()});
            RC_CLASSIFY(fitted.has_value(), "fitted");
            if (!fitted)
                return;
            RC_ASSERT(fitted->length >= LineShape::Shortest && fitted->length <= LineShape::Longest);
            RC_ASSERT(fitted->angle >= 0 && fitted->angle <= LineShape::LastAngle);
            RC_ASSERT(fitted->thickness == line.thickness);
        }));
    }

    void whatBelongsToAnAxisGoesClockwiseFromIt_data()
    {
        QTest::addColumn<double>("angle");
        QTest::addColumn<double>("fitted");
        // Of a size as a line at 30 degrees has it.
        QTest::newRow("0") << 0.0 << 30.0;
        QTest::newRow("360 is 0") << 360.0 << 30.0;
        QTest::newRow("in the first quadrant") << 77.0 << 30.0;
        QTest::newRow("90") << 90.0 << 150.0;
        QTest::newRow("90 but for noise") << 90 - 1e-12 << 150.0;
        QTest::newRow("nearly 90") << 90 - 1e-9 << 30.0;
        QTest::newRow("in the second quadrant") << 91.0 << 150.0;
        QTest::newRow("180") << 180.0 << 210.0;
        QTest::newRow("in the third quadrant") << 269.9 << 210.0;
        QTest::newRow("270") << 270.0 << 330.0;
        QTest::newRow("270 but for noise") << 270 - 1e-11 << 330.0;
        QTest::newRow("in the fourth quadrant") << 271.0 << 330.0;
        QTest::newRow("a turn more") << 360 + 91.0 << 150.0;
        QTest::newRow("counter-clockwise") << -1.0 << 330.0;
        QTest::newRow("a quarter counter-clockwise") << -90.0 << 330.0;
    }

    void whatBelongsToAnAxisGoesClockwiseFromIt()
    {
        QFETCH(double, angle);
        QFETCH(double, fitted);
        const QSizeF box = LineShape{200, 30, 4}.bounds().size();
        const auto line = LineShape{100, angle, 4}.fitted(box);
        QVERIFY(line);
        QVERIFY2(std::abs(line->angle - fitted) < 0.02, qPrintable(QString::number(line->angle)));
        QVERIFY(std::abs(line->length - 200) < 0.02);
    }

    void aLineAlongAnAxisStaysThereWhenItsLengthChanges_data()
    {
        QTest::addColumn<double>("angle");
        for (const double angle : {0.0, 90.0, 180.0, 270.0})
            QTest::addRow("%g", angle) << angle;
    }

    void aLineAlongAnAxisStaysThereWhenItsLengthChanges()
    {
        QFETCH(double, angle);
        const bool vertical = angle == 90 || angle == 270;
        for (const double length : {150.0, 33.3, 1.0, 9999.0}) {
            const auto line = LineShape{100, angle, 7}.fitted(vertical ? QSizeF(7, length) : QSizeF(length, 7));
            QVERIFY(line);
            QVERIFY(line->length == length);
            QVERIFY(line->angle == angle);
        }
        // An outer size as it is kept, with 6 decimals.
        const auto line = LineShape{100, angle, 7}.fitted(vertical ? QSizeF(7.0000004, 50) : QSizeF(50, 6.9999996));
        QVERIFY(line && line->length == 50 && line->angle == angle);
    }

    void aLineThatHasLeftItsAxisComesBackToItExactly_data() { aLineAlongAnAxisStaysThereWhenItsLengthChanges_data(); }

    void aLineThatHasLeftItsAxisComesBackToItExactly()
    {
        QFETCH(double, angle);
        const bool vertical = angle == 90 || angle == 270;
        const auto box = [vertical](double along, double across) {
            return vertical ? QSizeF(across, along) : QSizeF(along, across);
        };
        const auto away = LineShape{100, angle, 20}.fitted(box(110, 27));
        QVERIFY(away && away->angle > angle && away->angle < angle + 90);
        const auto back = away->fitted(box(105, 20));
        QVERIFY(back);
        QVERIFY(back->angle == angle);
        QVERIFY(back->length == 105);
    }

    void aLineThatReachesTheNextAxisStaysInItsQuadrant_data()
    {
        QTest::addColumn<double>("angle");
        for (const double angle : {45.0, 135.0, 225.0})
            QTest::addRow("%g", angle) << angle;
    }

    void aLineThatReachesTheNextAxisStaysInItsQuadrant()
    {
        QFETCH(double, angle);
        const bool vertical = quadrant(angle) % 2 == 0;
        const auto onAxis = LineShape{100, angle, 10}.fitted(vertical ? QSizeF(10, 150) : QSizeF(150, 10));
        QVERIFY(onAxis);
        QVERIFY(std::abs(onAxis->angle - 90 * (quadrant(angle) + 1)) < 0.001);
        QVERIFY(hasSize(*onAxis, vertical ? QSizeF(10, 150) : QSizeF(150, 10)));
        const auto back = onAxis->fitted(LineShape{100, angle, 10}.bounds().size());
        QVERIFY(back);
        QVERIFY(std::abs(back->angle - angle) < 0.02);
    }

    void aResultAbove359Point99IsDropped()
    {
        const LineShape line{100, 300, 4};
        const auto boxAt = [](double angle) { return LineShape{200, angle, 4}.bounds().size(); };
        const auto below = line.fitted(boxAt(359.98));
        QVERIFY(below && below->angle <= LineShape::LastAngle);
        QVERIFY(!line.fitted(boxAt(359.995)));
        QVERIFY(!line.fitted({200, 4}));
        // The other quadrants have no such end.
        QVERIFY((LineShape{100, 45, 4}.fitted({200, 4})));
        QVERIFY((LineShape{100, 135, 4}.fitted({200, 4})));
        QVERIFY((LineShape{100, 225, 4}.fitted({200, 4})));
    }

    void aSizeThatLeavesTheLengthIsDropped()
    {
        QVERIFY(!(LineShape{100, 0, 2}.fitted({100, 2})));
        QVERIFY(!(LineShape{100, 90, 2}.fitted({2, 100})));
        QVERIFY(!(LineShape{100, 0, 2}.fitted({100 + 1e-11, 2})));
        QVERIFY((LineShape{100, 0, 2}.fitted({100.001, 2})));
    }

    void aLineIsNeverShorterThan1NorLongerThan9999_data()
    {
        addLineColumns();
        QTest::newRow("level, too long") << 9999.0 << 0.0 << 2.0 << QSizeF(20000, 2);
        QTest::newRow("plumb, too long") << 9999.0 << 90.0 << 2.0 << QSizeF(2, 10000);
        QTest::newRow("slanted, too long") << 9999.0 << 30.0 << 2.0 << QSizeF(20000, 20000);
        QTest::newRow("beyond all numbers") << 9999.0 << 200.0 << 50.0 << QSizeF(1e300, 1e200);
        QTest::newRow("level, too short but for noise") << 1.0 << 180.0 << 20.0 << QSizeF(1 - 1e-7, 20);
        QTest::newRow("plumb, as short as can be") << 1.0 << 270.0 << 20.0 << QSizeF(20, 1);
        QTest::newRow("slanted, too short") << 1.0 << 130.0 << 20.0 << QSizeF(14.5, 14.5);
    }

    void aLineIsNeverShorterThan1NorLongerThan9999()
    {
        QFETCH(double, length);
        QFETCH(double, angle);
        QFETCH(double, thickness);
        QFETCH(QSizeF, box);
        const LineShape line{100, angle, thickness};
        const auto fitted = line.fitted(box);
        QVERIFY(fitted);
        QVERIFY(fitted->length == length);
        QCOMPARE(quadrant(fitted->angle), quadrant(angle));
        // It is at the limit now, and the same again changes nothing.
        QVERIFY(!fitted->fitted(box));
    }

    void whereNoLineOfTheThicknessFitsNothingChanges_data()
    {
        addLineColumns();
        QTest::newRow("lower than thick") << 100.0 << 0.0 << 20.0 << QSizeF(100, 19);
        QTest::newRow("narrower than thick") << 100.0 << 90.0 << 20.0 << QSizeF(19, 100);
        QTest::newRow("slanted, lower than thick") << 100.0 << 200.0 << 20.0 << QSizeF(100, 19);
        QTest::newRow("lower than thick, in the last quadrant") << 100.0 << 300.0 << 2.0 << QSizeF(100, 1.5);
        QTest::newRow("too narrow for its height") << 60.0 << 45.0 << 100.0 << QSizeF(48.5, 155.5);
        QTest::newRow("smaller than the thickness") << 100.0 << 45.0 << 50.0 << QSizeF(6, 7);
        QTest::newRow("level, too short") << 100.0 << 180.0 << 20.0 << QSizeF(0.3, 20);
        QTest::newRow("plumb, too short") << 100.0 << 90.0 << 20.0 << QSizeF(20, -3);
        QTest::newRow("no height") << 100.0 << 45.0 << 2.0 << QSizeF(100, 0);
        QTest::newRow("one side negative") << 100.0 << 45.0 << 2.0 << QSizeF(100, -50);
        QTest::newRow("both sides negative") << 100.0 << 45.0 << 2.0 << QSizeF(-100, -50);
        QTest::newRow("endless") << 100.0 << 0.0 << 2.0 << QSizeF(std::numeric_limits<double>::infinity(), 2);
        QTest::newRow("not a number") << 100.0 << 0.0 << 2.0 << QSizeF(std::numeric_limits<double>::quiet_NaN(), 2);
        QTest::newRow("no thickness") << 100.0 << 0.0 << 0.0 << QSizeF(200, 2);
        QTest::newRow("negative thickness") << 100.0 << 0.0 << -3.0 << QSizeF(200, 2);
        QTest::newRow("no angle") << 100.0 << std::numeric_limits<double>::quiet_NaN() << 2.0 << QSizeF(200, 2);
        QTest::newRow("endless angle") << 100.0 << std::numeric_limits<double>::infinity() << 2.0 << QSizeF(200, 2);
    }

    void whereNoLineOfTheThicknessFitsNothingChanges()
    {
        QFETCH(double, length);
        QFETCH(double, angle);
        QFETCH(double, thickness);
        QFETCH(QSizeF, box);
        QVERIFY(!(LineShape{length, angle, thickness}.fitted(box)));
    }

    void aBoxOfTheAreaOfTheThicknessGivesItsDiagonal()
    {
        const auto line = LineShape{100, 190, 6}.fitted({3, 2});
        QVERIFY(line);
        QVERIFY(std::abs(line->length - std::sqrt(13.0)) < 1e-9);
        QVERIFY(std::abs(line->angle - 180 - std::atan2(2, 3) * 180 / M_PI) < 1e-9);
        // Unless a line fits into it, even if it is shorter than thick.
        const auto upright = LineShape{100, 190, 2}.fitted({2, 1});
        QVERIFY(upright);
        QCOMPARE(upright->length, 1.0);
        QCOMPARE(upright->angle, 270.0);
    }

    void aVanishedLineIsThereAgainWithASize()
    {
        const auto line = LineShape{0, 0, 2}.fitted({80, 2});
        QVERIFY(line);
        QCOMPARE(line->length, 80.0);
        QCOMPARE(line->angle, 0.0);
    }

    void oneFactorScalesThicknessAndLengthWithinTheirLimits()
    {
        QVERIFY(rc::check("lines within the limits", [] {
            const LineShape line{anyLength(), anyAngle(), anyThickness()};
            const double factor = *rc::gen::element(anyReal(0, 3), std::pow(10, anyReal(-9, 9)), 0.0, -2.0);
            const auto scaled = line.scaled(factor);
            const double smallest = std::max(1 / line.thickness, 1 / line.length);
            const double largest = std::min(100 / line.thickness, 9999 / line.length);
            const double k = std::clamp(factor, smallest, largest);
            if (!scaled) {
                RC_TAG("as it was");
                RC_ASSERT(fuzzyEqual(k, 1));
                return;
            }
            RC_CLASSIFY(k != factor, "limited");
            RC_ASSERT(scaled->angle == line.angle);
            RC_ASSERT(std::abs(scaled->length - k * line.length) <= 1e-9 * scaled->length);
            RC_ASSERT(std::abs(scaled->thickness - k * line.thickness) <= 1e-9 * scaled->thickness);
            RC_ASSERT(scaled->length >= 1 && scaled->length <= 9999);
            RC_ASSERT(scaled->thickness >= 1 && scaled->thickness <= 100);
        }));
    }

    void aLineOutsideOfTheLimitsComesWithinThem()
    {
        QVERIFY(rc::check("any line", [] {
            const auto size = [] { return std::pow(10, anyReal(-9, 12)); };
            const LineShape line{size(), anyAngle(), size()};
            const auto scaled = line.scaled(*rc::gen::element(anyReal(0, 3), size(), 0.0, -2.0));
            if (!scaled)
                return;
            RC_ASSERT(scaled->length >= 1 && scaled->length <= 9999);
            RC_ASSERT(scaled->thickness >= 1 && scaled->thickness <= 100);
        }));
    }

    void theLimitsComeInTheirOrder()
    {
        // Thickness first: what keeps it at 1 makes the line too long, and the length has the last word.
        const auto line = LineShape{20000, 30, 1}.scaled(0.1);
        QVERIFY(line);
        QCOMPARE(line->length, 9999.0);
        QCOMPARE(line->thickness, 1.0);
    }

    void aFactorThatChangesNothingGivesNothing()
    {
        QVERIFY(!(LineShape{100, 30, 2}.scaled(1)));
        QVERIFY(!(LineShape{100, 30, 2}.scaled(1 + 1e-13)));
        QVERIFY((LineShape{100, 30, 2}.scaled(1 + 1e-11)));
        QVERIFY(!(LineShape{100, 30, 100}.scaled(2)));
        QVERIFY(!(LineShape{9999, 30, 50}.scaled(1.5)));
        QVERIFY(!(LineShape{100, 30, 1}.scaled(0.5)));
        QVERIFY(!(LineShape{1, 30, 50}.scaled(0.5)));
        QVERIFY(!(LineShape{100, 30, 2}.scaled(std::numeric_limits<double>::infinity())));
        QVERIFY(!(LineShape{100, 30, 2}.scaled(std::numeric_limits<double>::quiet_NaN())));
        QVERIFY(!(LineShape{0, 30, 2}.scaled(2)));
        QVERIFY(!(LineShape{100, 30, 0}.scaled(2)));
    }

    void theAngleOfTwoPointsIsExactWhereTheyAreLevelOrPlumb_data()
    {
        QTest::addColumn<QPointF>("start");
        QTest::addColumn<QPointF>("end");
        QTest::addColumn<double>("angle");
        QTest::newRow("right") << QPointF(10, 20) << QPointF(60, 20) << 0.0;
        QTest::newRow("down") << QPointF(10, 20) << QPointF(10, 70) << 90.0;
        QTest::newRow("left") << QPointF(10, 20) << QPointF(-40, 20) << 180.0;
        QTest::newRow("up") << QPointF(10, 20) << QPointF(10, -30) << 270.0;
        QTest::newRow("the same point") << QPointF(10, 20) << QPointF(10, 20) << 90.0;
        QTest::newRow("plumb to 2 decimals") << QPointF(10, 20) << QPointF(10.004, 70) << 90.0;
        QTest::newRow("plumb to 2 decimals, up") << QPointF(9.996, 20) << QPointF(10.004, -30) << 270.0;
        QTest::newRow("level to 2 decimals, left") << QPointF(10, 20.003) << QPointF(-40, 19.997) << 180.0;
        QTest::newRow("level below zero") << QPointF(0, -20.003) << QPointF(50, -19.997) << 0.0;
    }

    void theAngleOfTwoPointsIsExactWhereTheyAreLevelOrPlumb()
    {
        QFETCH(QPointF, start);
        QFETCH(QPointF, end);
        QFETCH(double, angle);
        QVERIFY(lineAngle(start, end) == angle);
    }

    void theAngleOfTwoPointsGoesClockwiseFromTheRight()
    {
        QCOMPARE(lineAngle({0, 0}, {10, 10}), 45.0);
        QCOMPARE(lineAngle({0, 0}, {-10, 10}), 135.0);
        QCOMPARE(lineAngle({0, 0}, {-10, -10}), 225.0);
        QCOMPARE(lineAngle({0, 0}, {10, -10}), 315.0);
        QVERIFY(lineAngle({10, 20}, {60, 20.02}) > 0);
        QVERIFY(rc::check("any two points", [] {
            const QPointF start(anyReal(-500, 500), anyReal(-500, 500));
            const QPointF end(anyReal(-500, 500), anyReal(-500, 500));
            const double angle = lineAngle(start, end);
            RC_ASSERT(angle >= 0 && angle < 360);
            const QPointF way = end - start;
            const double length = std::hypot(way.x(), way.y());
            const QPointF there(length * std::cos(angle * M_PI / 180), length * std::sin(angle * M_PI / 180));
            RC_ASSERT(std::abs(there.x() - way.x()) < 0.011 && std::abs(there.y() - way.y()) < 0.011);
        }));
    }
};

QTEST_APPLESS_MAIN(tst_LineShape)
#include "tst_LineShape.moc"
