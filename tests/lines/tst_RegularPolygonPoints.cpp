#include "lines/RegularPolygonPoints.h"

#include "host/common/RegularPolygonGeometry.h"

#include <QtMath>
#include <QtTest>

#include <cmath>

using namespace Korvex::Meridane::Designer;

namespace {

constexpr int Fewest = 3;
constexpr int MostOfAnElement = 10;
constexpr int MostOfTheEditor = 20;
constexpr double Tolerance = 1e-9; // pixels

bool near(double one, double other, double tolerance = Tolerance)
{
    return std::abs(one - other) <= tolerance;
}

double distance(const QPointF& one, const QPointF& other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y());
}

/// The edge length by the rule as it is written down, in one expression for each kind.
double edgeLengthByTheRule(int n)
{
    const double sine = std::sin(M_PI / n);
    const double side = n % 2 == 0 ? sine * 272 : 2 * sine * 272 / (std::cos(M_PI / n) + 1);
    return std::floor(side * 0.5);
}

/// The vertex whose direction lies nearest to 90 degrees, found by walking in fractions of degrees.
int nearestToNinety(int n)
{
    int best = 1;
    for (int k = 2; k < n && std::abs(360.0 * k / n - 90) < std::abs(360.0 * best / n - 90) - 1e-9; ++k)
        best = k;
    return best;
}

} // namespace

class tst_RegularPolygonPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threePointsAreTheTriangleOfANewPolygon()
    {
        const QPolygonF points = regularPolygonPoints(3, MostOfAnElement);
        QCOMPARE(points.size(), 3);
        const QPolygonF expected{{78.5, 0}, {157, 135.97}, {0, 135.97}};
        for (int i = 0; i < 3; ++i) {
            QVERIFY(near(points.at(i).x(), expected.at(i).x(), 0.005));
            QVERIFY(near(points.at(i).y(), expected.at(i).y(), 0.005));
        }
        QVERIFY(near(distance(points.at(0), points.at(1)), 157));
    }

    void fourPointsAreASquareOnItsCorner()
    {
        const QPolygonF points = regularPolygonPoints(4, MostOfAnElement);
        QCOMPARE(points.size(), 4);
        const QPolygonF expected{{67.88, 0}, {135.76, 67.88}, {67.88, 135.76}, {0, 67.88}};
        for (int i = 0; i < 4; ++i) {
            QVERIFY(near(points.at(i).x(), expected.at(i).x(), 0.005));
            QVERIFY(near(points.at(i).y(), expected.at(i).y(), 0.005));
        }
    }

    void anElementStopsAtTenPointsAndTheEditorAtTwenty()
    {
        for (int count : {-1, 0, 1, 2}) {
            QVERIFY(regularPolygonPoints(count, MostOfAnElement).isEmpty());
            QVERIFY(regularPolygonPoints(count, MostOfTheEditor).isEmpty());
        }
        QCOMPARE(regularPolygonPoints(10, MostOfAnElement).size(), 10);
        QVERIFY(regularPolygonPoints(11, MostOfAnElement).isEmpty());
        QCOMPARE(regularPolygonPoints(11, MostOfTheEditor).size(), 11);
        QCOMPARE(regularPolygonPoints(20, MostOfTheEditor).size(), 20);
        QVERIFY(regularPolygonPoints(21, MostOfTheEditor).isEmpty());
    }

    void everyCountFollowsTheRule_data()
    {
        QTest::addColumn<int>("count");
        for (int count = Fewest; count <= MostOfTheEditor; ++count)
            QTest::addRow("%d points", count) << count;
    }

    void everyCountFollowsTheRule()
    {
        QFETCH(int, count);
        const QPolygonF points = regularPolygonPoints(count, MostOfTheEditor);
        QCOMPARE(points.size(), count);
        const double side = edgeLengthByTheRule(count);
        const double radius = side / (2 * std::sin(M_PI / count));
        const double left = radius * std::sin(2 * M_PI * nearestToNinety(count) / count);
        for (int j = 0; j < count; ++j) {
            const double angle = 2 * j * M_PI / count;
            QVERIFY(near(points.at(j).x(), radius * std::sin(angle) + left));
            QVERIFY(near(points.at(j).y(), radius - radius * std::cos(angle)));
        }
    }

    void everyCountIsTheHostsPolygonOfThatEdgeLength_data() { everyCountFollowsTheRule_data(); }

    void everyCountIsTheHostsPolygonOfThatEdgeLength()
    {
        QFETCH(int, count);
        const QPolygonF points = regularPolygonPoints(count, MostOfTheEditor);
        const double side = edgeLengthByTheRule(count);
        const QPolygonF host = Korvex::Meridane::Common::regularPolygon(count, side);
        QCOMPARE(host.size(), count);
        for (int j = 0; j < count; ++j)
            QVERIFY(distance(points.at(j), host.at(j)) <= Tolerance);
        const QRectF bounds = points.boundingRect();
        const QSizeF size = Korvex::Meridane::Common::regularPolygonSize(count, side);
        QVERIFY(near(bounds.width(), size.width()));
        QVERIFY(near(bounds.height(), size.height()));
    }

    void everyCountBeginsAtTheTopAndGoesRoundClockwise_data() { everyCountFollowsTheRule_data(); }

    void everyCountBeginsAtTheTopAndGoesRoundClockwise()
    {
        QFETCH(int, count);
        const QPolygonF points = regularPolygonPoints(count, MostOfTheEditor);
        const QRectF bounds = points.boundingRect();
        QCOMPARE(bounds.topLeft(), QPointF(0, 0));
        QCOMPARE(points.first().y(), 0.0);
        double twiceTheArea = 0; // above 0 when y grows downwards and the points go round clockwise
        for (int j = 0; j < count; ++j) {
            const QPointF& one = points.at(j);
            const QPointF& next = points.at((j + 1) % count);
            twiceTheArea += one.x() * next.y() - next.x() * one.y();
            QVERIFY(near(distance(one, next), edgeLengthByTheRule(count)));
        }
        QVERIFY(twiceTheArea > 0);
    }

    void coordinatesCarryNoNoise()
    {
        for (int count = Fewest; count <= MostOfTheEditor; ++count) {
            for (const QPointF& point : regularPolygonPoints(count, MostOfTheEditor)) {
                QVERIFY(point.x() == 0 || std::abs(point.x()) > 1e-6);
                QVERIFY(point.y() == 0 || std::abs(point.y()) > 1e-6);
            }
        }
    }
};

QTEST_MAIN(tst_RegularPolygonPoints)
#include "tst_RegularPolygonPoints.moc"
