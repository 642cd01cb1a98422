#include "tests/gradients/OutlineElements.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::OutlineElement;

namespace {

const char* const OutOfRange = "The X and Y must be between 0% and 100%.";
const char* const Coinciding = "The start position must be different from the final stop position.";

} // namespace

/// The linear gradient's two points: their declaration, their rules and their QML.
class tst_LinearGradientElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_element = std::make_unique<OutlineElement>("LinearGradientElement"); }

    void aNewOneRunsFromTheTopLeftToTheBottomRight()
    {
        QCOMPARE(m_element->value("start"), QStringLiteral("0,0"));
        QCOMPARE(m_element->value("finalStop"), QStringLiteral("100,100"));
        QCOMPARE(m_element->value("gradientStops"), QStringLiteral("0.33 #f8971d, 0.67 #ffffff"));
        QString message;
        for (const auto& property : m_element->element->properties())
            QVERIFY2(property->validateValue(message), qPrintable(property->id()));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_element->runtimeRows(),
                 (QStringList{QStringLiteral("points|Points|9|1"), QStringLiteral("gradientStops|Gradient Stops|9|1"),
                              QStringLiteral("startX|Start X|3|1"), QStringLiteral("startY|Start Y|3|1"),
                              QStringLiteral("stopX|Final Stop X|3|1"), QStringLiteral("stopY|Final Stop Y|3|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(m_element->element->setIdName(QStringLiteral("sky")));
        m_element->set("position", "10,20.5");
        m_element->set("points", "0,0 80.12345,0 40,60");
        m_element->set("start", "33.4,50.6");
        QCOMPARE(m_element->element->toQml(1), QStringLiteral("\tLinearGradientElement {\n"
                                                              "\t\tid: sky\n"
                                                              "\t\tx: 10\n"
                                                              "\t\ty: 20.5\n"
                                                              "\t\trotation: 0\n"
                                                              "\t\tpoints: [ [0, 0], [80.1235, 0], [40, 60] ]\n"
                                                              "\t\tgradientStops: [\n"
                                                              "\t\t\t[ 0.33, \"#f8971d\" ],\n"
                                                              "\t\t\t[ 0.67, \"#ffffff\" ]\n"
                                                              "\t\t]\n"
                                                              "\t\tstartX: 33\n"
                                                              "\t\tstartY: 51\n"
                                                              "\t\tstopX: 100\n"
                                                              "\t\tstopY: 100\n"
                                                              "\t}"));
    }

    void aNewOneWritesFourWholePercents()
    {
        QCOMPARE(m_element->property("start")->toQml(2), QStringLiteral("\t\tstartX: 0\n\t\tstartY: 0"));
        QCOMPARE(m_element->property("finalStop")->toQml(0), QStringLiteral("stopX: 100\nstopY: 100"));
    }

    void pointsAreWrittenAsWholePercents_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("qml");
        const auto row = [](const char* value, const char* qml) {
            QTest::newRow(value) << QString::fromLatin1(value) << QString::fromLatin1(qml);
        };
        row("33.4,50.6", "startX: 33\nstartY: 51");
        row("0.5,1.5", "startX: 1\nstartY: 2");
        row("0.49,99.5", "startX: 0\nstartY: 100");
        row("-0.4,100.4", "startX: 0\nstartY: 100");
        row("somewhere", "");
    }

    void pointsAreWrittenAsWholePercents()
    {
        QFETCH(QString, value);
        QFETCH(QString, qml);
        QVERIFY(m_element->set("start", value));
        QCOMPARE(m_element->property("start")->toQml(0), qml);
    }

    void aPointOutOfRangeIsRefused_data()
    {
        QTest::addColumn<QString>("value");
        for (const char* value : {"101,50", "-1,0", "50,101", "0,-1", "100.5,0", "-0.5,0", "1e300,5", "5,-1e300",
                                  "4294967296,50", "100,200"})
            QTest::newRow(value) << QString::fromLatin1(value);
    }

    void aPointOutOfRangeIsRefused()
    {
        QFETCH(QString, value);
        for (const char* id : {"start", "finalStop"}) {
            const QString before = m_element->value(id);
            QString message;
            QVERIFY(!m_element->set(id, value, &message));
            QCOMPARE(message, QString::fromLatin1(OutOfRange));
            QCOMPARE(m_element->value(id), before);
        }
    }

    void coincidingPointsAreRefused_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("finalStop");
        QTest::addColumn<bool>("coincide");
        QTest::newRow("the same") << QStringLiteral("30,40") << QStringLiteral("30,40") << true;
        QTest::newRow("the same after rounding") << QStringLiteral("30.4,40") << QStringLiteral("29.6,40.49") << true;
        QTest::newRow("apart by rounding") << QStringLiteral("30.4,40") << QStringLiteral("30.5,40") << false;
        QTest::newRow("the same x") << QStringLiteral("30,40") << QStringLiteral("30,41") << false;
        QTest::newRow("the same y") << QStringLiteral("30,40") << QStringLiteral("31,40") << false;
        QTest::newRow("swapped") << QStringLiteral("30,40") << QStringLiteral("40,30") << false;
    }

    void coincidingPointsAreRefused()
    {
        QFETCH(QString, start);
        QFETCH(QString, finalStop);
        QFETCH(bool, coincide);
        QString message;
        QVERIFY(m_element->set("start", start));
        QCOMPARE(m_element->set("finalStop", finalStop, &message), !coincide);
        QCOMPARE(message, coincide ? QString::fromLatin1(Coinciding) : QString());
        QCOMPARE(m_element->value("finalStop"), coincide ? QStringLiteral("100,100") : finalStop);
        // The other way round.
        init();
        QVERIFY(m_element->set("finalStop", finalStop));
        QCOMPARE(m_element->set("start", start, &message), !coincide);
        QCOMPARE(message, coincide ? QString::fromLatin1(Coinciding) : QString());
    }

    void theRangeIsToldBeforeTheCoincidence()
    {
        // As only a file can leave it.
        m_element->property("finalStop")->fill(QStringLiteral("120,50"));
        QString message;
        QVERIFY(!m_element->set("start", "120,50", &message));
        QCOMPARE(message, QString::fromLatin1(OutOfRange));
    }

    void onlyTheEditedPointIsTestedForItsRange()
    {
        m_element->property("finalStop")->fill(QStringLiteral("120,-7"));
        QString message;
        QVERIFY(m_element->set("start", "50,50", &message));
        QCOMPARE(message, QString());
        QVERIFY(!m_element->property("finalStop")->validateValue(message));
        QCOMPARE(message, QString::fromLatin1(OutOfRange));
    }

    void textsThatAreNoPointAreKeptAndNotComparedWith()
    {
        QString message;
        QVERIFY(m_element->set("finalStop", "there", &message));
        QCOMPARE(m_element->value("finalStop"), QStringLiteral("there"));
        QVERIFY(m_element->set("start", "0,0", &message));
        QVERIFY(m_element->set("start", "here", &message));
        QCOMPARE(m_element->value("start"), QStringLiteral("here"));
        QVERIFY(!m_element->element->toQml(0).contains(QLatin1String("startX")));
        QVERIFY(!m_element->element->toQml(0).contains(QLatin1String("stopX")));
    }

    void anyPointIsJudgedAndWrittenAsTheSameWholePercent()
    {
        const bool held = rc::check("points", [this] {
            init();
            const auto coordinate = [] { return *rc::gen::inRange(-20, 1030) / 10.0; };
            const QPointF other(std::round(coordinate() / 2) + 20, 30);
            RC_ASSERT(m_element->set("finalStop", ValueConversion::toString(other)));
            const QPointF point(*rc::gen::element(coordinate(), other.x() + 0.3),
                                *rc::gen::element(coordinate(), other.y() - 0.3));
            const QPoint whole = point.toPoint();
            const bool inside = whole.x() >= 0 && whole.y() >= 0 && whole.x() <= 100 && whole.y() <= 100;
            QString message;
            const bool accepted = m_element->set("start", ValueConversion::toString(point), &message);
            RC_ASSERT(accepted == (inside && whole != other.toPoint()));
            RC_ASSERT(message == QString::fromLatin1(accepted ? "" : inside ? Coinciding : OutOfRange));
            if (accepted)
                RC_ASSERT(m_element->property("start")->toQml(0)
                          == QStringLiteral("startX: %1\nstartY: %2").arg(whole.x()).arg(whole.y()));
        });
        QVERIFY(held);
    }

    void thePointsDoNotScaleWithTheOutline()
    {
        m_element->place();
        m_element->set("start", "10,20");
        m_element->set("boundingSize", "300,30");
        QCOMPARE(m_element->value("start"), QStringLiteral("10,20"));
        QCOMPARE(m_element->value("finalStop"), QStringLiteral("100,100"));
    }

private:
    std::unique_ptr<OutlineElement> m_element;
};

QTEST_MAIN(tst_LinearGradientElement)
#include "tst_LinearGradientElement.moc"
