#include "tests/gradients/OutlineElements.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::OutlineElement;

/// The conical gradient's sweep: its declaration and its QML.
class tst_ConicalGradientElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_element = std::make_unique<OutlineElement>("ConicalGradientElement"); }

    void aNewOneSweepsAroundTheMiddle()
    {
        QCOMPARE(m_element->value("center"), QStringLiteral("50,50"));
        QCOMPARE(m_element->value("startAngle"), QStringLiteral("0"));
        QCOMPARE(m_element->property("startAngle")->name(), QStringLiteral("Start Angle (Clockwise)"));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_element->runtimeRows(),
                 (QStringList{QStringLiteral("points|Points|9|1"), QStringLiteral("gradientStops|Gradient Stops|9|1"),
                              QStringLiteral("startAngle|Start Angle|3|1"), QStringLiteral("centerX|Center X|3|1"),
                              QStringLiteral("centerY|Center Y|3|1")}));
    }

    void theEditorsLetTheCentreLieOutside()
    {
        const QMap<QString, QVariant> center = m_element->property("center")->editorParameters();
        QCOMPARE(center.value(QStringLiteral("minimumValue")).toPointF(), QPointF(-100, -100));
        QCOMPARE(center.value(QStringLiteral("maximumValue")).toPointF(), QPointF(200, 200));
        QCOMPARE(center.value(QStringLiteral("suffix")).toString(), QStringLiteral("%"));
        QCOMPARE(center.value(QStringLiteral("decimals")).toInt(), 0);
        const QMap<QString, QVariant> angle = m_element->property("startAngle")->editorParameters();
        QCOMPARE(angle.value(QStringLiteral("minimum")).toDouble(), 0.0);
        QCOMPARE(angle.value(QStringLiteral("maximum")).toDouble(), 359.99);
        QCOMPARE(angle.value(QStringLiteral("suffix")).toString(), QString(QChar(0xb0)));
        QCOMPARE(angle.value(QStringLiteral("decimals")).toInt(), 2);
        QCOMPARE(angle.value(QStringLiteral("showSlider")).toBool(), true);
        // They limit themselves alone.
        for (const char* value : {"-100,200", "-101,0", "1000,-1000"})
            QVERIFY(m_element->set("center", value));
        for (const char* value : {"359.99", "360", "-1"})
            QVERIFY(m_element->set("startAngle", value));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        m_element->set("center", "-100,66.5");
        m_element->set("startAngle", "359.99");
        QVERIFY(m_element->element->toQml(0).endsWith(QStringLiteral("\t\t[ 0.67, \"#ffffff\" ]\n"
                                                                     "\t]\n"
                                                                     "\tcenterX: -100\n"
                                                                     "\tcenterY: 67\n"
                                                                     "\tstartAngle: 359.99\n"
                                                                     "}")));
    }

    void aNewOneWritesWholePercents()
    {
        QCOMPARE(m_element->property("center")->toQml(2), QStringLiteral("\t\tcenterX: 50\n\t\tcenterY: 50"));
        QCOMPARE(m_element->property("startAngle")->toQml(2), QStringLiteral("\t\tstartAngle: 0"));
        m_element->set("center", "middle");
        QCOMPARE(m_element->property("center")->toQml(2), QString());
    }

    void theSweepDoesNotScaleWithTheOutline()
    {
        m_element->place();
        m_element->set("boundingSize", "300,30");
        QCOMPARE(m_element->value("center"), QStringLiteral("50,50"));
        QCOMPARE(m_element->value("startAngle"), QStringLiteral("0"));
    }

private:
    std::unique_ptr<OutlineElement> m_element;
};

QTEST_MAIN(tst_ConicalGradientElement)
#include "tst_ConicalGradientElement.moc"
