#include "gradients/GradientStopsProperty.h"
#include "gradients/LinearGradientElement.h"
#include "gradients/WholePercent.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/values/ValueConversion.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

namespace {

const QGradientStops NewStops{{0.33, QColor(248, 151, 29, 255)}, {0.67, QColor(255, 255, 255, 255)}};

const char* const TooFew = "The gradient stops must have at least 2 stops.";
const char* const TooMany = "The gradient stops cannot have more than 101 stops.";
const char* const Duplicate = "Duplicate position values found.";
const char* const AllTransparent = "Gradient colors cannot be all transparent.";
const char* const AllTheSame = "Gradient colors cannot be all the same.";

/// \a count stops from 0.00 on, a whole percent apart, of two colours in turn.
QGradientStops percentStops(int count)
{
    QGradientStops stops;
    for (int i = 0; i < count; ++i)
        stops.append({i / 100.0, i % 2 == 0 ? QColor(Qt::black) : QColor(Qt::white)});
    return stops;
}

QColor anyColor()
{
    const int alpha = *rc::gen::element(0, 1, 128, 254, 255);
    return {*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), alpha};
}

/// The first rule that \a stops break, in the order in which they are told; empty when none.
QString brokenRule(const QGradientStops& stops)
{
    if (stops.size() < 2)
        return QString::fromLatin1(TooFew);
    if (stops.size() > 101)
        return QString::fromLatin1(TooMany);
    bool anyVisible = false;
    bool anyOther = false;
    for (qsizetype i = 0; i < stops.size(); ++i) {
        for (qsizetype k = 0; k < i; ++k) {
            if (std::trunc(stops.at(i).first * 100 + 1e-6) == std::trunc(stops.at(k).first * 100 + 1e-6))
                return QString::fromLatin1(Duplicate);
        }
        anyVisible = anyVisible || stops.at(i).second.alpha() > 0;
        anyOther = anyOther || stops.at(i).second != stops.at(0).second;
    }
    if (!anyVisible)
        return QString::fromLatin1(AllTransparent);
    return anyOther ? QString() : QString::fromLatin1(AllTheSame);
}

} // namespace

