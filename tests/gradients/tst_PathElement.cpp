#include "tests/gradients/OutlineElements.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::OutlineElement;

/// The path: an outline with one colour.
class tst_PathElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_element = std::make_unique<OutlineElement>("PathElement"); }

    void aNewOneIsAnOrangeRectangle()
    {
        QCOMPARE(m_element->value("points"), QStringLiteral("0,0 100,0 100,75 0,75 0,0"));
        QCOMPARE(m_element->points().size(), 5);
        QVERIFY(m_element->points().isClosed());
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("100,75"));
        QCOMPARE(ValueConversion::toColor(m_element->value("color")), QColor(248, 151, 29, 255));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_element->runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("points|Points|9|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(m_element->element->setIdName(QStringLiteral("hill")));
        m_element->set("position", "10,20.5");
        m_element->set("points", "0,0 80.12345,0 -40,60");
        m_element->set("color", "#80f8971d");
        m_element->set("keepRatio", "2");
        QCOMPARE(m_element->element->toQml(1), QStringLiteral("\tPathElement {\n"
                                                              "\t\tid: hill\n"
                                                              "\t\tx: 10\n"
                                                              "\t\ty: 20.5\n"
                                                              "\t\trotation: 0\n"
                                                              "\t\tpoints: [ [0, 0], [80.1235, 0], [-40, 60] ]\n"
                                                              "\t\tcolor: \"#80f8971d\"\n"
                                                              "\t}"));
        m_element->set("points", "");
        QVERIFY(m_element->element->toQml(0).contains(QLatin1String("\tpoints: []\n")));
    }

    void theSizeScalesEachAxisOnItsOwnOrBothAlike()
    {
        m_element->place();
        m_element->set("boundingSize", "50,150");
        QCOMPARE(m_element->value("points"), QStringLiteral("0,0 50,0 50,150 0,150 0,0"));
        m_element->set("keepRatio", "0.3333");
        m_element->set("boundingSize", "100,150");
        QCOMPARE(m_element->value("points"), QStringLiteral("0,0 100,0 100,300 0,300 0,0"));
    }

    void aColourThatIsNoneIsKeptAndInert()
    {
        m_element->place();
        QVERIFY(m_element->set("color", "ink"));
        QCOMPARE(m_element->value("color"), QStringLiteral("ink"));
        QVERIFY(!m_element->element->toQml(0).contains(QLatin1String("color")));
        QCOMPARE(m_element->value("points"), QStringLiteral("0,0 100,0 100,75 0,75 0,0"));
    }

private:
    std::unique_ptr<OutlineElement> m_element;
};

QTEST_MAIN(tst_PathElement)
#include "tst_PathElement.moc"
