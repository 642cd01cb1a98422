#include "host/common/PaintHelper.h"
#include "host/common/RegularPolygonGeometry.h"

#include <QTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

class TestRegularPolygonGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outerSizeAndEdgeLengthAreEachOthersInverse();
    void boundingRectangleIsThatOfTheMitredOutline();
    void defaultTriangleHasItsKnownSize();
    void formulasOfTriangleAndSquare();
    void widestVertexOfEveryCount();
    void contentStartsAtTheOrigin();
    void oddPenWidthsAreMadeEven();
    void tooFewEdgesOrNoLengthIsNoPolygon();
    void absurdEdgeCountsStayFinite();
};

void TestRegularPolygonGeometry::outerSizeAndEdgeLengthAreEachOthersInverse()
{
    for (int edges = 3; edges <= 20; ++edges) {
        for (int border = 0; border <= 50; ++border) {
            QVERIFY(rc::check("inverse", [edges, border] {
                const double length = 1 + *rc::gen::inRange(0, 319000001) / 1e6;
                const QRectF rect = PaintHelper::getPolygonBoundingRect(edges, length, border);
                RC_ASSERT(std::abs(edgeLengthFromWidth(edges, rect.width(), border) - length) < 1e-9);
                RC_ASSERT(std::abs(edgeLengthFromHeight(edges, rect.height(), border) - length) < 1e-9);
            }));
        }
    }
}

void TestRegularPolygonGeometry::boundingRectangleIsThatOfTheMitredOutline()
{
    for (int edges = 3; edges <= 20; ++edges) {
        for (int border : {0, 1, 2, 7, 50}) {
            const double length = 73.25;
            // Each vertex moves outwards along its ray until the edges have moved by half the pen width.
            const double radius = circumradius(edges, length);
            const double scale = (radius + 0.5 * evenPenWidth(border) / std::cos(M_PI / edges)) / radius;
            QPolygonF grown = regularPolygon(edges, length);
            const QPointF centre(grown.first().x(), radius);
            for (QPointF& vertex : grown) {
                vertex = centre + (vertex - centre) * scale;
            }
            const QRectF expected = grown.boundingRect();
            const QRectF rect = regularPolygonBoundingRect(edges, length, border);
            QVERIFY(std::abs(rect.x() - expected.x()) < 1e-9 && std::abs(rect.y() - expected.y()) < 1e-9);
            QVERIFY(std::abs(rect.width() - expected.width()) < 1e-9);
            QVERIFY(std::abs(rect.height() - expected.height()) < 1e-9);
        }
    }
}

void TestRegularPolygonGeometry::defaultTriangleHasItsKnownSize()
{
    const QRectF rect = PaintHelper::getPolygonBoundingRect(3, 50, 0);
    QCOMPARE(rect.topLeft(), QPointF(0, 0));
    QCOMPARE(rect.width(), 50.0);
    QCOMPARE(std::round(rect.height() * 100) / 100, 43.3);
    QCOMPARE(regularPolygonSize(3, 50), rect.size());
}

void TestRegularPolygonGeometry::formulasOfTriangleAndSquare()
{
    const double root = std::sqrt(3.0);
    for (int border : {0, 1, 4}) {
        const int pen = evenPenWidth(border);
        QCOMPARE(edgeLengthFromWidth(3, 80, border), 80 - pen * root);
        QCOMPARE(edgeLengthFromHeight(3, 86.6, border), 2 * 86.6 / root - pen * root);
        QCOMPARE(edgeLengthFromWidth(4, 80, border), 80 / std::sqrt(2.0) - pen);
        QCOMPARE(edgeLengthFromHeight(4, 80, border), 80 / std::sqrt(2.0) - pen);
    }
}

void TestRegularPolygonGeometry::widestVertexOfEveryCount()
{
    QCOMPARE(widestVertex(3), 1);
    QCOMPARE(widestVertex(4), 1);
    QCOMPARE(widestVertex(20), 5);
    for (int edges = 3; edges <= 360; ++edges) {
        double widest = 0;
        for (int i = 0; i < edges; ++i) {
            widest = qMax(widest, std::sin(2 * M_PI * i / edges));
        }
        // Above 20 edges, whole degrees may take a neighbour that is a hair nearer to the centre.
        const double allowed = edges <= 20 ? 1e-12 : 2e-3;
        QVERIFY(widest - std::sin(2 * M_PI * widestVertex(edges) / edges) < allowed);
    }
}

void TestRegularPolygonGeometry::contentStartsAtTheOrigin()
{
    for (int edges = 3; edges <= 20; ++edges) {
        const QPolygonF polygon = regularPolygon(edges, 40);
        QCOMPARE(polygon.size(), edges);
        const QRectF bounds = polygon.boundingRect();
        QVERIFY(std::abs(bounds.x()) < 1e-9 && std::abs(bounds.y()) < 1e-9);
        const QSizeF size = regularPolygonSize(edges, 40);
        QVERIFY(std::abs(bounds.width() - size.width()) < 1e-9 && std::abs(bounds.height() - size.height()) < 1e-9);
        for (int i = 0; i < edges; ++i) {
            QVERIFY(std::abs(QLineF(polygon.at(i), polygon.at((i + 1) % edges)).length() - 40) < 1e-9);
        }
        QVERIFY(polygon.at(1).x() > polygon.at(0).x());
    }
}

void TestRegularPolygonGeometry::oddPenWidthsAreMadeEven()
{
    QCOMPARE(evenPenWidth(-3), 0);
    QCOMPARE(evenPenWidth(0), 0);
    QCOMPARE(evenPenWidth(1), 2);
    QCOMPARE(evenPenWidth(2), 2);
    QCOMPARE(evenPenWidth(49), 50);
    QCOMPARE(regularPolygonBoundingRect(5, 40, 3), regularPolygonBoundingRect(5, 40, 4));
}

void TestRegularPolygonGeometry::tooFewEdgesOrNoLengthIsNoPolygon()
{
    QVERIFY(regularPolygon(2, 40).isEmpty());
    QVERIFY(regularPolygon(3, 0).isEmpty());
    QVERIFY(regularPolygon(3, qQNaN()).isEmpty());
    QCOMPARE(regularPolygonBoundingRect(2, 40, 3), QRectF());
    QCOMPARE(regularPolygonBoundingRect(5, -1, 3), QRectF());
    QCOMPARE(edgeLengthFromWidth(2, 40, 3), 0.0);
    QCOMPARE(edgeLengthFromHeight(0, 40, 3), 0.0);
}

void TestRegularPolygonGeometry::absurdEdgeCountsStayFinite()
{
    const int edges = std::numeric_limits<int>::max();
    QCOMPARE(regularPolygon(edges, 1).size(), 360);
    const QRectF rect = regularPolygonBoundingRect(edges, 1, 3);
    QVERIFY(std::abs(edgeLengthFromWidth(edges, rect.width(), 3) - 1) < 1e-9);
    QVERIFY(std::abs(edgeLengthFromHeight(edges, rect.height(), 3) - 1) < 1e-9);
}

QTEST_APPLESS_MAIN(TestRegularPolygonGeometry)
#include "tst_RegularPolygonGeometry.moc"
