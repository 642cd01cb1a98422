#include "host/common/PaintHelper.h"
#include "host/common/TransformOrigin.h"
#include "tests/runtime/BorderedShape.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
QVariantList toList(const QPolygonF& polygon)
{
    QVariantList list;
    for (const QPointF& point : polygon) {
        list.append(QVariant(QVariantList{point.x(), point.y()}));
    }
    return list;
}

QPolygonF pointsOf(const QQuickItem& item)
{
    QPolygonF polygon;
    const QVariantList points = item.property("points").toList();
    for (const QVariant& point : points) {
        polygon.append(QPointF(point.toList().at(0).toDouble(), point.toList().at(1).toDouble()));
    }
    return polygon;
}

std::pair<QString, QVariant> points(const QPolygonF& polygon)
{
    return {QStringLiteral("points"), toList(polygon)};
}

void insert(QVariantMap& values, const QPolygonF& polygon)
{
    values.insert(QStringLiteral("points"), toList(polygon));
}

DisplayType irregularPolygon()
{
    DisplayType type;
    type.name = QStringLiteral("IrregularPolygon");
    type.defaults = {{QStringLiteral("color"), QColor(248, 151, 29)}, {QStringLiteral("points"), QVariantList()}};
    insert(type.sample, {{20, 0}, {95, 5}, {110, 50.5}, {60, 75}, {70, 40}, {-10, 33.25}});
    type.changes = {{QStringLiteral("color"), QColor(0, 80, 160, 200)}};
    insert(type.changes, {{0, 0}, {90, 10}, {30, 66.6}});
    insert(type.huge, {{-500, 700}, {9000, 700}, {9000, 9000}, {-500, 9000}});
    type.extremes = {{QStringLiteral("color"), QColor()},
                     points({{0, 0}, {0.001, 0}, {0, 0.001}}),
                     points({{0, 0}, {1e5, 10}, {30, 60}}),
                     points({{-1e9, -1e9}, {1e9, 10}, {30, 1e9}}),
                     points({{0, 0}, {100, 0}, {100, 0}, {100, 80}, {0, 0}})};
    type.invisible = {{QStringLiteral("points"), QVariantList()},
                      points({{10, 10}}),
                      points({{0, 0}, {100, 75}}),
                      points({{10, 10}, {10, 10}, {10, 10}}),
                      points({{0, 40}, {100, 40}, {50, 40}}),
                      points({{40, 0}, {40, 100}, {40, 50}})};
    type.someValues = [] {
        const auto coordinate = [](int from, int to) { return *rc::gen::inRange(from * 100, to * 100) / 100.0; };
        QPolygonF polygon;
        for (int count = *rc::gen::inRange(3, 21); count > 0; --count) {
            polygon.append(QPointF(coordinate(-60, 140), coordinate(-40, 100)));
        }
        QVariantMap values;
        insert(values, polygon);
        values.insert(QStringLiteral("color"), BorderedShape::someValues().value(QStringLiteral("color")));
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        Common::PaintHelper::paintIrregularPolygon(pointsOf(item), item.property("color").value<QColor>(), painter);
    };
    type.content = [](const QQuickItem& item) { return pointsOf(item).boundingRect(); };
    return type;
}
} // namespace

class TestDisplayIrregularPolygon : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayIrregularPolygon()
        : DisplayTypeTest(irregularPolygon())
    {}

private Q_SLOTS:
    void everyKindOfPolygonLooksAsPaintedAboutEachFixedPoint_data();
    void everyKindOfPolygonLooksAsPaintedAboutEachFixedPoint();
    void theFixedPointStaysInPlace();
    void itTakesWhatAnExportWrites();
    void itHasNoSizeOfItsOwn();
    void whatIsNoListOfPointsIsRefused_data();
    void whatIsNoListOfPointsIsRefused();
    void aLongListIsShown();

private:
    /** Runs @p script as a handler of the item would. */
    void run(const QString& script);
};

void TestDisplayIrregularPolygon::everyKindOfPolygonLooksAsPaintedAboutEachFixedPoint_data()
{
    QTest::addColumn<QPolygonF>("polygon");
    const std::pair<const char*, QPolygonF> polygons[] = {
        {"convex", {{30, 0}, {90, 10}, {100, 60}, {40, 80}, {0, 35}}},
        {"concave", {{0, 0}, {100, 0}, {100, 80}, {50, 20}, {0, 80}}},
        {"crossing itself", {{50, 0}, {80, 90}, {0, 35}, {100, 35}, {20, 90}}},
        {"with a hole", {{0, 0}, {90, 0}, {90, 90}, {30, 90}, {30, 30}, {60, 30}, {60, 60}, {0, 60}}},
        {"off its origin", {{40.5, 30.25}, {120, 45}, {75, 101}}},
        {"about its origin", {{-50, -30}, {45, -20}, {30, 35}, {-20, 40}}},
    };
    for (const auto& [name, polygon] : polygons) {
        QTest::newRow(name) << polygon;
    }
}

void TestDisplayIrregularPolygon::everyKindOfPolygonLooksAsPaintedAboutEachFixedPoint()
{
    QFETCH(QPolygonF, polygon);
    setValues({{QStringLiteral("points"), toList(polygon)}});
    QVERIFY(!isBlank());
    item().setPosition(QPointF(110.5, 70.25));
    for (const char* fixedPoint :
         {"TopLeft", "Top", "TopRight", "Left", "Center", "Right", "BottomLeft", "Bottom", "BottomRight"}) {
        item().setProperty("fixedPoint", QString::fromLatin1(fixedPoint));
        for (double angle : {0.0, 30.0, 90.0, 180.0, -77.5, 360.0}) {
            item().setRotation(angle);
            QVERIFY2(DisplaySheet::pixelsThatDiffer(sheet().running(), painted(), Tolerance) <= 1, fixedPoint);
        }
    }
}

