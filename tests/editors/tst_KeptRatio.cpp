#include "host/core/editors/KeptRatio.h"

#include "tests/support/EditorTestElement.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

class tst_KeptRatio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDimensionThatWasNotEditedFollows()
    {
        const QSizeF smallest(1, 1);
        QCOMPARE(sizeCompletedToRatio({100, 50}, {120, 50}, 2, smallest), QSizeF(120, 60));
        QCOMPARE(sizeCompletedToRatio({100, 50}, {100, 60}, 2, smallest), QSizeF(120, 60));
        QCOMPARE(sizeCompletedToRatio({100, 50}, {200, 60}, 2, smallest), QSizeF(200, 100));
    }

    void nothingFollowsWithoutARatioOrAnEdit()
    {
        QCOMPARE(sizeCompletedToRatio({100, 50}, {120, 50}, 0, {1, 1}), QSizeF(120, 50));
        QCOMPARE(sizeCompletedToRatio({100, 50}, {120, 50}, -1, {1, 1}), QSizeF(120, 50));
        QCOMPARE(sizeCompletedToRatio({100, 51}, {100, 51}, 2, {1, 1}), QSizeF(100, 51));
    }

    void neitherDimensionFallsBelowTheMinimum()
    {
        QCOMPARE(sizeCompletedToRatio({100, 50}, {1, 50}, 2, {1, 1}), QSizeF(2, 1));
        QCOMPARE(sizeCompletedToRatio({50, 100}, {50, 1}, 0.5, {1, 1}), QSizeF(1, 2));
    }

    void theRatioIsKeptToSixDecimals()
    {
        rc::check([](int width, int numerator, int denominator) {
            const double ratio = (std::abs(numerator % 500) + 1.0) / (std::abs(denominator % 500) + 1.0);
            const QSizeF wanted(std::abs(width % 5000) + 1.5, 7);
            const QSizeF size = sizeCompletedToRatio({1, 7}, wanted, ratio, {0, 0});
            RC_ASSERT(size.width() == wanted.width());
            RC_ASSERT(std::abs(size.height() * ratio - size.width()) < 1e-6 * (1 + ratio));
        });
    }

    void theRatioIsThatOfThePropertyWithTheLock()
    {
        EditorTestElement element;
        QVERIFY(element.initialize());
        QCOMPARE(keptRatio(&element), 0.0);
        QCOMPARE(outerRatio(&element), 100.0 / 75);
        for (const char* free : {"0", "-2", "abc", ""}) {
            element.property("keepRatio")->fill(QString::fromLatin1(free));
            QCOMPARE(keptRatio(&element), 0.0);
        }
        element.property("keepRatio")->fill(QStringLiteral("1.5"));
        QCOMPARE(keptRatio(&element), 1.5);
        QCOMPARE(keptRatio(nullptr), 0.0);
        element.property("boundingSize")->fill(QStringLiteral("0,5"));
        QCOMPARE(outerRatio(&element), 0.0);
        element.property("boundingSize")->fill(QStringLiteral("abc"));
        QCOMPARE(outerRatio(&element), 0.0);
    }
};

QTEST_MAIN(tst_KeptRatio)
#include "tst_KeptRatio.moc"
