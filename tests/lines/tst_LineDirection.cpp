#include "lines/LineDirection.h"
#include "tests/lines/AnyNumber.h"

#include "host/common/RealComparison.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;
using Korvex::Meridane::Common::equalToDecimals;

namespace {

constexpr int Steps = 8999; // of 0.01 degrees

struct Direction
{
    double cosine;
    double sine;
};

/// Cosine and sine of every step; the first one is not used. Not a constant: a compiler's cosine is not that of the
/// library to the last bit.
const std::vector<Direction>& directions()
{
    static const std::vector<Direction> table = [] {
        std::vector<Direction> made(Steps + 1);
        for (int i = 1; i <= Steps; ++i) {
            const double angle = i * M_PI / 18000;
            made[std::size_t(i)] = {std::cos(angle), std::sin(angle)};
        }
        return made;
    }();
    return table;
}

/// The search as it is defined: every step is looked at.
QPointF plainSearch(const QSizeF& box, double thickness, double shortest = 0)
{
    const double area = box.width() * box.height();
    if (thickness > area)
        return {-1, -1};
    if (equalToDecimals(thickness, area, 2))
        return {0, 0};
    double smallest = std::numeric_limits<double>::infinity();
    QPointF best(-1, -1);
    for (int i = 1; i <= Steps; ++i) {
        const auto [cosine, sine] = directions()[std::size_t(i)];
        const double dx = box.width() - cosine * thickness;
        const double dy = box.height() - thickness * sine;
        const double f = std::abs(cosine * dx - sine * dy);
        if (f < smallest && (shortest <= 0 || std::hypot(dx, dy) >= shortest)) {
            smallest = f;
            best = QPointF(thickness * cosine, thickness * sine);
        }
    }
    return best;
}

double magnitude(double lowest, double highest)
{
    return std::pow(10, anyReal(lowest, highest));
}

struct Task
{
    QSizeF box;
    double thickness;
};

/// The outer size of a line, its angle in degrees.
QSizeF outerSize(double length, double angle, double thickness)
{
    const double c = std::abs(std::cos(angle * M_PI / 180));
    const double s = std::abs(std::sin(angle * M_PI / 180));
    return {length * c + thickness * s, length * s + thickness * c};
}

Task anyTask()
{
    switch (anyNumber(0, 9)) {
    case 0: // as they come from the mouse
        return {QSizeF(anyNumber(0, 800), anyNumber(0, 480)), double(anyNumber(1, 101))};
    case 1: // a line that is there
    {
        const double thickness = anyNumber(1, 101);
        return {outerSize(anyReal(1, 600), anyReal(0, 90), thickness), thickness};
    }
    case 2: // a short and thick one, where f is flat
    {
        const double thickness = anyNumber(50, 101);
        return {outerSize(anyReal(1, 100), anyReal(30, 60), thickness), thickness};
    }
    case 3: { // a square: a direction and its mirror image are equally good
        const double side = anyReal(0, 300);
        return {QSizeF(side, side), double(anyNumber(1, 101))};
    }
    case 4: // tiny and huge
        return {QSizeF(magnitude(-9, 12), magnitude(-9, 12)), magnitude(-6, 9)};
    case 5: // beyond all reason
        return {QSizeF(magnitude(-300, 308), magnitude(-300, 308)), magnitude(-300, 308)};
    case 6: // negative
        return {QSizeF(anyReal(-300, 300), anyReal(-300, 300)), anyReal(-100, 100)};
    case 7: // both sides negative, which makes their area positive
        return {QSizeF(anyReal(-300, 0), anyReal(-300, 0)), anyReal(-100, 100)};
    default: // without an extent, or just that of the thickness
    {
        const double thickness = anyNumber(0, 101);
        return {QSizeF(*rc::gen::element(0.0, thickness, anyReal(0, 500)), *rc::gen::element(0.0, thickness, 1.0)),
                thickness};
    }
    }
}

void assertSame(const QPointF& a, const QPointF& b)
{
    // QPointF's own comparison takes neighbours for equal.
    RC_ASSERT(a.x() == b.x());
    RC_ASSERT(a.y() == b.y());
}

} // namespace