void TestDisplayIrregularPolygon::theFixedPointStaysInPlace()
{
    setValues({{QStringLiteral("points"), toList({{40, 30}, {120, 45}, {75, 110}})}});
    // Set in any order: points after the rotation, the fixed point last.
    item().setRotation(90);
    item().setProperty("fixedPoint", QStringLiteral("BottomRight"));
    const auto shown = [this](const QPointF& point) { return item().mapToItem(sheet().screen(), point); };
    QCOMPARE(shown({120, 110}), QPointF(40 + 120, 30 + 110));
    setValues({{QStringLiteral("points"), toList({{0, 0}, {60, 0}, {60, 50}})}});
    QCOMPARE(shown({60, 50}), QPointF(40 + 60, 30 + 50));
    QCOMPARE(shown({0, 50}), QPointF(40 + 60, 30 - 10));
    item().setRotation(-90);
    QCOMPARE(shown({60, 50}), QPointF(40 + 60, 30 + 50));
    QCOMPARE(shown({0, 50}), QPointF(40 + 60, 30 + 110));
    item().setRotation(0);
    QCOMPARE(shown({0, 50}), QPointF(40, 30 + 50));
}

void TestDisplayIrregularPolygon::itTakesWhatAnExportWrites()
{
    run(QStringLiteral("points = [ [0, 0], [80.5, -3], [41.1235, 60] ]"));
    QCOMPARE(pointsOf(item()), QPolygonF({{0, 0}, {80.5, -3}, {41.1235, 60}}));
    QVERIFY(!isBlank());
    QVERIFY(looksAsPainted());
    run(QStringLiteral("points = points.concat([[5, 40]])"));
    QCOMPARE(pointsOf(item()), QPolygonF({{0, 0}, {80.5, -3}, {41.1235, 60}, {5, 40}}));
    QVERIFY(looksAsPainted());
    run(QStringLiteral("points = []"));
    QVERIFY(isBlank());
}

void TestDisplayIrregularPolygon::itHasNoSizeOfItsOwn()
{
    setValues({{QStringLiteral("points"), toList({{0, 0}, {90, 10}, {30, 66.6}})}});
    QCOMPARE(item().size(), QSizeF(0, 0));
    item().setRotation(33);
    const QImage before = sheet().running();
    item().setSize(QSizeF(70, 40));
    QCOMPARE(sheet().running(), before);
}

void TestDisplayIrregularPolygon::whatIsNoListOfPointsIsRefused_data()
{
    QTest::addColumn<QString>("script");
    for (const char* script :
         {"[1, 2, 3, 4]", "[[0, 0], [10, 0], [10]]", "[[0, 0], [10, 0], [10, 20, 30]]", "[[0, 0], [10, 0], []]",
          "[[0, 0], [10, 0], null]", "[[0, 0], [10, 0], undefined]", "[[0, 0], [10, 0], ['a', 5]]",
          "[[0, 0], [10, 0], [5, undefined]]", "[[0, 0], [10, 0], [NaN, 5]]", "[[0, 0], [10, 0], [5, Infinity]]",
          "[[0, 0], [10, 0], [-Infinity, 5]]", "[[0, 0], [10, 0], [[5, 5], 5]]", "[[0, 0], [10, 0], {x: 1, y: 2}]",
          "['0,0', '10,0', '5,5']", "[['0', '0'], ['10', '0'], ['5', '5']]", "[[0, 0], [10, 0], [true, 5]]"}) {
        QTest::newRow(script) << QString::fromLatin1(script);
    }
}

void TestDisplayIrregularPolygon::whatIsNoListOfPointsIsRefused()
{
    QFETCH(QString, script);
    const QPolygonF triangle{{0, 0}, {90, 10}, {30, 66.6}};
    setValues({{QStringLiteral("points"), toList(triangle)}});
    const QImage before = sheet().running();
    QSignalSpy changes(&item(), SIGNAL(pointsChanged()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("points: not a list of \\[x, y\\]")));
    run(QStringLiteral("points = ") + script);
    QCOMPARE(pointsOf(item()), triangle);
    QVERIFY(changes.isEmpty());
    QCOMPARE(sheet().running(), before);
}

void TestDisplayIrregularPolygon::aLongListIsShown()
{
    constexpr int Count = 100000;
    QPolygonF circle;
    for (int i = 0; i < Count; ++i) {
        const double angle = 2 * M_PI * i / Count;
        circle.append(QPointF(60 + 55 * std::cos(angle), 60 + 55 * std::sin(angle)));
    }
    setValues({{QStringLiteral("points"), toList(circle)}});
    QVERIFY(!isBlank());
    QVERIFY(looksAsPainted());
    item().setRotation(30);
    QVERIFY(DisplaySheet::pixelsThatDiffer(sheet().running(), painted(), Tolerance) <= 1);
}

void TestDisplayIrregularPolygon::run(const QString& script)
{
    QQmlExpression expression(qmlContext(&item()), &item(), script);
    expression.evaluate();
    QVERIFY2(!expression.hasError(), qPrintable(expression.error().toString()));
}

QTEST_MAIN(TestDisplayIrregularPolygon)
#include "tst_DisplayIrregularPolygon.moc"
