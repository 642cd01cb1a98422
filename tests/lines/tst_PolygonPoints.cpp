#include "tests/lines/PolygonItem.h"

#include "host/core/commands/ChangeProperty.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::picture;
using Test::PolygonItem;

namespace {

bool near(const QPointF& a, const QPointF& b)
{
    return (a - b).manhattanLength() <= 1e-9;
}

} // namespace

/// The handles of an irregular polygon's item: its points, and the frame that scales it.
class tst_PolygonPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_polygon = std::make_unique<PolygonItem>(); }

    void cleanup() { m_polygon.reset(); }

    void everyPointIsAHandle()
    {
        m_polygon->shape.set("position", "-30,12.5");
        const QPolygonF points{{0, 0}, {80, 0}, {90, 33}, {40, 60}, {-20, 40}};
        m_polygon->setPoints(points);
        item()->setSelected(true);
        for (int i = 0; i < points.size(); ++i) {
            bool handled = false;
            const QPointF there = item()->mapToScene(points.at(i));
            QCOMPARE(item()->getResizePointHandle(there + QPointF(-2, 2.5), &handled), i);
            QVERIFY(handled);
            QCOMPARE(item()->toolTip(), QStringLiteral("Drag this point (#%1) to reshape").arg(i + 1));
        }
        bool handled = false;
        QCOMPARE(item()->getResizePointHandle(item()->mapToScene(QPointF(40, 30)), &handled), -1);
        QVERIFY(handled);
        QCOMPARE(item()->toolTip(), QStringLiteral("Polygon (Irregular): kite"));
        QCOMPARE(item()->getResizePointHandle(item()->mapToScene(points.first()), nullptr), 0);
    }

    void theThirdPointSaysItsNumberOnlyWhileTheItemIsSelected()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        bool handled = false;
        QVERIFY(!picture(item()).isNull());
        QCOMPARE(item()->getResizePointHandle({40, 60}, &handled), 2);
        QCOMPARE(item()->toolTip(), QStringLiteral("Polygon (Irregular): kite"));
        item()->setSelected(true);
        QCOMPARE(item()->getResizePointHandle({40, 60}, &handled), 2);
        QCOMPARE(item()->toolTip(), QStringLiteral("Drag this point (#3) to reshape"));
        // It stays when the item is painted meanwhile.
        QVERIFY(!picture(item()).isNull());
        QCOMPARE(item()->toolTip(), QStringLiteral("Drag this point (#3) to reshape"));
    }

    void aPointIsReachedWithinFivePixelsOfManhattanLength_data()
    {
        QTest::addColumn<QPointF>("way");
        QTest::addColumn<int>("handle");
        const auto row = [](double x, double y, int handle) {
            QTest::addRow("%g, %g", x, y) << QPointF(x, y) << handle;
        };
        row(0, 0, 1);
        row(5, 0, 1);
        row(0, -5, 1);
        row(2.5, 2.5, 1);
        row(-2, -3, 1);
        row(5.01, 0, -1);
        row(0, 5.01, -1);
        row(3, 3, -1); // nearer than five pixels as the crow flies
        row(-4, 1.5, -1);
    }

    void aPointIsReachedWithinFivePixelsOfManhattanLength()
    {
        QFETCH(QPointF, way);
        QFETCH(int, handle);
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        bool handled = false;
        QCOMPARE(item()->getResizePointHandle(QPointF(80, 0) + way, &handled), handle);
    }

    void ofPointsInReachTheFirstOfTheListCounts()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {79, 1}, {40, 60}, {80, 0}, {0, 0}});
        bool handled = false;
        QCOMPARE(item()->getResizePointHandle({79, 1}, &handled), 1); // on the third point
        QCOMPARE(item()->getResizePointHandle({76, 3}, &handled), 2); // beyond the reach of the second
    }

    void twoPointsAtTheSamePlaceAreTheFirstOfThem()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}, {80, 0}, {0, 0}});
        item()->setSelected(true);
        bool handled = false;
        QCOMPARE(item()->getResizePointHandle({80, 0}, &handled), 1);
        QCOMPARE(item()->toolTip(), QStringLiteral("Drag this point (#2) to reshape"));
        QCOMPARE(item()->getResizePointHandle({0, 0}, &handled), 0);
    }

    void aTurnedOneHasNoPointHandlesButAWholeTurnIsNone()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        item()->setSelected(true);
        bool handled = false;
        for (const double angle : {45.0, 0.1, -90.0, 180.0, 359.9, 720.0, -720.0}) {
            m_polygon->shape.set("rotation", QStringLiteral("angle: %1; fixedPoint: TopLeft;").arg(angle));
            item()->setHandleToolTip(QStringLiteral("a handle"));
            handled = false;
            QCOMPARE(item()->getResizePointHandle({0, 0}, &handled), -1);
            QVERIFY(handled);
            QCOMPARE(item()->toolTip(), QStringLiteral("Polygon (Irregular): kite"));
            QVERIFY(item()->pointHandles().isEmpty());
        }
        for (const double angle : {360.0, -360.0, 0.0}) {
            m_polygon->shape.set("rotation", QStringLiteral("angle: %1; fixedPoint: TopLeft;").arg(angle));
            QCOMPARE(item()->getResizePointHandle({0, 0}, &handled), 0);
            QCOMPARE(item()->toolTip(), QStringLiteral("Drag this point (#1) to reshape"));
            QCOMPARE(item()->pointHandles().size(), 3);
        }
    }

    void oneThatIsSmallHasNoPointHandles_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<bool>("handles");
        QTest::newRow("ten wide") << QSizeF(10, 50) << false;
        QTest::newRow("a little wider") << QSizeF(10.01, 50) << true;
        QTest::newRow("ten high") << QSizeF(50, 10) << false;
        QTest::newRow("a little higher") << QSizeF(50, 10.01) << true;
        QTest::newRow("flat") << QSizeF(50, 0) << false;
        QTest::newRow("upright") << QSizeF(0, 50) << false;
    }

    void oneThatIsSmallHasNoPointHandles()
    {
        QFETCH(QSizeF, size);
        QFETCH(bool, handles);
        m_polygon->setPoints({{0, 0}, {size.width(), 0}, {0, size.height()}});
        item()->setSelected(true);
        item()->setHandleToolTip(QStringLiteral("a handle"));
        bool handled = false;
        QCOMPARE(item()->getResizePointHandle({0, 0}, &handled), handles ? 0 : -1);
        QVERIFY(handled);
        QCOMPARE(item()->pointHandles().isEmpty(), !handles);
        if (!handles)
            QCOMPARE(item()->toolTip(), QStringLiteral("Polygon (Irregular): kite"));
    }

    void theFrameSaysWhatIsDragged()
    {
        m_polygon->setPoints({{40, 0}, {80, 30}, {40, 60}, {0, 30}});
        item()->setSelected(true);
        bool handled = false;
        QCOMPARE(item()->getResizeHandle({80, 60}, &handled), 8);
        QCOMPARE(item()->toolTip(), QStringLiteral("Drag this point to resize"));
        QCOMPARE(item()->getResizeHandle({20, 0}, &handled), 1);
        QCOMPARE(item()->toolTip(), QStringLiteral("Drag this line to resize"));
        QCOMPARE(item()->getResizeHandle({40, 30}, &handled), 4);
        QCOMPARE(item()->toolTip(), QStringLiteral("Polygon (Irregular): kite"));
        m_polygon->shape.set("rotation", "angle: 20; fixedPoint: Center;");
        QCOMPARE(item()->getResizeHandle(item()->mapToScene(QPointF(80, 60)), &handled), 4);
    }

    void aDraggedPointGoesToTheMouseAndNoOtherMoves()
    {
        m_polygon->shape.set("position", "10,20");
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        const QString written = m_polygon->shape.value("pointList");
        item()->resizeByMouse(2, {35.5, 111.25});
        QCOMPARE(item()->pointHandles(), QPolygonF({{0, 0}, {80, 0}, {25.5, 91.25}}));
        QCOMPARE(item()->pos(), QPointF(10, 20));
        QCOMPARE(item()->boundingRect(), QRectF(0, 0, 80, 91.25));
        QCOMPARE(m_polygon->shape.value("boundingSize"), QStringLiteral("80,91.25"));
        QCOMPARE(m_polygon->shape.value("pointList"), written); // the element hears of it at the end
    }

    void aMoveToWhereThePointIsChangesNothing()
    {
        m_polygon->setPoints({{0, 0}, {80.123456789012, 0}, {40, 60}});
        for (const double off : {0.0, 1e-12, -9e-13}) {
            item()->resizeByMouse(1, {80.123456789012 + off, off});
            QVERIFY(item()->pointHandles().at(1).x() == 80.123456789012);
            QVERIFY(item()->pointHandles().at(1).y() == 0);
        }
        UndoCommand parent;
        item()->updateResizedDataObjects(1, &parent);
        QCOMPARE(parent.childCommandCount(), 0);
    }

    void numbersThatAreNoPointChangeNothing()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        for (const int none : {-1, 3, 4, 2147483647, -2147483647}) {
            item()->resizeByMouse(none, {5, 5});
            QCOMPARE(item()->pointHandles(), QPolygonF({{0, 0}, {80, 0}, {40, 60}}));
        }
        for (const int none : {4, -1, 9, 2147483647}) {
            item()->resizeGraphicsItem(none, QSizeF(20, 20), QPointF(3, 4));
            QCOMPARE(item()->pointHandles(), QPolygonF({{0, 0}, {80, 0}, {40, 60}}));
        }
        UndoCommand parent;
        item()->resizeByMouse(0, {5, 5});
        item()->updateResizedDataObjects(-1, &parent);
        QCOMPARE(parent.childCommandCount(), 0);
    }

    void aReshapeWritesThePointsAndAKeptRatio_data()
    {
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QString>("newRatio");
        QTest::newRow("no ratio") << QStringLiteral("0") << QPointF(40, 100) << QString();
        QTest::newRow("a kept one") << QStringLiteral("1.5") << QPointF(40, 100) << QStringLiteral("0.8");
        QTest::newRow("one that stays") << QStringLiteral("1.5") << QPointF(10, 60) << QString();
        QTest::newRow("a negative one is none") << QStringLiteral("-2") << QPointF(40, 100) << QString();
        QTest::newRow("one that does not convert") << QStringLiteral("wide") << QPointF(40, 100) << QString();
        // Nothing can be kept of a polygon without height.
        QTest::newRow("flat") << QStringLiteral("1.5") << QPointF(40, 0) << QString();
    }

    void aReshapeWritesThePointsAndAKeptRatio()
    {
        QFETCH(QString, ratio);
        QFETCH(QPointF, to);
        QFETCH(QString, newRatio);
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        m_polygon->shape.set("keepRatio", ratio);
        if (ratio == QLatin1String("1.5") && newRatio.isEmpty() && to.y() == 60)
            m_polygon->shape.set("keepRatio", ValueConversion::toString(80.0 / 60));
        item()->resizeByMouse(2, to);
        UndoCommand parent;
        item()->updateResizedDataObjects(2, &parent);
        QMap<QString, QString> written;
        for (int i = 0; i < parent.childCommandCount(); ++i) {
            const auto* change = dynamic_cast<const ChangeProperty*>(parent.childCommand(i));
            QVERIFY(change);
            written.insert(change->property()->id(), change->value());
        }
        QMap<QString, QString> expected{
            {QStringLiteral("pointList"), QStringLiteral("0,0 80,0 ") + ValueConversion::toString(to)}};
        if (!newRatio.isEmpty())
            expected.insert(QStringLiteral("keepRatio"), newRatio);
        QCOMPARE(written, expected);
    }

    void aFrameResizeScalesThePoints()
    {
        m_polygon->setPoints({{10, 20}, {90, 20}, {50, 80}});
        item()->resizeGraphicsItem(8, QSizeF(160, 30), {});
        QCOMPARE(item()->pointHandles(), QPolygonF({{20, 10}, {180, 10}, {100, 40}}));
        QCOMPARE(item()->pos(), QPointF(-10, 10)); // the top left corner stays at (10, 20)
        item()->resizeGraphicsItem(0, QSizeF(0.3, -5), {});
        QCOMPARE(item()->outerRect().size(), QSizeF(1, 1));
        QVERIFY(near(item()->mapToScene(item()->outerRect().bottomRight()), {170, 50}));
    }

    void aRatioThatLeadsBeyondAllNumbersChangesNothing()
    {
        const QPolygonF points{{10, 20}, {90, 20}, {50, 80}};
        m_polygon->setPoints(points);
        for (const char* ratio : {"1e-320", "1e308"}) {
            m_polygon->shape.set("keepRatio", ratio);
            for (const int handle : {0, 1, 2, 3, 5, 6, 7, 8})
                item()->resizeGraphicsItem(handle, QSizeF(1e10, 1e10), {});
            for (const QPointF& point : item()->pointHandles())
                QVERIFY(std::isfinite(point.x()) && std::isfinite(point.y()));
            QVERIFY(std::isfinite(item()->outerRect().width()) && std::isfinite(item()->outerRect().height()));
        }
    }

    void scalingKeepsWhatCannotBeScaled()
    {
        const QPolygonF points{{10, 20}, {90, 20}, {50, 20}};
        const auto scaled = &GraphicsIrregularPolygon::scaled;
        QCOMPARE(scaled(points, {80, 0}, {160, 50}), QPolygonF({{20, 20}, {180, 20}, {100, 20}}));
        QCOMPARE(scaled(points, {0, 0}, {160, 50}), points);
        QCOMPARE(scaled(points, {80, 0}, {80, 0}), points);
        QCOMPARE(scaled(points, {1e-320, 0}, {160, 50}), points);
        QCOMPARE(scaled(points, {INFINITY, 0}, {160, 50}), points);
        QCOMPARE(scaled(points, {80, 0}, {INFINITY, 50}), points);
        QCOMPARE(scaled(points, {80, 0}, {NAN, 50}), points);
        QCOMPARE(scaled({}, {80, 60}, {160, 50}), QPolygonF());
    }

    void theCheckedReachOfPointHandlesIsThatOfTheDrawnOnes()
    {
        QVERIFY(rc::check("any polygon", [this] {
            m_polygon->setPoints(PolygonItem::somePoints(20));
            bool handled = false;
            for (const QPointF& point : item()->pointHandles()) {
                const int found = item()->getResizePointHandle(item()->mapToScene(point), &handled);
                RC_ASSERT(found >= 0);
                RC_ASSERT((item()->pointHandles().at(found) - point).manhattanLength() <= item()->detectionWidth());
            }
        }));
    }

private:
    [[nodiscard]] GraphicsIrregularPolygon* item() const { return m_polygon->item; }

    std::unique_ptr<PolygonItem> m_polygon;
};

QTEST_MAIN(tst_PolygonPoints)
#include "tst_PolygonPoints.moc"
