#include "host/core/objects/OutlineReaction.h"

#include "host/core/canvas/CanvasNumbers.h"

#include <QtTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

namespace {

/// "w,h" of what outlineFactors() gives, or "none".
QString text(const std::optional<QSizeF>& factors)
{
    return factors ? QStringLiteral("%1,%2").arg(factors->width()).arg(factors->height()) : QStringLiteral("none");
}

bool exactlyEqual(const QPolygonF& a, const QPolygonF& b)
{
    for (qsizetype i = 0; i < a.size() && a.size() == b.size(); ++i) {
        if (a.at(i).x() != b.at(i).x() || a.at(i).y() != b.at(i).y())
            return false;
    }
    return a.size() == b.size();
}

/// Quarters, so that products and quotients are exact.
double anyLength(int least, int most)
{
    return *rc::gen::inRange(4 * least, 4 * most) / 4.0;
}

} // namespace

/// What a new outer size makes of an outline: the factors and the scaling alone.
class tst_OutlineReaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFactorsGoByWhatChanged_data()
    {
        QTest::addColumn<QSizeF>("before");
        QTest::addColumn<QSizeF>("wanted");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QString>("factors");
        const auto row = [](const char* name, const QSizeF& before, const QSizeF& wanted, double ratio,
                            const char* factors) {
            QTest::newRow(name) << before << wanted << ratio << QString::fromLatin1(factors);
        };
        const QSizeF was(100, 75);
        row("nothing changed", was, was, 0, "none");
        row("nothing changed, kept ratio", was, was, 2, "none");
        row("the width", was, {200, 75}, 0, "2,1");
        row("the height", was, {100, 150}, 0, "1,2");
        row("both", was, {200, 25}, 0, "2,0.333333");
        row("below a pixel", was, {0.5, 0.75}, 0, "0.005,0.01");
        row("kept ratio, the width", was, {200, 75}, 1.3333, "2,2");
        row("kept ratio, the width, just enough", was, {10, 75}, 10, "0.1,0.1");
        row("kept ratio, the width, too small", was, {5, 75}, 10, "none");
        row("kept ratio, the height", was, {100, 150}, 1.3333, "2,2");
        row("kept ratio, the height, just enough", was, {100, 4}, 0.25, "0.0533333,0.0533333");
        row("kept ratio, the height, too small", was, {100, 3}, 0.25, "none");
        row("kept ratio, both: the width decides", was, {200, 600}, 1, "2,2");
        row("kept ratio, both, the width just enough", was, {10, 600}, 10, "0.1,0.1");
        row("kept ratio, both, the width too small: the height decides", was, {9, 600}, 10, "8,8");
        row("kept ratio, both, the width too small, the height just enough", was, {1, 0.25}, 4,
            "0.00333333,0.00333333");
        row("kept ratio, both too small", was, {9, 0.05}, 10, "none");
        row("kept ratio, both: a small height does not count", was, {200, 0.01}, 1, "2,2");
        row("a negative ratio is none", was, {200, 75}, -2, "2,1");
        row("a ratio that is no number is none", was, {200, 75}, std::nan(""), "2,1");
        row("an endless ratio", was, {200, 75}, std::numeric_limits<double>::infinity(), "none");
        row("hardly any ratio, the width", was, {200, 75}, 1e-320, "2,2");
        row("hardly any ratio, the height", was, {100, 150}, 1e-320, "none");
        row("without a width", {0, 75}, {50, 75}, 0, "1,1");
        row("without a width, both", {0, 75}, {50, 150}, 0, "1,2");
        row("without a height", {100, 0}, {100, 50}, 0, "1,1");
        row("without either", {0, 0}, {100, 50}, 0, "1,1");
        row("without a width, kept ratio", {0, 75}, {50, 75}, 2, "1,1");
        row("without a width, kept ratio, the height", {0, 75}, {0, 150}, 2, "2,2");
        row("a negative width before", {-10, 75}, {50, 75}, 0, "1,1");
        row("to no width", was, {0, 75}, 0, "none");
        row("to no height", was, {100, 0}, 0, "none");
        row("to a negative width", was, {-50, 75}, 0, "none");
        row("to a negative height, the width too", was, {50, -1}, 0, "none");
        row("to a negative width, kept ratio", was, {-50, 75}, 2, "none");
        row("beyond all numbers", {1e-300, 75}, {1e300, 75}, 0, "none");
        row("to less than any number", {1e300, 75}, {1e-300, 75}, 0, "none");
        row("an endless width", was, {std::numeric_limits<double>::infinity(), 75}, 0, "none");
        row("a width that is no number", was, {std::nan(""), 75}, 0, "none");
    }

    void theFactorsGoByWhatChanged()
    {
        QFETCH(QSizeF, before);
        QFETCH(QSizeF, wanted);
        QFETCH(double, ratio);
        QFETCH(QString, factors);
        QCOMPARE(text(outlineFactors(before, wanted, ratio)), factors);
    }

    void anySizesGiveFactorsAboveZeroOrNone()
    {
        const bool held = rc::check("factors", [] {
            const auto number = [] { return *rc::gen::arbitrary<double>(); };
            const QSizeF before(number(), number());
            const QSizeF wanted(*rc::gen::element(before.width(), number()),
                                *rc::gen::element(before.height(), number()));
            const auto factors = outlineFactors(before, wanted, *rc::gen::element(0.0, number()));
            RC_ASSERT(!factors
                      || (factors->width() > 0 && factors->height() > 0 && std::isfinite(factors->width())
                          && std::isfinite(factors->height())));
        });
        QVERIFY(held);
    }

    void aKeptRatioScalesByOneFactorThatAChangedSideAsksFor()
    {
        const bool held = rc::check("kept ratio", [] {
            const QSizeF before(anyLength(1, 300), anyLength(1, 300));
            const QSizeF wanted(*rc::gen::element(before.width(), anyLength(1, 300)),
                                *rc::gen::element(before.height(), anyLength(1, 300)));
            const double ratio = *rc::gen::element(0.125, 0.25, 0.5, 1.0, 2.0, 4.0, 8.0);
            const auto factors = outlineFactors(before, wanted, ratio);
            const bool widthChanged = wanted.width() != before.width();
            const bool heightChanged = wanted.height() != before.height();
            const bool widthDecides = widthChanged && wanted.width() >= ratio;
            const bool heightDecides = !widthDecides && heightChanged && wanted.height() * ratio >= 1;
            RC_ASSERT(factors.has_value() == (widthDecides || heightDecides));
            if (!factors)
                return;
            RC_ASSERT(factors->width() == factors->height());
            RC_ASSERT(factors->width()
                      == (widthDecides ? wanted.width() / before.width() : wanted.height() / before.height()));
        });
        QVERIFY(held);
    }

    void anOutlineIsScaledAboutItsOrigin()
    {
        const QPolygonF outline({{0, 0}, {100, 0}, {-30, 75.5}, {10, -20}});
        QCOMPARE(scaledOutline(outline, {2, 0.5}), QPolygonF({{0, 0}, {200, 0}, {-60, 37.75}, {20, -10}}));
        QCOMPARE(scaledOutline(outline, {2, 1}), QPolygonF({{0, 0}, {200, 0}, {-60, 75.5}, {20, -20}}));
        QCOMPARE(scaledOutline(QPolygonF(), {2, 1}), QPolygonF());
        QCOMPARE(scaledOutline(QPolygonF({{3, 4}}), {2, 3}), QPolygonF({{6, 12}}));
    }

    void scalingLeavesNoNoise()
    {
        // 33.1 / 100 * 100 is not 33.1 in binary fractions.
        const QPolygonF outline({{0, 0}, {100, 0}, {100, 75}});
        const auto scaled = scaledOutline(outline, {33.1 / 100, 33.1 / 100});
        QVERIFY(scaled);
        QVERIFY(exactlyEqual(*scaled, QPolygonF({{0, 0}, {33.1, 0}, {33.1, 24.825}})));
    }

    void whatIsNotScaledKeepsItsVeryNumbers()
    {
        const QPolygonF noisy({{1.0 / 3, 0.1 + 0.2}, {100.0 / 7, 1e-13}});
        const auto same = scaledOutline(noisy, {1, 1});
        QVERIFY(same && exactlyEqual(*same, noisy));
        const auto wider = scaledOutline(noisy, {3, 1});
        QVERIFY(wider);
        QCOMPARE(wider->at(0).x(), 1.0);
        QVERIFY(wider->at(0).y() == noisy.at(0).y() && wider->at(1).y() == noisy.at(1).y());
        const auto higher = scaledOutline(noisy, {1, 10});
        QVERIFY(higher);
        QVERIFY(higher->at(0).x() == noisy.at(0).x() && higher->at(1).x() == noisy.at(1).x());
        QCOMPARE(higher->at(0).y(), 3.0);
    }

    void anOutlineNeitherLeavesAllNumbersNorVanishes()
    {
        QVERIFY(!scaledOutline(QPolygonF({{0, 0}, {1e10, 1}}), {1e300, 1}));
        QVERIFY(!scaledOutline(QPolygonF({{0, 0}, {1, -1e10}}), {1, 1e300}));
        QVERIFY(!scaledOutline(QPolygonF({{0, 0}, {100, 75}}), {1e-20, 1}));
        QVERIFY(!scaledOutline(QPolygonF({{0, 0}, {100, 75}}), {1, 1e-20}));
        // Where there is no height, none can vanish.
        QVERIFY(scaledOutline(QPolygonF({{0, 5}, {100, 5}}), {2, 1e-20}));
    }

    void thereAndBackGivesTheSamePoints()
    {
        const bool held = rc::check("there and back", [] {
            QPolygonF outline;
            for (int i = *rc::gen::inRange(2, 12); i > 0; --i)
                outline << QPointF(*rc::gen::inRange(-9999, 9999) / 100.0, *rc::gen::inRange(-9999, 9999) / 100.0);
            const QSizeF before = outline.boundingRect().size();
            RC_PRE(before.width() > 1 && before.height() > 1);
            const QSizeF wanted(*rc::gen::inRange(100, 50000) / 100.0, *rc::gen::inRange(100, 50000) / 100.0);
            RC_PRE(wanted.width() != before.width() && wanted.height() != before.height());
            const auto there = outlineFactors(before, wanted, 0);
            RC_ASSERT(there.has_value());
            const auto scaled = scaledOutline(outline, *there);
            RC_ASSERT(scaled.has_value());
            const QSizeF now = scaled->boundingRect().size();
            RC_ASSERT(std::abs(now.width() - wanted.width()) < 1e-9);
            RC_ASSERT(std::abs(now.height() - wanted.height()) < 1e-9);
            const auto back = scaledOutline(*scaled, {1 / there->width(), 1 / there->height()});
            RC_ASSERT(back.has_value());
            for (qsizetype i = 0; i < outline.size(); ++i) {
                // Rounding to 10 decimals counts for more in what was small in between.
                RC_ASSERT(std::abs(back->at(i).x() - outline.at(i).x()) < 1e-9 * std::max(1.0, 1 / there->width()));
                RC_ASSERT(std::abs(back->at(i).y() - outline.at(i).y()) < 1e-9 * std::max(1.0, 1 / there->height()));
            }
        });
        QVERIFY(held);
    }
};

QTEST_GUILESS_MAIN(tst_OutlineReaction)
#include "tst_OutlineReaction.moc"
