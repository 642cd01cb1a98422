#include "host/common/PaintHelper.h"
#include "tests/runtime/BorderedShape.h"

#include <QQuickItem>
#include <QTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
DisplayType polygon()
{
    DisplayType type = BorderedShape::type(QStringLiteral("Polygon"));
    type.defaults.insert(QStringLiteral("edges"), 3);
    type.defaults.insert(QStringLiteral("edgeLength"), 50.0);
    type.sample.insert(QStringLiteral("edges"), 5);
    type.sample.insert(QStringLiteral("edgeLength"), 55.0);
    type.changes.insert(QStringLiteral("edges"), 7);
    type.changes.insert(QStringLiteral("edgeLength"), 33.25);
    type.huge = {{QStringLiteral("edges"), 6}, {QStringLiteral("edgeLength"), 4000.0}};
    const int largest = std::numeric_limits<int>::max();
    const double infinity = std::numeric_limits<double>::infinity();
    for (int edges : {21, 360, 361, 1000000, largest}) {
        type.extremes.append({QStringLiteral("edges"), edges});
    }
    for (double length : {0.001, 1e5, 1e9, 1e300}) {
        type.extremes.append({QStringLiteral("edgeLength"), length});
    }
    for (int edges : {0, 1, 2, -1, -largest}) {
        type.invisible.append({QStringLiteral("edges"), edges});
    }
    for (double length : {0.0, -5.0, std::nan(""), infinity, -infinity}) {
        type.invisible.append({QStringLiteral("edgeLength"), length});
    }
    type.someValues = [] {
        QVariantMap values = BorderedShape::someValues();
        const int edges = *rc::gen::inRange(3, 21);
        values.insert(QStringLiteral("edges"), edges);
        values.insert(QStringLiteral("edgeLength"), *rc::gen::inRange(100, 40000 / edges) / 100.0);
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        Common::PaintHelper::paintPolygon(item.property("edgeLength").toDouble(), item.property("edges").toInt(),
                                          BorderedShape::pen(item), BorderedShape::color(item), painter);
    };
    return type;
}

/** The content of the polygon as the canvas has it. */
QSizeF contentSize(int edges, double edgeLength)
{
    return Common::PaintHelper::getPolygonBoundingRect(edges, edgeLength, 0).size();
}
} // namespace

class TestDisplayPolygon : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayPolygon()
        : DisplayTypeTest(polygon())
    {}

private Q_SLOTS:
    void itsSizeComesFromItsEdges();
    void theDefaultIsTheTriangleOfTheElement();
    void theBorderDoesNotChangeTheSize();
    void itTurnsAboutItsContent();
    void whatIsNoPolygonHasNoSize_data();
    void whatIsNoPolygonHasNoSize();
    void edgesBeyond360CountAs360();
};

void TestDisplayPolygon::itsSizeComesFromItsEdges()
{
    QVERIFY(rc::check("the size of the outline", [this] {
        const int edges = *rc::gen::inRange(3, 21);
        const double length = *rc::gen::inRange(1, 32000) / 100.0;
        setValues({{QStringLiteral("edges"), edges}, {QStringLiteral("edgeLength"), length}});
        const QSizeF expected = contentSize(edges, length);
        RC_ASSERT(std::abs(item().width() - expected.width()) < 1e-9);
        RC_ASSERT(std::abs(item().height() - expected.height()) < 1e-9);
    }));
}

void TestDisplayPolygon::theDefaultIsTheTriangleOfTheElement()
{
    QCOMPARE(item().width(), 50.0);
    QCOMPARE(item().height(), 25 * std::sqrt(3));
}

void TestDisplayPolygon::theBorderDoesNotChangeTheSize()
{
    const QSizeF before = item().size();
    item().setProperty("borderWidth", 12);
    QCOMPARE(item().size(), before);
}

void TestDisplayPolygon::itTurnsAboutItsContent()
{
    // A hexagon turned about the bottom vertex by half a turn hangs from where it stood.
    setValues({{QStringLiteral("edges"), 6}, {QStringLiteral("edgeLength"), 30.0}, {QStringLiteral("borderWidth"), 6}});
    item().setProperty("fixedPoint", QStringLiteral("Bottom"));
    item().setRotation(180);
    const QPointF bottom(40 + 0.5 * contentSize(6, 30).width(), 30 + contentSize(6, 30).height());
    const QPointF top = item().mapToItem(sheet().screen(), QPointF(0.5 * item().width(), 0));
    QCOMPARE(top, bottom + QPointF(0, 60));
    QVERIFY(looksAsPainted());
}

void TestDisplayPolygon::whatIsNoPolygonHasNoSize_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<double>("edgeLength");
    QTest::newRow("no edges") << 0 << 50.0;
    QTest::newRow("two edges") << 2 << 50.0;
    QTest::newRow("fewer than none") << -1 << 50.0;
    QTest::newRow("edges without length") << 5 << 0.0;
    QTest::newRow("edges of negative length") << 5 << -5.0;
    QTest::newRow("a length that is no number") << 5 << std::nan("");
}

void TestDisplayPolygon::whatIsNoPolygonHasNoSize()
{
    QFETCH(int, edges);
    QFETCH(double, edgeLength);
    setValues({{QStringLiteral("edges"), edges}, {QStringLiteral("edgeLength"), edgeLength}});
    QCOMPARE(item().size(), QSizeF(0, 0));
    setValues({{QStringLiteral("edges"), 4}, {QStringLiteral("edgeLength"), 40.0}});
    QCOMPARE(item().size(), contentSize(4, 40));
}

void TestDisplayPolygon::edgesBeyond360CountAs360()
{
    setValues({{QStringLiteral("edges"), 360}, {QStringLiteral("edgeLength"), 0.9}});
    const QImage circle = sheet().running();
    const QSizeF size = item().size();
    QVERIFY(qAbs(size.width() - 0.9 * 360 / M_PI) < 0.1);
    for (int edges : {361, 1000000, std::numeric_limits<int>::max()}) {
        item().setProperty("edges", edges);
        QCOMPARE(item().size(), size);
        QCOMPARE(sheet().running(), circle);
    }
}

QTEST_MAIN(TestDisplayPolygon)
#include "tst_DisplayPolygon.moc"