class tst_LineDirection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theResultIsThatOfThePlainSearchBitForBit()
    {
        QVERIFY(rc::check("any box", [] {
            for (int i = 0; i < 100; ++i) {
                const Task task = anyTask();
                assertSame(lineDirection(task.box, task.thickness), plainSearch(task.box, task.thickness));
            }
        }));
    }

    void linesThatAreTooShortAreLeftOutAsThePlainSearchWould()
    {
        QVERIFY(rc::check("any box", [] {
            for (int i = 0; i < 50; ++i) {
                const Task task = anyTask();
                const double shortest = *rc::gen::element(1.0, 0.01, anyReal(0, 200));
                assertSame(lineDirection(task.box, task.thickness, shortest),
                           plainSearch(task.box, task.thickness, shortest));
            }
        }));
    }

    void aLineThatIsThereIsFound()
    {
        QVERIFY(rc::check("lines longer than thick", [] {
            const double thickness = anyNumber(1, 101);
            const double length = anyReal(2 * thickness, 9999);
            const double angle = anyReal(0.01, 89.99);
            const QPointF direction = lineDirection(outerSize(length, angle, thickness), thickness);
            const double found = 90 - std::atan2(direction.y(), direction.x()) * 180 / M_PI;
            RC_ASSERT(std::abs(found - angle) < 0.0101);
            RC_ASSERT(std::abs(std::hypot(direction.x(), direction.y()) - thickness) < 1e-9);
        }));
    }

    void aThicknessAboveTheAreaFitsNowhere_data()
    {
        QTest::addColumn<QSizeF>("box");
        QTest::addColumn<double>("thickness");
        QTest::newRow("just") << QSizeF(2, 1) << std::nextafter(2.0, 3.0);
        QTest::newRow("flat") << QSizeF(100, 0) << 1.0;
        QTest::newRow("nothing") << QSizeF(0, 0) << 1.0;
        QTest::newRow("one side negative") << QSizeF(-100, 50) << 2.0;
        QTest::newRow("endless thickness") << QSizeF(1e9, 1e9) << std::numeric_limits<double>::max();
    }

    void aThicknessAboveTheAreaFitsNowhere()
    {
        QFETCH(QSizeF, box);
        QFETCH(double, thickness);
        QCOMPARE(lineDirection(box, thickness), QPointF(-1, -1));
        QCOMPARE(lineDirection(box, thickness, 1), QPointF(-1, -1));
    }

    void aThicknessEqualToTheAreaTakesNoPartOfTheBox_data()
    {
        QTest::addColumn<QSizeF>("box");
        QTest::addColumn<double>("thickness");
        QTest::addColumn<bool>("equal");
        QTest::newRow("exactly") << QSizeF(2, 1) << 2.0 << true;
        QTest::newRow("to 2 decimals") << QSizeF(2.004, 1) << 2.0 << true;
        QTest::newRow("no longer to 2 decimals") << QSizeF(2.005, 1) << 2.0 << false;
        QTest::newRow("nothing of nothing") << QSizeF(0, 7) << 0.0 << true;
        QTest::newRow("both sides negative") << QSizeF(-5, -4) << 20.0 << true;
    }

    void aThicknessEqualToTheAreaTakesNoPartOfTheBox()
    {
        QFETCH(QSizeF, box);
        QFETCH(double, thickness);
        QFETCH(bool, equal);
        QCOMPARE(lineDirection(box, thickness).isNull(), equal);
    }

    void theStepsGoFromOneHundredthToOneBelowNinetyDegrees()
    {
        // Along an axis the best step is the last or the first one.
        constexpr double Last = 8999 * M_PI / 18000;
        constexpr double First = M_PI / 18000;
        QCOMPARE(lineDirection({100, 2}, 2), QPointF(2 * std::cos(Last), 2 * std::sin(Last)));
        QCOMPARE(lineDirection({2, 100}, 2), QPointF(2 * std::cos(First), 2 * std::sin(First)));
    }

    void nothingFitsWhereANumberIsNone_data()
    {
        QTest::addColumn<double>("none");
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("endless") << std::numeric_limits<double>::infinity();
        QTest::newRow("endless downwards") << -std::numeric_limits<double>::infinity();
    }

    void nothingFitsWhereANumberIsNone()
    {
        QFETCH(double, none);
        for (const double shortest : {0.0, 1.0}) {
            QCOMPARE(lineDirection({none, 10}, 2, shortest), QPointF(-1, -1));
            QCOMPARE(lineDirection({10, none}, 2, shortest), QPointF(-1, -1));
            QCOMPARE(lineDirection({none, none}, 2, shortest), QPointF(-1, -1));
            QCOMPARE(lineDirection({10, 10}, none, shortest), QPointF(-1, -1));
            QCOMPARE(lineDirection({none, none}, none, shortest), QPointF(-1, -1));
        }
    }

    void whereEveryLineIsTooShortNothingFits()
    {
        QCOMPARE(lineDirection({30, 40}, 5, 1000), QPointF(-1, -1));
        QCOMPARE(lineDirection({30, 40}, 5, std::numeric_limits<double>::infinity()), QPointF(-1, -1));
    }
};

QTEST_APPLESS_MAIN(tst_LineDirection)
#include "tst_LineDirection.moc"
