#include "tests/gradients/OutlineElements.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::OutlineElement;

/// The radial gradient's circle: its declaration and its QML.
class tst_RadialGradientElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_element = std::make_unique<OutlineElement>("RadialGradientElement"); }

    void aNewOneSpreadsFromTheMiddle()
    {
        QCOMPARE(m_element->value("center"), QStringLiteral("50,37.5"));
        QCOMPARE(m_element->value("radius"), QStringLiteral("50"));
        QCOMPARE(m_element->value("focalPoint"), QStringLiteral("50,37.5"));
        QCOMPARE(m_element->value("spread"), QStringLiteral("PadSpread"));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_element->runtimeRows(),
                 (QStringList{QStringLiteral("points|Points|9|1"), QStringLiteral("gradientStops|Gradient Stops|9|1"),
                              QStringLiteral("centerX|Center X|3|1"), QStringLiteral("centerY|Center Y|3|1"),
                              QStringLiteral("radius|Radius|3|1"), QStringLiteral("focalX|Focal Point X|3|1"),
                              QStringLiteral("focalY|Focal Point Y|3|1"), QStringLiteral("spread|Spread|2|1")}));
    }

    void theEditorsLimitTheCircle()
    {
        const auto parameters = [this](const char* id) { return m_element->property(id)->editorParameters(); };
        for (const char* id : {"center", "focalPoint"}) {
            QCOMPARE(parameters(id).value(QStringLiteral("minimumValue")).toPointF(), QPointF(-1000, -1000));
            QCOMPARE(parameters(id).value(QStringLiteral("maximumValue")).toPointF(), QPointF(1000, 1000));
            QCOMPARE(parameters(id).value(QStringLiteral("decimals")).toInt(), 2);
            QVERIFY(!parameters(id).contains(QStringLiteral("suffix")));
        }
        QCOMPARE(parameters("radius").value(QStringLiteral("minimum")).toDouble(), 1.0);
        QCOMPARE(parameters("radius").value(QStringLiteral("maximum")).toDouble(), 1000.0);
        QCOMPARE(parameters("radius").value(QStringLiteral("suffix")).toString(), QStringLiteral(" px"));
        QVERIFY(!parameters("center").contains(QStringLiteral("tooltip")));
        QCOMPARE(parameters("focalPoint").value(QStringLiteral("tooltip")).toString(),
                 QStringLiteral("If the given focal point is outside the circle defined by the center point\n"
                                "and radius, it will be re-adjusted to lie at a point on the circle where it\n"
                                "intersects with the line from the center to the focal point"));
        QCOMPARE(parameters("spread").value(QStringLiteral("enumName")).toString(), QStringLiteral("GradientSpread"));
        // They limit themselves alone.
        for (const char* value : {"0.5", "0", "-3", "1001", "1e300"})
            QVERIFY(m_element->set("radius", value));
        QVERIFY(m_element->set("center", "-1001,5000"));
        QVERIFY(m_element->set("focalPoint", "1e300,0"));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        m_element->set("center", "12.5,-12.5");
        m_element->set("radius", "33.33333333");
        m_element->set("focalPoint", "7.4,-0.4");
        m_element->set("spread", "ReflectSpread");
        QVERIFY(m_element->element->toQml(0).endsWith(QStringLiteral("\t\t[ 0.67, \"#ffffff\" ]\n"
                                                                     "\t]\n"
                                                                     "\tcenterX: 13\n"
                                                                     "\tcenterY: -13\n"
                                                                     "\tradius: 33.3333\n"
                                                                     "\tfocalX: 7\n"
                                                                     "\tfocalY: 0\n"
                                                                     "\tspread: 1\n"
                                                                     "}")));
    }

    void aNewOneWritesWholePixels()
    {
        QCOMPARE(m_element->property("center")->toQml(2), QStringLiteral("\t\tcenterX: 50\n\t\tcenterY: 38"));
        QCOMPARE(m_element->property("focalPoint")->toQml(1), QStringLiteral("\tfocalX: 50\n\tfocalY: 38"));
        QCOMPARE(m_element->property("radius")->toQml(1), QStringLiteral("\tradius: 50"));
        QCOMPARE(m_element->property("spread")->toQml(1), QStringLiteral("\tspread: 0"));
    }

    void pointsFarAwayAreWrittenAsTheyAre()
    {
        m_element->set("center", "4294967297.4,-1e20");
        QCOMPARE(m_element->property("center")->toQml(0),
                 QStringLiteral("centerX: 4294967297\ncenterY: -100000000000000000000"));
    }

    void theSpreadIsWrittenAsItsNumber_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("qml");
        QTest::newRow("pad") << QStringLiteral("PadSpread") << QStringLiteral("\t\tspread: 0");
        QTest::newRow("reflect") << QStringLiteral("ReflectSpread") << QStringLiteral("\t\tspread: 1");
        QTest::newRow("repeat") << QStringLiteral("RepeatSpread") << QStringLiteral("\t\tspread: 2");
        QTest::newRow("no spread") << QStringLiteral("WideSpread") << QString();
        QTest::newRow("a number") << QStringLiteral("1") << QString();
    }

    void theSpreadIsWrittenAsItsNumber()
    {
        QFETCH(QString, value);
        QFETCH(QString, qml);
        QVERIFY(m_element->set("spread", value));
        QCOMPARE(m_element->value("spread"), value);
        QCOMPARE(m_element->property("spread")->toQml(2), qml);
    }

    void theCircleDoesNotScaleWithTheOutline()
    {
        m_element->place();
        for (const char* ratio : {"0", "1.3333"}) {
            m_element->set("keepRatio", ratio);
            m_element->set("boundingSize", "300,30");
            m_element->set("boundingSize", "60,90");
            QCOMPARE(m_element->value("center"), QStringLiteral("50,37.5"));
            QCOMPARE(m_element->value("focalPoint"), QStringLiteral("50,37.5"));
            QCOMPARE(m_element->value("radius"), QStringLiteral("50"));
        }
        QVERIFY(m_element->value("points") != QStringLiteral("0,0 100,0 100,75 0,75 0,0"));
    }

private:
    std::unique_ptr<OutlineElement> m_element;
};

QTEST_MAIN(tst_RadialGradientElement)
#include "tst_RadialGradientElement.moc"