/// The colour stops of gradients as a property: their texts, their QML and their rules.
class tst_GradientStopsProperty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_owner = std::make_unique<Test::ShapeFixture>(std::make_unique<LinearGradientElement>()); }

    void itIsShownWithItsOwnEditor()
    {
        const GradientStopsProperty property(owner(), QStringLiteral("stops"), QStringLiteral("Stops"), {});
        QCOMPARE(property.className(), QStringLiteral("GradientStopsProperty"));
        QCOMPARE(property.classNames(),
                 QStringList({QStringLiteral("DesignerProperty"), QStringLiteral("GradientStopsProperty")}));
        QCOMPARE(property.flags().toInt(), 15);
        QCOMPARE(property.editor(), QStringLiteral("GradientStopsEditor"));
        QVERIFY(property.editorParameters().isEmpty());
        QCOMPARE(property.id(), QStringLiteral("stops"));
        QCOMPARE(property.name(), QStringLiteral("Stops"));
        QCOMPARE(property.parentObject(), owner());
    }

    void fewerThanTwoStopsBecomeThoseOfANewGradient()
    {
        QCOMPARE(make({}).value(), NewStops);
        QCOMPARE(make({{0.5, Qt::red}}).value(), NewStops);
        QCOMPARE(make({}).valueString(), QStringLiteral("0.33 #f8971d, 0.67 #ffffff"));
    }

    void twoStopsAreTakenAsTheyAre()
    {
        const QGradientStops stops{{1, Qt::red}, {0, Qt::red}};
        QCOMPARE(make(stops).value(), stops);
    }

    void anEmptyTextIsRefusedAndTheValueStays()
    {
        GradientStopsProperty property(owner(), {}, {}, {});
        QVERIFY(!property.convertToValue(QString()));
        QVERIFY(!property.convertToValue(QStringLiteral("")));
        QCOMPARE(property.value(), NewStops);
        QVERIFY(property.isConverted());
    }

    void textsThatAreNoStopsAreRefusedAndTheValueStays_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {" ",
                                 "stops",
                                 "0.5",
                                 "#ffffff",
                                 "0.5#ffffff",
                                 "0.5  #ffffff",
                                 " 0.5 #ffffff",
                                 "0.5 #ffffff ",
                                 "0.5 #ffffff,0.6 #000000",
                                 "0.5 #ffffff,",
                                 "0.5 #ffffff, ",
                                 ", 0.5 #ffffff",
                                 "nan #ffffff",
                                 "inf #ffffff",
                                 "0.5 ",
                                 "0.5 colour",
                                 "0.5 #ffff",
                                 "0,5 #ffffff",
                                 "0.5 #ffffff; 0.6 #000000",
                                 "0.1 #ffffff, 0.5 #00000g"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void textsThatAreNoStopsAreRefusedAndTheValueStays()
    {
        QFETCH(QString, text);
        // The property alone, and that of an element, which lets invalid values stand otherwise.
        GradientStopsProperty property(owner(), {}, {}, {});
        QVERIFY(!property.convertToValue(text));
        QCOMPARE(property.value(), NewStops);
        QString message;
        QVERIFY(!m_owner->set("gradientStops", text, &message));
        QCOMPARE(message, QStringLiteral("\"%1\" is not a valid value for \"Gradient Stops\".").arg(text));
        QCOMPARE(m_owner->value("gradientStops"), QStringLiteral("0.33 #f8971d, 0.67 #ffffff"));
        QVERIFY(owner()->getProperty(QStringLiteral("gradientStops"))->isConverted());
    }

    void aTextOfAFileIsKeptUntilAGoodValueArrives()
    {
        const auto property = owner()->getProperty(QStringLiteral("gradientStops"));
        property->fill(QStringLiteral("rainbow"));
        QVERIFY(!property->isConverted());
        QCOMPARE(property->valueString(), QStringLiteral("rainbow"));
        QVERIFY(property->toQml(1).isEmpty());
        QVERIFY(!m_owner->set("gradientStops", "sunset"));
        QCOMPARE(property->valueString(), QStringLiteral("rainbow"));
        QVERIFY(m_owner->set("gradientStops", "0 #000000, 1 #ffffff"));
        QCOMPARE(property->valueString(), QStringLiteral("0 #000000, 1 #ffffff"));
    }

    void aRefusedListLeavesTheOldOne()
    {
        QString message;
        QVERIFY(!m_owner->set("gradientStops", "0.5 #000000, 0.5 #ffffff", &message));
        QCOMPARE(message, QString::fromLatin1(Duplicate));
        QCOMPARE(m_owner->value("gradientStops"), QStringLiteral("0.33 #f8971d, 0.67 #ffffff"));
    }

    void conversionDoesNotJudge()
    {
        GradientStopsProperty property(owner(), {}, {}, {});
        QVERIFY(property.convertToValue(QStringLiteral("0.5 #00000000")));
        QCOMPARE(property.value(), QGradientStops({{0.5, QColor(0, 0, 0, 0)}}));
        QVERIFY(property.convertToValue(QStringLiteral("7 red, -1 Transparent")));
        QCOMPARE(property.valueString(), QStringLiteral("7 #ff0000, -1 #00000000"));
    }

    void theTextIsReadBackExactly()
    {
        const bool held = rc::check("stops and text", [this] {
            QGradientStops stops;
            for (int i = *rc::gen::inRange(2, 20); i > 0; --i)
                stops.append({*rc::gen::arbitrary<double>(), anyColor()});
            GradientStopsProperty property(owner(), {}, {}, {});
            RC_ASSERT(property.convertToValue(make(stops).convertToValueString()));
            RC_ASSERT(property.value() == stops);
            RC_ASSERT(property.valueIsEqual(ValueConversion::toString(stops)));
        });
        QVERIFY(held);
    }

    void everyWholePercentGoesThroughUnchanged()
    {
        for (int percent = 0; percent <= 100; ++percent) {
            QCOMPARE(wholePercent(percent / 100.0), percent);
            QCOMPARE(wholePercent(percent * 0.01), percent);
            const QGradientStops stops{{percent / 100.0, Qt::red}, {(percent + 1) / 100.0, Qt::blue}};
            GradientStopsProperty property(owner(), {}, {}, {});
            QVERIFY(property.convertToValue(ValueConversion::toString(stops)));
            QCOMPARE(wholePercent(property.value().constFirst().first), percent);
            QCOMPARE(property.value(), stops);
            QString message;
            QVERIFY2(property.validateValue(message), qPrintable(message));
        }
        QVERIFY(m_owner->set("gradientStops", ValueConversion::toString(percentStops(101))));
        const QGradientStops all = ValueConversion::toGradientStops(m_owner->value("gradientStops"));
        QCOMPARE(all, percentStops(101));
    }

    void positionsBelowAWholePercentAreThatPercent()
    {
        QCOMPARE(wholePercent(0.501), 50);
        QCOMPARE(wholePercent(0.509), 50);
        QCOMPARE(wholePercent(0.5099999), 50);
        QCOMPARE(wholePercent(0.999), 99);
        QCOMPARE(wholePercent(-0.005), 0);
        QVERIFY(wholePercent(1e300) > 100);
        QVERIFY(wholePercent(-1e300) < 0);
    }

    void equalListsHaveEqualStopsInTheSameOrder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("equal");
        QTest::newRow("the same") << QStringLiteral("0.33 #f8971d, 0.67 #ffffff") << true;
        QTest::newRow("written otherwise") << QStringLiteral("0.330 #F8971D, 0.67 white") << true;
        QTest::newRow("with an opaque alpha") << QStringLiteral("0.33 #fff8971d, 0.67 #ffffffff") << true;
        QTest::newRow("another order") << QStringLiteral("0.67 #ffffff, 0.33 #f8971d") << false;
        QTest::newRow("another position") << QStringLiteral("0.33 #f8971d, 0.68 #ffffff") << false;
        QTest::newRow("nearly the position") << QStringLiteral("0.33000000000000002 #f8971d, 0.67 #ffffff") << true;
        QTest::newRow("the next number") << QStringLiteral("0.33000000000000007 #f8971d, 0.67 #ffffff") << false;
        QTest::newRow("another colour") << QStringLiteral("0.33 #f8971c, 0.67 #ffffff") << false;
        QTest::newRow("another alpha") << QStringLiteral("0.33 #fef8971d, 0.67 #ffffff") << false;
        QTest::newRow("fewer") << QStringLiteral("0.33 #f8971d") << false;
        QTest::newRow("more") << QStringLiteral("0.33 #f8971d, 0.67 #ffffff, 0.7 #ffffff") << false;
        QTest::newRow("none") << QString() << false;
        QTest::newRow("no list") << QStringLiteral("rainbow") << false;
    }

    void equalListsHaveEqualStopsInTheSameOrder()
    {
        QFETCH(QString, text);
        QFETCH(bool, equal);
        QCOMPARE(make({}).valueIsEqual(text), equal);
    }

    void theQmlIsAListWithALineAStop_data()
    {
        QTest::addColumn<QGradientStops>("stops");
        QTest::addColumn<int>("indent");
        QTest::addColumn<QString>("qml");
        QTest::newRow("a new gradient") << QGradientStops() << 1
                                        << QStringLiteral("\tstops: [\n"
                                                          "\t\t[ 0.33, \"#f8971d\" ],\n"
                                                          "\t\t[ 0.67, \"#ffffff\" ]\n"
                                                          "\t]");
        QTest::newRow("no indent") << QGradientStops({{0, Qt::black}, {1, QColor(1, 2, 3, 4)}}) << 0
                                   << QStringLiteral("stops: [\n"
                                                     "\t[ 0, \"#000000\" ],\n"
                                                     "\t[ 1, \"#04010203\" ]\n"
                                                     "]");
        QTest::newRow("positions have two decimals")
            << QGradientStops({{0.123, Qt::red}, {0.126, Qt::blue}, {0.5, Qt::red}, {1.0 / 3, Qt::white}}) << 2
            << QStringLiteral("\t\tstops: [\n"
                              "\t\t\t[ 0.12, \"#ff0000\" ],\n"
                              "\t\t\t[ 0.13, \"#0000ff\" ],\n"
                              "\t\t\t[ 0.5, \"#ff0000\" ],\n"
                              "\t\t\t[ 0.33, \"#ffffff\" ]\n"
                              "\t\t]");
    }

    void theQmlIsAListWithALineAStop()
    {
        QFETCH(QGradientStops, stops);
        QFETCH(int, indent);
        QFETCH(QString, qml);
        QCOMPARE(make(stops).convertToQml(indent), qml);
    }

    void theFirstBrokenRuleIsTold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        const auto row = [](const char* name, const QString& text, const char* message) {
            QTest::newRow(name) << text << QString::fromLatin1(message);
        };
        const auto latin = [](const char* text) { return QString::fromLatin1(text); };
        row("a new gradient", latin("0.33 #f8971d, 0.67 #ffffff"), "");
        row("one stop", latin("0.5 #000000"), TooFew);
        row("101 stops", ValueConversion::toString(percentStops(101)), "");
        row("102 stops", ValueConversion::toString(percentStops(102)), TooMany);
        row("102 duplicates", ValueConversion::toString(QGradientStops(102, {0.5, QColor(0, 0, 0, 0)})), TooMany);
        row("the same position", latin("0.5 #000000, 0.5 #ffffff"), Duplicate);
        row("the same whole percent", latin("0.501 #000000, 0.509 #ffffff"), Duplicate);
        row("neighbouring percents", latin("0.50 #000000, 0.51 #ffffff"), "");
        row("neighbours of binary noise", latin("0.28 #000000, 0.29 #ffffff"), "");
        row("duplicates apart", latin("0.1 #000000, 0.5 #ffffff, 0.1 #ffffff"), Duplicate);
        row("in falling order", latin("1 #000000, 0 #ffffff"), "");
        row("both black", latin("0 #000000, 1 #000000"), AllTheSame);
        row("both black but for alpha", latin("0 #000000, 1 #80000000"), "");
        row("all three the same", latin("0 #123456, 0.5 #123456, 1 #123456"), AllTheSame);
        row("one differs", latin("0 #123456, 0.5 #123456, 1 #123457"), "");
        row("two colours, both transparent", latin("0 #00ff0000, 1 #0000ff00"), AllTransparent);
        row("one colour, transparent", latin("0 #00ff0000, 1 #00ff0000"), AllTransparent);
        row("hardly visible", latin("0 #00ff0000, 1 #01ff0000"), "");
        row("duplicates, all transparent", latin("0.5 #00ff0000, 0.5 #00ff0000"), Duplicate);
        row("duplicates, all the same", latin("0.5 #ff0000, 0.5 #ff0000"), Duplicate);
    }

    void theFirstBrokenRuleIsTold()
    {
        QFETCH(QString, text);
        QFETCH(QString, message);
        GradientStopsProperty property(owner(), {}, {}, {});
        QVERIFY(property.convertToValue(text));
        QString told = QStringLiteral("of before");
        QCOMPARE(property.validateValue(told), message.isEmpty());
        QCOMPARE(told, message);
        // An element takes what is in order, and nothing else.
        const QString before = m_owner->value("gradientStops");
        QCOMPARE(m_owner->set("gradientStops", text, &told), message.isEmpty());
        QCOMPARE(told, message);
        QCOMPARE(m_owner->value("gradientStops"), message.isEmpty() ? property.valueString() : before);
    }

    void anyListIsJudgedByTheRules()
    {
        const bool held = rc::check("rules", [this] {
            // Few positions and colours, so that every rule is met.
            const int colors = *rc::gen::element(1, 2, 3);
            const bool transparent = *rc::gen::element(false, false, true);
            const bool apart = *rc::gen::element(false, true, true);
            QGradientStops stops;
            for (int i = *rc::gen::element(1, 2, 2, 3, 4, 5, 101, 102); i > 0; --i) {
                const double position = apart ? i / 101.0 : *rc::gen::inRange(0, 1010) / 1000.0;
                const int shade = 50 * (*rc::gen::element(0, 1, 2) % colors);
                stops.append({position, QColor(shade, 0, 0, transparent ? 0 : 255)});
            }
            GradientStopsProperty property(owner(), {}, {}, {});
            RC_ASSERT(property.convertToValue(ValueConversion::toString(stops)));
            QString message;
            const QString expected = brokenRule(stops);
            RC_CLASSIFY(expected.isEmpty(), "in order");
            RC_ASSERT(property.validateValue(message) == expected.isEmpty());
            RC_ASSERT(message == expected);
        });
        QVERIFY(held);
    }

    void stopsThatCannotBeDrawnAreNoticed()
    {
        const auto property = owner()->getProperty(QStringLiteral("gradientStops"));
        QVERIFY(property->advice().isEmpty());
        for (const char* text : {"0 #000000, 1 #ffffff", "1 #000000, 0.5 #ffffff"}) {
            QVERIFY(m_owner->set("gradientStops", text));
            QVERIFY(property->advice().isEmpty());
        }
        QVERIFY(m_owner->set("gradientStops", "0.2 #000000, 1.25 #ffffff"));
        QVERIFY(property->advice().contains(QLatin1String("1.25")));
        QVERIFY(m_owner->set("gradientStops", "-0.5 #000000, 1 #ffffff"));
        QVERIFY(property->advice().contains(QLatin1String("-0.5")));
    }

private:
    DesignerObject* owner() const { return m_owner->element.get(); }
    GradientStopsProperty make(const QGradientStops& stops) const
    {
        return GradientStopsProperty(owner(), QStringLiteral("stops"), QStringLiteral("Stops"), stops);
    }

    std::unique_ptr<Test::ShapeFixture> m_owner;
};

QTEST_GUILESS_MAIN(tst_GradientStopsProperty)
#include "tst_GradientStopsProperty.moc"
