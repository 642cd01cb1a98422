#include "shapes/GraphicsEllipse.h"
#include "shapes/GraphicsPolygon.h"
#include "shapes/Polygon.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Korvex::Meridane::Common::PaintHelper;
using Test::ShapeFixture;

namespace {

/// The vertex, clockwise from the top, that lies furthest out sideways, for 3 to 20 edges.
constexpr int WidestVertex[] = {1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4, 4, 4, 4, 4, 5, 5};

double lengthFromWidth(int n, double width, int border)
{
    const int pen = border + border % 2;
    return width * std::sin(M_PI / n) / std::sin(2 * M_PI * WidestVertex[n - 3] / n) - pen * std::tan(M_PI / n);
}

double lengthFromHeight(int n, double height, int border)
{
    const int pen = border + border % 2;
    const double content =
        n % 2 == 0 ? height * std::sin(M_PI / n) : 2 * height * std::sin(M_PI / n) / (1 + std::cos(M_PI / n));
    return content - pen * std::tan(M_PI / n);
}

bool near(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

} // namespace

class tst_Polygon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shape = std::make_unique<ShapeFixture>(std::make_unique<Polygon>()); }

    void cleanup() { m_shape.reset(); }

    void theIdentityIsThatOfAPolygon()
    {
        QCOMPARE(m_shape->identity(),
                 QStringLiteral("Polygon,Polygon,Polygon (Regular),Polygon,Screen,Polygon,polygon,polygon")
                     .split(QLatin1Char(',')));
        QVERIFY(m_shape->element->classNames().contains(QLatin1String("VisualElement")));
    }

    void withoutThePlugInThereIsNoItem() { QVERIFY(!m_shape->element->createGraphicsItem()); }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_shape->runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("edgeLength|Edge Length|3|1"),
                              QStringLiteral("edges|Edges|2|1"), QStringLiteral("borderWidth|Border Width|2|1"),
                              QStringLiteral("borderColor|Border Color|6|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(m_shape->element->setIdName(QStringLiteral("lamp")));
        m_shape->set("position", "10,20.5");
        m_shape->set("edges", "5");
        m_shape->set("edgeLength", "33.33333333");
        m_shape->set("border", "width: 4; color: #102030;");
        QCOMPARE(m_shape->element->toQml(1), QStringLiteral("\tPolygon {\n"
                                                            "\t\tid: lamp\n"
                                                            "\t\tx: 10\n"
                                                            "\t\ty: 20.5\n"
                                                            "\t\trotation: 0\n"
                                                            "\t\tedges: 5\n"
                                                            "\t\tedgeLength: 33.3333\n"
                                                            "\t\tcolor: \"#f8971d\"\n"
                                                            "\t\tborderWidth: 4\n"
                                                            "\t\tborderColor: \"#102030\"\n"
                                                            "\t}"));
    }

    void theBoundingRectangleIsThatOfTheMitredPolygon()
    {
        QCOMPARE(m_shape->element->getBoundingRect(), PaintHelper::getPolygonBoundingRect(3, 50, 0));
        m_shape->set("edges", "7");
        m_shape->set("edgeLength", "41.5");
        setBorder(5);
        QCOMPARE(m_shape->element->getBoundingRect(), PaintHelper::getPolygonBoundingRect(7, 41.5, 5));
        m_shape->set("border", "thick");
        QCOMPARE(m_shape->element->getBoundingRect(), PaintHelper::getPolygonBoundingRect(7, 41.5, 0));
        m_shape->set("edgeLength", "long");
        QCOMPARE(m_shape->element->getBoundingRect(), QRectF());
        m_shape->set("edgeLength", "41.5");
        m_shape->set("edges", "many");
        QCOMPARE(m_shape->element->getBoundingRect(), QRectF());
    }

    void theEdgeLengthFollowsTheOuterSize_data()
    {
        QTest::addColumn<int>("edges");
        QTest::addColumn<QString>("edgeLength");
        QTest::addColumn<int>("border");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("newLength");
        QTest::addColumn<QString>("newOuter");
        const auto row = [](const char* name, int edges, const char* length, int border, const char* typed,
                            double newLength, const char* newOuter) {
            QTest::newRow(name) << edges << QString::fromLatin1(length) << border << QString::fromLatin1(typed)
                                << newLength << QString::fromLatin1(newOuter);
        };
        const double root2 = std::sqrt(2.0);
        const double root3 = std::sqrt(3.0);
        row("triangle, width", 3, "50", 0, "80,43.30127", 80, "80,69.282032");
        row("triangle, height", 3, "50", 0, "50,86.6", 2 * 86.6 / root3, "99.997067,86.6");
        row("both: the width alone", 3, "50", 0, "80,300", 80, "80,69.282032");
        row("both, the width smaller", 3, "50", 0, "20,300", 20, "20,17.320508");
        row("triangle, border 1 counts as 2, width", 3, "50", 1, "80,46.30127", 80 - 2 * root3, "80,69.282032");
        row("triangle, border 2, height", 3, "50", 2, "53.464102,60", 120 / root3 - 2 * root3, "69.282032,60");
        row("square, width", 4, "50", 0, "141.4,70.710678", 141.4 / root2, "141.4,141.4");
        row("square, border 3 counts as 4, width", 4, "50", 3, "141.4,1", 141.4 / root2 - 4, "141.4,141.4");
        row("square, border 4, height", 4, "50", 4, "76.367532,100", 100 / root2 - 4, "100,100");
        row("pentagon, the other dimension snaps", 5, "30", 0, "100,100", 61.8033988750, "100,95.105652");
        row("edge of 400", 3, "50", 0, "400,43.30127", 320, "320,277.128129");
        row("edge of 400, height", 3, "50", 0, "50,346.41", 320, "320,277.128129");
        row("exactly 320", 3, "50", 0, "320,43.30127", 320, "320,277.128129");
        row("already 320", 3, "320", 0, "321,277.128129", 320, "320,277.128129");
        row("border takes from the longest", 4, "50", 6, "457.5,1", 457.5 / root2 - 6, "457.5,457.5");
        row("edge of a half", 3, "50", 0, "0.5,43.30127", 1, "1,0.866025");
        row("edge of a half, height", 3, "50", 0, "50,0.4", 1, "1,0.866025");
        row("exactly 1", 3, "50", 0, "1,43.30127", 1, "1,0.866025");
        row("already 1", 3, "1", 0, "0.9,0.866025", 1, "1,0.866025");
        row("thinner than the border", 3, "50", 4, "2,1", 1, "7.928203,6.866025");
        row("0", 3, "50", 0, "0,0", 1, "1,0.866025");
        row("negative", 3, "50", 0, "-80,-80", 1, "1,0.866025");
        row("hugely negative", 3, "50", 0, "-1e300,-1e300", 1, "1,0.866025");
        row("huge", 3, "50", 0, "1.7e308,1.7e308", 320, "320,277.128129");
        row("huge, height", 3, "50", 0, "50,1.7e308", 320, "320,277.128129");
        row("tiny", 3, "50", 0, "1e-310,1e-310", 1, "1,0.866025");
        row("from beyond the longest", 3, "500", 0, "100,1", 100, "100,86.60254");
        row("the thickest border", 4, "50", 2147483647, "5,5", 1, "3037000498.5618362,3037000498.5618362");
    }

    void theEdgeLengthFollowsTheOuterSize()
    {
        QFETCH(int, edges);
        QFETCH(QString, edgeLength);
        QFETCH(int, border);
        QFETCH(QString, typed);
        QFETCH(double, newLength);
        QFETCH(QString, newOuter);
        m_shape->set("edges", QString::number(edges));
        m_shape->set("edgeLength", edgeLength);
        setBorder(border);
        m_shape->place<GraphicsPolygon>();
        QVERIFY(m_shape->set("boundingSize", typed));
        const double length = m_shape->value("edgeLength").toDouble();
        QVERIFY2(near(length, newLength, 1e-9), qPrintable(m_shape->value("edgeLength")));
        QCOMPARE(m_shape->value("boundingSize"), newOuter);
        QCOMPARE(m_shape->value("edges"), QString::number(edges));
    }

    void aDefaultPolygonTakesAWidthOf80AsAnEdgeOf80()
    {
        m_shape->place<GraphicsPolygon>();
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("50,43.30127"));
        QVERIFY(m_shape->set("boundingSize", "80,43.30127"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("80"));
    }

    void theOuterSizeThatIsThereAlreadyIsReportedAndChangesNothing()
    {
        m_shape->place<GraphicsPolygon>();
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        QVERIFY(m_shape->set("boundingSize", "50,43.30127"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("50"));
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("50,43.30127"));
    }

    void anOuterSizeThatDoesNotConvertIsInertAndTheNextOneIsNot()
    {
        m_shape->place<GraphicsPolygon>();
        QVERIFY(m_shape->set("boundingSize", "wide"));
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("wide"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("50"));
        QVERIFY(m_shape->set("boundingSize", "60,60"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("60"));
    }

    void withoutACanvasItemTheEdgeLengthStays()
    {
        QVERIFY(m_shape->set("boundingSize", "80,80"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("50"));
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("80,80"));
    }

    void anItemOfAnotherShapeIsNotFollowed()
    {
        m_shape->place<GraphicsEllipse>();
        QVERIFY(m_shape->set("boundingSize", "80,80"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("50"));
    }

    void whileTheItemChangesSizeTheElementDoesNotReact()
    {
        GraphicsItem* item = m_shape->place<GraphicsPolygon>();
        item->setChangingSize(true);
        QVERIFY(m_shape->set("boundingSize", "80,80"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("50"));
        item->setChangingSize(false);
        QVERIFY(m_shape->set("boundingSize", "90,80"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("90"));
    }

    void noPropertyIsNoChange()
    {
        m_shape->place<GraphicsPolygon>();
        m_shape->element->afterPropertyChanged(nullptr, QStringLiteral("1,1"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("50"));
    }

    void theOuterSizeFollowsEdgesEdgeLengthAndBorder()
    {
        m_shape->place<GraphicsPolygon>();
        m_shape->set("edgeLength", "100");
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("100,86.60254"));
        m_shape->set("edges", "4");
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("141.421356,141.421356"));
        setBorder(3);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("147.07821,147.07821"));
        // An even width of the same outline: nothing moves.
        setBorder(4);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("147.07821,147.07821"));
        QCOMPARE(m_shape->value("edgeLength"), QStringLiteral("100"));
    }

    void fewerThanThreeEdgesOrNoLengthIsNoPolygon_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        for (const char* edges : {"2", "1", "0", "-5", "-2147483648"})
            QTest::addRow("edges %s", edges) << QStringLiteral("edges") << QString::fromLatin1(edges);
        for (const char* length : {"0", "-0", "-5", "-1e300"})
            QTest::addRow("edge length %s", length) << QStringLiteral("edgeLength") << QString::fromLatin1(length);
    }

    void fewerThanThreeEdgesOrNoLengthIsNoPolygon()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        setBorder(3);
        const GraphicsItem* item = m_shape->place<GraphicsPolygon>();
        QVERIFY(m_shape->set(id.toLatin1().constData(), text));
        QCOMPARE(item->outerRect(), QRectF());
        QVERIFY(item->graphic()->shape().isEmpty());
        QVERIFY(item->getShape().isEmpty());
        QCOMPARE(m_shape->element->getBoundingRect(), QRectF());
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("0,0"));
        // A typed outer size makes a polygon of it again where only the length was missing.
        QVERIFY(m_shape->set("boundingSize", "90,90"));
        QCOMPARE(m_shape->value("boundingSize"),
                 id == QLatin1String("edges") ? QStringLiteral("0,0") : QStringLiteral("90,77.942286"));
    }

    void absurdValuesStayNumbers_data()
    {
        QTest::addColumn<QString>("edges");
        QTest::addColumn<QString>("edgeLength");
        for (const char* edges : {"3", "4", "21", "1000", "2147483647"}) {
            for (const char* length : {"1e-310", "1e-9", "1e9", "1e300"})
                QTest::addRow("%s edges of %s", edges, length)
                    << QString::fromLatin1(edges) << QString::fromLatin1(length);
        }
    }

    void absurdValuesStayNumbers()
    {
        QFETCH(QString, edges);
        QFETCH(QString, edgeLength);
        for (const int border : {0, 3, 2147483647}) {
            init();
            const GraphicsItem* item = m_shape->place<GraphicsPolygon>();
            m_shape->set("edges", edges);
            m_shape->set("edgeLength", edgeLength);
            setBorder(border);
            m_shape->set("rotation", "angle: 33; fixedPoint: BottomRight;");
            const QRectF outer = item->outerRect();
            QVERIFY(outer.width() > 0 && std::isfinite(outer.width()));
            QVERIFY(outer.height() > 0 && std::isfinite(outer.height()));
            const QRectF bounds = item->getShape().boundingRect();
            QVERIFY(std::isfinite(bounds.width()) && std::isfinite(bounds.height()));
            const QSizeF shown = ValueConversion::toSize(m_shape->value("boundingSize"));
            QVERIFY(near(shown.width(), outer.width(), 1e-6) && near(shown.height(), outer.height(), 1e-6));
            m_shape->set("boundingSize", "100,100");
            const double length = m_shape->value("edgeLength").toDouble();
            QVERIFY(length >= 1 && length <= 320);
        }
    }

    void valuesThatDoNotConvertAreKeptAndInert_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* id, const char* text) {
            QTest::addRow("%s \"%s\"", id, text) << QString::fromLatin1(id) << QString::fromUtf8(text);
        };
        for (const char* text : {"", "many", "3.5", " 4", "2147483648", "4,5", "nan"})
            row("edges", text);
        for (const char* text : {"", "long", "nan", "inf", "1e400", "50 px", "1,5"})
            row("edgeLength", text);
        for (const char* text : {"", "chartreusish", "#12345"})
            row("color", text);
        for (const char* text : {"", "3", "width: -1; color: #000000;", "width: 3; color: ink;"})
            row("border", text);
    }

    void valuesThatDoNotConvertAreKeptAndInert()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        setBorder(3);
        const GraphicsItem* item = m_shape->place<GraphicsPolygon>();
        const QByteArray property = id.toLatin1();
        const QRectF outer = item->outerRect();
        const QString shown = m_shape->value("boundingSize");
        QVERIFY(m_shape->set(property.constData(), text));
        QCOMPARE(m_shape->value(property.constData()), text);
        QCOMPARE(item->outerRect(), outer);
        QCOMPARE(m_shape->value("boundingSize"), shown);
        QCOMPARE(m_shape->element->getProperty(id)->toQml(1), QString());
    }

    void theEdgeLengthsAreThoseOfTheFormulas()
    {
        const auto* item = m_shape->place<GraphicsPolygon>();
        for (int edges = 3; edges <= 20; ++edges) {
            m_shape->set("edges", QString::number(edges));
            for (const int border : {0, 1, 2, 3, 50}) {
                setBorder(border);
                for (const double size : {-10.0, 0.0, 1.0, 86.6, 1000.0}) {
                    QVERIFY(near(item->edgeLengthFromWidth(size), lengthFromWidth(edges, size, border), 1e-9));
                    QVERIFY(near(item->edgeLengthFromHeight(size), lengthFromHeight(edges, size, border), 1e-9));
                }
            }
        }
        QVERIFY(near(lengthFromWidth(3, 80, 3), 80 - 4 * std::sqrt(3.0), 1e-12));
        QVERIFY(near(lengthFromHeight(3, 80, 0), 160 / std::sqrt(3.0), 1e-12));
        QVERIFY(near(lengthFromWidth(4, 80, 1), 80 / std::sqrt(2.0) - 2, 1e-12));
    }

    void outerSizeAndEdgeLengthAreEachOthersInverse()
    {
        const auto* item = m_shape->place<GraphicsPolygon>();
        for (int edges = 3; edges <= 20; ++edges) {
            m_shape->set("edges", QString::number(edges));
            QVERIFY(rc::check("inverse", [this, edges, item] {
                const int border = *rc::gen::inRange(0, 51);
                const double length = 1 + *rc::gen::inRange(0, 319000001) / 1e6;
                setBorder(border);
                m_shape->set("edgeLength", ValueConversion::toString(length));
                const QRectF outer = item->outerRect();
                RC_ASSERT(outer == PaintHelper::getPolygonBoundingRect(edges, length, border));
                RC_ASSERT(near(item->edgeLengthFromWidth(outer.width()), length, 1e-9));
                RC_ASSERT(near(item->edgeLengthFromHeight(outer.height()), length, 1e-9));
            }));
        }
    }

    void aTypedDimensionIsWhatThePolygonGets()
    {
        const auto* item = m_shape->place<GraphicsPolygon>();
        QVERIFY(rc::check("typed dimension", [this, item] {
            const int edges = *rc::gen::inRange(3, 21);
            const int border = *rc::gen::inRange(0, 51);
            m_shape->set("edges", QString::number(edges));
            m_shape->set("edgeLength", "7.5");
            setBorder(border);
            const bool width = *rc::gen::arbitrary<bool>();
            const double typed = *rc::gen::inRange(1, 150000) / 100.0;
            QSizeF outer = ValueConversion::toSize(m_shape->value("boundingSize"));
            RC_PRE(typed != (width ? outer.width() : outer.height()));
            (width ? outer.rwidth() : outer.rheight()) = typed;
            m_shape->set("boundingSize", ValueConversion::toString(outer));

            const double wanted =
                width ? lengthFromWidth(edges, typed, border) : lengthFromHeight(edges, typed, border);
            const double length = m_shape->value("edgeLength").toDouble();
            RC_ASSERT(near(length, std::clamp(wanted, 1.0, 320.0), 1e-9));
            const QSizeF drawn = item->outerRect().size();
            if (wanted >= 1 && wanted <= 320)
                RC_ASSERT(near(width ? drawn.width() : drawn.height(), typed, 1e-8));
            const QSizeF shown = ValueConversion::toSize(m_shape->value("boundingSize"));
            RC_ASSERT(near(shown.width(), drawn.width(), 5.1e-7) && near(shown.height(), drawn.height(), 5.1e-7));
            RC_ASSERT(drawn == m_shape->element->getBoundingRect().size());
        }));
    }

private:
    void setBorder(int width) { m_shape->set("border", ValueConversion::toString(BorderInfo(width, Qt::black))); }

    std::unique_ptr<ShapeFixture> m_shape;
};

QTEST_MAIN(tst_Polygon)
#include "tst_Polygon.moc"
