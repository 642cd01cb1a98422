#include "host/common/RealComparison.h"

#include <QTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

class TestRealComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void halvesAreRoundedUpwards_data();
    void halvesAreRoundedUpwards();
    void roundingMatchesWholeNumberArithmetic();
    void equalityToDecimals();
    void negativeDecimalsCompareExactly();
    void notANumberEqualsNothing();
    void fuzzyEqualityIsRelative();
};

void TestRealComparison::halvesAreRoundedUpwards_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("rounded");
    QTest::newRow("0") << 0.0 << 0.0;
    QTest::newRow("0.49") << 0.49 << 0.0;
    QTest::newRow("0.5") << 0.5 << 1.0;
    QTest::newRow("2.5") << 2.5 << 3.0;
    QTest::newRow("-0.4") << -0.4 << 0.0;
    QTest::newRow("-0.5") << -0.5 << 0.0;
    QTest::newRow("-0.51") << -0.51 << -1.0;
    QTest::newRow("-1.5") << -1.5 << -1.0;
    QTest::newRow("-1.6") << -1.6 << -2.0;
    QTest::newRow("-3") << -3.0 << -3.0;
}

void TestRealComparison::halvesAreRoundedUpwards()
{
    QFETCH(double, value);
    QFETCH(double, rounded);
    QCOMPARE(roundedToWhole(value), rounded);
}

void TestRealComparison::roundingMatchesWholeNumberArithmetic()
{
    QVERIFY(rc::check("as with integers", [](int whole) {
        const double value = whole + *rc::gen::inRange(0, 1000) / 1000.0;
        const double expected = value >= 0
                                    ? double(qint64(value + 0.5))
                                    : double(qint64(value - double(qint64(value - 1)) + 0.5) + qint64(value - 1));
        RC_ASSERT(roundedToWhole(value) == expected);
    }));
}

void TestRealComparison::equalityToDecimals()
{
    QVERIFY(equalToDecimals(1.001, 1.004, 2));
    QVERIFY(!equalToDecimals(1.004, 1.006, 2));
    QVERIFY(equalToDecimals(-1.001, -1.004, 2));
    QVERIFY(!equalToDecimals(-1.004, -1.006, 2));
    QVERIFY(equalToDecimals(0.2, 0.4, 0));
    QVERIFY(equalToDecimals(-0.5, 0.4, 0));
    QVERIFY(!equalToDecimals(-0.6, 0.4, 0));
    QVERIFY(equalToDecimals(1e300, 1e300, 20));
    QVERIFY(!equalToDecimals(1e300, 2e300, 20));
}

void TestRealComparison::negativeDecimalsCompareExactly()
{
    QVERIFY(equalToDecimals(1.5, 1.5, -1));
    QVERIFY(!equalToDecimals(1.5, std::nextafter(1.5, 2), -1));
}

void TestRealComparison::notANumberEqualsNothing()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!equalToDecimals(nan, nan, 2));
    QVERIFY(!equalToDecimals(nan, nan, -1));
    QVERIFY(!fuzzyEqual(nan, nan));
    QVERIFY(!fuzzyEqual(nan, 1));
}

void TestRealComparison::fuzzyEqualityIsRelative()
{
    QVERIFY(fuzzyEqual(0, 0));
    QVERIFY(!fuzzyEqual(0, 1e-300));
    QVERIFY(fuzzyEqual(1, 1 + 1e-13));
    QVERIFY(!fuzzyEqual(1, 1 + 1e-11));
    QVERIFY(fuzzyEqual(-1e9, -1e9 - 1e-4));
    QVERIFY(!fuzzyEqual(-1, 1));
}

QTEST_APPLESS_MAIN(TestRealComparison)
#include "tst_RealComparison.moc"
