#include "lines/GraphicsIrregularPolygon.h"
#include "lines/GraphicsLine.h"
#include "lines/IrregularPolygon.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/values/ValueConversion.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::ShapeFixture;

namespace {

bool near(double a, double b, double tolerance = 1e-9)
{
    return std::abs(a - b) <= tolerance;
}

bool near(const QPointF& a, const QPointF& b)
{
    return near(a.x(), b.x()) && near(a.y(), b.y());
}

/// The point \a itemPoint of the element as the screen shows it.
QPointF onScreen(const ShapeFixture& shape, const QPointF& itemPoint)
{
    return shape.element->graphicsItem()->graphic()->mapToParent(itemPoint);
}

double coordinate()
{
    return *rc::gen::inRange(-40000, 40000) / 100.0;
}

QPolygonF somePoints(int most)
{
    QPolygonF points;
    for (int i = *rc::gen::inRange(3, most + 1); i > 0; --i)
        points << QPointF(coordinate(), coordinate());
    return points;
}

} // namespace

/// The irregular polygon as a data object: what it declares and how its points follow an outer size.
class tst_IrregularPolygon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shape = std::make_unique<ShapeFixture>(std::make_unique<IrregularPolygon>()); }

    void cleanup() { m_shape.reset(); }

    void theIdentityIsThatOfAnIrregularPolygon()
    {
        QCOMPARE(m_shape->identity(),
                 QStringLiteral("IrregularPolygon,IrregularPolygon,Polygon (Irregular),IrregularPolygon,Screen,"
                                "IrregularPolygon,irregularPolygon,irregularPolygon")
                     .split(QLatin1Char(',')));
        QVERIFY(m_shape->element->classNames().contains(QLatin1String("VisualElement")));
    }

    void withoutThePlugInThereIsNoItem() { QVERIFY(!m_shape->element->createGraphicsItem()); }

    void aNewOneIsAnOrangeTriangle()
    {
        const QPolygonF points = polygon().polygon();
        const QPolygonF triangle{{78.5, 0}, {157, 135.97}, {0, 135.97}};
        QCOMPARE(points.size(), 3);
        for (int i = 0; i < 3; ++i)
            QVERIFY(near(points.at(i).x(), triangle.at(i).x()) && near(points.at(i).y(), triangle.at(i).y(), 0.005));
        QCOMPARE(m_shape->value("color"), QStringLiteral("#f8971d"));
        QCOMPARE(m_shape->value("keepRatio"), QStringLiteral("0"));
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("158,135.97"));
    }

    void onTheCanvasTheOuterSizeIsThatOfThePoints()
    {
        place();
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("157,135.965988"));
        m_shape->set("pointList", "5,7 10,7 10,-3");
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("5,10"));
    }

    void everyPropertyKeepsWhatDoesNotConvert()
    {
        for (const char* id : {"boundingSize", "keepRatio", "pointList", "color"}) {
            const auto property = m_shape->element->getProperty(QLatin1String(id));
            QVERIFY2(property->allowInvalidValue(), id);
            QVERIFY2(m_shape->set(id, "broken"), id);
            QCOMPARE(m_shape->value(id), QStringLiteral("broken"));
        }
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(m_shape->runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("points|Points|9|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(m_shape->element->setIdName(QStringLiteral("kite")));
        m_shape->set("position", "10,20.5");
        m_shape->set("rotation", "angle: 30; fixedPoint: BottomLeft;");
        m_shape->set("pointList", "0,0 100.33333333,0 -5.5,1e-9 7,80");
        QCOMPARE(m_shape->element->toQml(1),
                 QStringLiteral("\tIrregularPolygon {\n"
                                "\t\tid: kite\n"
                                "\t\tx: 10\n"
                                "\t\ty: 20.5\n"
                                "\t\trotation: 30\n"
                                "\t\tfixedPoint: \"BottomLeft\"\n"
                                "\t\tpoints: [ [0, 0], [100.3333, 0], [-5.5, 0], [7, 80] ]\n"
                                "\t\tcolor: \"#f8971d\"\n"
                                "\t}"));
        m_shape->set("pointList", "");
        QVERIFY(m_shape->element->toQml(0).contains(QLatin1String("\tpoints: []\n")));
        m_shape->set("pointList", "0,0 broken");
        QVERIFY(!m_shape->element->toQml(0).contains(QLatin1String("points")));
    }

    void theBoundingRectangleIsThatOfThePoints()
    {
        m_shape->set("pointList", "-5,7 10,7.5 3,-4 0,0");
        QCOMPARE(m_shape->element->getBoundingRect(), QRectF(-5, -4, 15, 11.5));
        QCOMPARE(polygon().polygon(), QPolygonF({{-5, 7}, {10, 7.5}, {3, -4}, {0, 0}}));
        m_shape->set("pointList", "-5,7 10,7.5 3,-4 0");
        QCOMPARE(m_shape->element->getBoundingRect(), QRectF(0, 0, 0, 0));
        QVERIFY(polygon().polygon().isEmpty());
        m_shape->set("pointList", "");
        QCOMPARE(m_shape->element->getBoundingRect(), QRectF(0, 0, 0, 0));
    }

    void doublingTheWidthDoublesEveryXAndLeavesTheYs()
    {
        place();
        const QPolygonF before = polygon().polygon();
        QVERIFY(m_shape->set("boundingSize", "314,135.965988"));
        const QPolygonF after = polygon().polygon();
        QCOMPARE(after.size(), before.size());
        for (int i = 0; i < before.size(); ++i) {
            QVERIFY(after.at(i).x() == 2 * before.at(i).x());
            QVERIFY(after.at(i).y() == before.at(i).y());
        }
        QCOMPARE(m_shape->value("position"), QStringLiteral("0,0"));
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("314,135.965988"));
    }

    void thePointsFollowTheOuterSize_data()
    {
        QTest::addColumn<QString>("points");
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("newPoints");
        QTest::addColumn<QString>("newOuter");
        QTest::addColumn<QString>("newPosition");
        const auto row = [](const char* name, const char* points, const char* ratio, const char* typed,
                            const char* newPoints, const char* newOuter, const char* newPosition = "30,20") {
            QTest::newRow(name) << QString::fromLatin1(points) << QString::fromLatin1(ratio)
                                << QString::fromLatin1(typed) << QString::fromLatin1(newPoints)
                                << QString::fromLatin1(newOuter) << QString::fromLatin1(newPosition);
        };
        const char* box = "0,0 100,0 100,50 0,50";
        row("the width", box, "0", "150,50", "0,0 150,0 150,50 0,50", "150,50");
        row("the height", box, "0", "100,10", "0,0 100,0 100,10 0,10", "100,10");
        row("the width of points with all their digits", "0,0 100,0 33.333333333333336,50.142857142857146", "0",
            "200,50.142857", "0,0 200,0 66.6666666667,50.142857142857146", "200,50.142857");
        row("both", box, "0", "10,10", "0,0 10,0 10,10 0,10", "10,10");
        row("too small", box, "0", "0.2,-5", "0,0 1,0 1,1 0,1", "1,1");
        row("hugely negative", box, "0", "-1e300,-1e300", "0,0 1,0 1,1 0,1", "1,1");
        row("huge", box, "0", "1e300,50", "0,0 1e+300,0 1e+300,50 0,50", "1e+300,50");
        row("points that begin at the right and below", "40,30 140,30 140,80", "0", "200,50", "80,30 280,30 280,80",
            "200,50", "-10,20");
        row("points that begin left and above", "-40,-30 60,-30 60,20", "0", "50,100", "-20,-60 30,-60 30,40", "50,100",
            "10,50");
        row("points all on the far side", "-140,-80 -40,-80 -40,-30", "0", "200,100", "-280,-160 -80,-160 -80,-60",
            "200,100", "170,100");
        row("a kept ratio, the width", box, "2", "150,50", "0,0 150,0 150,75 0,75", "150,75");
        row("a kept ratio, the height", box, "2", "100,80", "0,0 160,0 160,80 0,80", "160,80");
        row("a kept ratio, both", box, "2", "150,80", "0,0 150,0 150,75 0,75", "150,75");
        row("a kept ratio of another shape", box, "4", "200,50", "0,0 200,0 200,50 0,50", "200,50");
        row("a kept ratio, the height gets too small", box, "4", "2,50", "0,0 4,0 4,1 0,1", "4,1");
        row("a kept ratio moves both", "40,30 140,30 140,80", "2", "200,50", "80,60 280,60 280,160", "200,100",
            "-10,-10");
        row("a negative ratio is none", box, "-2", "150,50", "0,0 150,0 150,50 0,50", "150,50");
        row("a ratio that does not convert is none", box, "wide", "150,50", "0,0 150,0 150,50 0,50", "150,50");
        row("an upright line has no width to scale", "10,0 10,50 10,20", "0", "70,100", "10,0 10,100 10,40", "0,100");
        row("a level line has no height to scale", "0,7 50,7 20,7", "0", "100,70", "0,7 100,7 40,7", "100,0");
        row("a single point", "10,20", "0", "70,100", "10,20", "0,0");
        row("points at one place", "10,20 10,20 10,20", "0", "70,100", "10,20 10,20 10,20", "0,0");
        row("no points", "", "0", "70,100", "", "0,0");
        row("two points", "0,0 10,20", "0", "20,20", "0,0 20,20", "20,20");
        row("what is thinner than the rounding", "0,0 10,1e-9 20,0", "0", "40,0", "0,0 20,1e-09 40,0", "40,0");
        row("a ratio that leads beyond all numbers", box, "1e-320", "150,50", box, "100,50");
        row("a ratio that leads there the other way", box, "1e+308", "100,60", box, "100,50");
        row("points that would leave all numbers", "1e200,0 1.0000001e200,0 1e200,50", "0", "1e305,50",
            "1e+200,0 1.0000001e+200,0 1e+200,50", nullptr);
        row("points that reach further than a width can", "-1.7e308,0 1.7e308,0 0,50", "0", "100,50",
            "-1.7e+308,0 1.7e+308,0 0,50", nullptr);
    }

    void thePointsFollowTheOuterSize()
    {
        QFETCH(QString, points);
        QFETCH(QString, ratio);
        QFETCH(QString, typed);
        QFETCH(QString, newPoints);
        QFETCH(QString, newOuter);
        QFETCH(QString, newPosition);
        m_shape->set("position", "30,20");
        m_shape->set("pointList", points);
        m_shape->set("keepRatio", ratio);
        place();
        QVERIFY(m_shape->set("boundingSize", typed));
        QCOMPARE(m_shape->value("pointList"), newPoints);
        QCOMPARE(m_shape->value("position"), newPosition);
        QCOMPARE(m_shape->value("keepRatio"), ratio);
        if (!newOuter.isNull())
            QCOMPARE(m_shape->value("boundingSize"), newOuter);
    }

    void theSizeThatWasTypedIsTheOneThatIsShown()
    {
        place();
        // The points have more decimals than the size is shown with.
        for (const char* typed : {"200,200", "33.3,71.7", "157,1000", "12.345678,99.999999", "1,1"}) {
            QVERIFY(m_shape->set("boundingSize", typed));
            QCOMPARE(m_shape->value("boundingSize"), QString::fromLatin1(typed));
        }
    }

    void aHeightStaysAsTypedWhenItsWidthWasCompletedAndRounded()
    {
        m_shape->set("pointList", "0,0 100,0 100,300");
        place();
        m_shape->set("keepRatio", "0.3333333333333333");
        QVERIFY(m_shape->set("boundingSize", "66.666667,200"));
        QCOMPARE(m_shape->value("pointList"), QStringLiteral("0,0 66.666667,0 66.666667,200"));
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("66.666667,200"));
    }

    void theOuterSizeThatIsThereAlreadyIsReportedAndChangesNothing()
    {
        place();
        const QString points = m_shape->value("pointList");
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        QVERIFY(m_shape->set("boundingSize", "157,135.965988"));
        QCOMPARE(m_shape->value("pointList"), points);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("157,135.965988"));
    }

    void sizesThatDoNotConvertAreInert()
    {
        place();
        const QString points = m_shape->value("pointList");
        QVERIFY(m_shape->set("boundingSize", "wide"));
        QCOMPARE(m_shape->value("pointList"), points);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("wide"));
        // From a size that is none there is no factor; the true one is shown again, and the next one counts.
        QVERIFY(m_shape->set("boundingSize", "300,300"));
        QCOMPARE(m_shape->value("pointList"), points);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("157,135.965988"));
        QVERIFY(m_shape->set("boundingSize", "314,135.965988"));
        QVERIFY(m_shape->value("pointList") != points);
    }

    void pointsThatDoNotConvertAreKeptAndInert_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"broken", "0,0 10,10 20", "0,0 10,10 nan,5", "0,0 10,10 5,inf", "0,0 10,10 1e400,5",
                                 "0,0  10,10 5,5", "0,0 10,10 5,5 ", "0;0 10;10 5;5", "0,0,0 1,1,1"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void pointsThatDoNotConvertAreKeptAndInert()
    {
        QFETCH(QString, text);
        const GraphicsItem* item = place();
        const QRectF outer = item->outerRect();
        QVERIFY(m_shape->set("pointList", text));
        QCOMPARE(m_shape->value("pointList"), text);
        QCOMPARE(item->outerRect(), outer);
        QVERIFY(!m_shape->element->toQml(0).contains(QLatin1String("points")));
        QVERIFY(m_shape->set("boundingSize", "300,300"));
        QCOMPARE(m_shape->value("pointList"), text);
        QCOMPARE(item->outerRect(), outer);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("157,135.965988"));
        QVERIFY(m_shape->set("pointList", "0,0 10,0 10,20"));
        QCOMPARE(item->outerRect(), QRectF(0, 0, 10, 20));
    }

    void aPositionThatDoesNotConvertStays()
    {
        m_shape->set("pointList", "40,30 140,30 140,80");
        place();
        m_shape->set("position", "somewhere");
        QVERIFY(m_shape->set("boundingSize", "200,100"));
        QCOMPARE(m_shape->value("pointList"), QStringLiteral("80,60 280,60 280,160"));
        QCOMPARE(m_shape->value("position"), QStringLiteral("somewhere"));
    }

    void withoutACanvasItemThePointsStay()
    {
        const QString points = m_shape->value("pointList");
        QVERIFY(m_shape->set("boundingSize", "50,50"));
        QCOMPARE(m_shape->value("pointList"), points);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("50,50"));
    }

    void anItemOfAnotherShapeIsNotFollowed()
    {
        m_shape->place<GraphicsLine>();
        const QString points = m_shape->value("pointList");
        QVERIFY(m_shape->set("boundingSize", "50,50"));
        QCOMPARE(m_shape->value("pointList"), points);
    }

    void whileTheItemChangesSizeTheElementDoesNotReact()
    {
        GraphicsItem* item = place();
        const QString points = m_shape->value("pointList");
        item->setChangingSize(true);
        QVERIFY(m_shape->set("boundingSize", "50,50"));
        QCOMPARE(m_shape->value("pointList"), points);
        item->setChangingSize(false);
        QVERIFY(m_shape->set("boundingSize", "60,50"));
        QVERIFY(m_shape->value("pointList") != points);
    }

    void otherPropertiesDoNotTouchThePoints()
    {
        place();
        const QString points = m_shape->value("pointList");
        m_shape->set("keepRatio", "3");
        m_shape->set("color", "#102030");
        m_shape->set("position", "4,5");
        m_shape->set("rotation", "angle: 33; fixedPoint: TopLeft;");
        m_shape->element->afterPropertyChanged(nullptr, QStringLiteral("1,1"));
        QCOMPARE(m_shape->value("pointList"), points);
        QCOMPARE(m_shape->value("boundingSize"), QStringLiteral("157,135.965988"));
    }

    void aTurnedPolygonKeepsItsTopLeftCornerInPlace_data()
    {
        QTest::addColumn<QString>("fixedPoint");
        for (const char* name : {"TopLeft", "Top", "TopRight", "Left", "Center", "Right", "BottomLeft", "BottomRight"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void aTurnedPolygonKeepsItsTopLeftCornerInPlace()
    {
        QFETCH(QString, fixedPoint);
        for (const double angle : {0.0, 30.0, 90.0, 180.0, -77.5, 360.0}) {
            init();
            m_shape->set("position", "100,80");
            m_shape->set("rotation", QStringLiteral("angle: %1; fixedPoint: %2;").arg(angle).arg(fixedPoint));
            m_shape->set("pointList", "40,30 140,30 140,80 20,70");
            const GraphicsItem* item = place();
            const QPointF before = onScreen(*m_shape, item->outerRect().topLeft());
            QVERIFY(m_shape->set("boundingSize", "200,35"));
            QCOMPARE(item->outerRect().size(), QSizeF(200, 35));
            QVERIFY(near(onScreen(*m_shape, item->outerRect().topLeft()), before));
        }
    }

    void anyPolygonTakesTheSizeThatIsTypedAndStaysWhereItBegins()
    {
        QVERIFY(rc::check("points and size", [this] {
            init();
            const QPolygonF before = somePoints(20);
            const QRectF outline = before.boundingRect();
            RC_PRE(outline.width() > 0 && outline.height() > 0);
            const QPointF position(coordinate(), coordinate());
            m_shape->set("pointList", ValueConversion::toString(before));
            m_shape->set("position", ValueConversion::toString(position));
            place();
            const auto length = [] { return ValueConversion::toString(*rc::gen::inRange(100, 80000) / 100.0); };
            const bool widthToo = *rc::gen::arbitrary<bool>();
            const QString shown = m_shape->value("boundingSize");
            const QString width = widthToo ? length() : shown.section(QLatin1Char(','), 0, 0);
            const QString typed = width + QLatin1Char(',') + length();
            RC_PRE(typed != shown);
            RC_ASSERT(m_shape->set("boundingSize", typed));
            RC_ASSERT(m_shape->value("boundingSize") == typed);

            const QPolygonF after = polygon().polygon();
            const QRectF now = after.boundingRect();
            RC_ASSERT(after.size() == before.size());
            const QPointF place = ValueConversion::toPoint(m_shape->value("position"));
            RC_ASSERT(near(place + now.topLeft(), position + outline.topLeft()));
            for (qsizetype i = 0; i < after.size(); ++i) {
                // Each point keeps its share of the outline; what was not typed is not touched at all.
                const QPointF share = before.at(i) - outline.topLeft();
                const QPointF shareNow = after.at(i) - now.topLeft();
                RC_ASSERT(near(shareNow.x() * outline.width(), share.x() * now.width(), 1e-5));
                RC_ASSERT(near(shareNow.y() * outline.height(), share.y() * now.height(), 1e-5));
                RC_ASSERT(widthToo || after.at(i).x() == before.at(i).x());
            }
        }));
    }

    void aListOfAnyLengthIsKeptAsItIs_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 1, 2, 3, 20, 21, 1000, 100000})
            QTest::addRow("%d points", count) << count;
    }

    void aListOfAnyLengthIsKeptAsItIs()
    {
        QFETCH(int, count);
        QPolygonF points;
        for (int i = 0; i < count; ++i)
            points << QPointF(i % 317 + i / 1000.0, i % 91);
        const QString text = ValueConversion::toString(points);
        const GraphicsItem* item = place();
        QVERIFY(m_shape->set("pointList", text));
        QCOMPARE(m_shape->value("pointList"), text);
        QCOMPARE(polygon().polygon(), points);
        QCOMPARE(m_shape->element->getBoundingRect(), points.boundingRect());
        QCOMPARE(item->outerRect(), points.boundingRect());
        const QString qml = m_shape->element->toQml(0);
        QCOMPARE(qml.count(QLatin1Char('[')), count + 1);
        m_shape->set("boundingSize", "100,100");
        QCOMPARE(polygon().polygon().size(), count);
    }

    void listsThatCannotBeDrawnOrEditedAreNamedByACheck()
    {
        const auto advice = [this](const char* points) {
            m_shape->set("pointList", points);
            return m_shape->element->getProperty(QStringLiteral("pointList"))->advice();
        };
        QVERIFY(advice("").contains(QLatin1String("at least 3 points and this one has 0")));
        QVERIFY(advice("0,0 1,1").contains(QLatin1String("this one has 2")));
        QVERIFY(advice("0,0 1,1 2,0").isEmpty());
        QByteArray many("0,0");
        for (int i = 1; i < 20; ++i)
            many += " 1," + QByteArray::number(i);
        QVERIFY(advice(many.constData()).isEmpty());
        QVERIFY(advice((many + " 2,2").constData()).contains(QLatin1String("has 21 points")));
    }

private:
    [[nodiscard]] const IrregularPolygon& polygon() const
    {
        return static_cast<const IrregularPolygon&>(*m_shape->element);
    }

    GraphicsItem* place() const { return m_shape->place<GraphicsIrregularPolygon>(); }

    std::unique_ptr<ShapeFixture> m_shape;
};

QTEST_MAIN(tst_IrregularPolygon)
#include "tst_IrregularPolygon.moc"
