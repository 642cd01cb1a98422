#include "lines/RegularPolygonPoints.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/NumberWidget.h"

#include "tests/lines/PolygonSheet.h"

#include <cmath>
#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr int Most = PointListWidget::MostPoints;
constexpr double Tolerance = 1e-8; // pixels

using Values = QMap<QString, QString>;

Values points(const char* list)
{
    return {{QStringLiteral("pointList"), QString::fromLatin1(list)}};
}

Values with(Values values, const char* id, const char* value)
{
    values.insert(QString::fromLatin1(id), QString::fromLatin1(value));
    return values;
}

double distance(const QPointF& one, const QPointF& other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y());
}

constexpr const char* Offset = "10,20 110,20 60,80 15,70"; // does not begin at the origin

} // namespace

/// What edits of the points mean for the element on the canvas: its place, its ratio and the marked point.
class tst_PointListPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<PolygonSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void theOtherPointsStayWhenACoordinateIsEdited_data() { rotations(); }

    void theOtherPointsStayWhenACoordinateIsEdited()
    {
        QFETCH(QString, rotation);
        auto* polygon = m_sheet->addAndSelect(
            with(with(points(Offset), "position", "33.3,-7"), "rotation", rotation.toLatin1().constData()));
        const QPolygonF before = PolygonSheet::onCanvas(polygon);
        enter(widget()->xField(0), "-40");
        enter(widget()->yField(0), "-60.5");
        const QPolygonF after = PolygonSheet::onCanvas(polygon);
        for (int i = 1; i < before.size(); ++i)
            QVERIFY(distance(before.at(i), after.at(i)) < Tolerance);
        QVERIFY(distance(before.at(0), after.at(0)) > 90);
        if (rotation.startsWith(QLatin1String("angle: 0;")))
            QCOMPARE(value(polygon, "position"), QStringLiteral("33.3,-7"));
    }

    void theOtherPointsStayWhenOneIsRemoved_data() { rotations(); }

    void theOtherPointsStayWhenOneIsRemoved()
    {
        QFETCH(QString, rotation);
        auto* polygon = m_sheet->addAndSelect(
            with(with(points(Offset), "position", "33.3,-7"), "rotation", rotation.toLatin1().constData()));
        QPolygonF before = PolygonSheet::onCanvas(polygon);
        before.remove(1);
        click(widget()->removeButton(1));
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("10,20 60,80 15,70"));
        const QPolygonF after = PolygonSheet::onCanvas(polygon);
        QCOMPARE(after.size(), before.size());
        for (int i = 0; i < before.size(); ++i)
            QVERIFY(distance(before.at(i), after.at(i)) < Tolerance);
        QCOMPARE(stack()->count(), 1);
    }

    void theCornerStaysWhenThePolygonIsReplaced_data() { rotations(); }

    void theCornerStaysWhenThePolygonIsReplaced()
    {
        QFETCH(QString, rotation);
        auto* polygon = m_sheet->addAndSelect(
            with(with(points(Offset), "position", "33.3,-7"), "rotation", rotation.toLatin1().constData()));
        const QPointF corner = PolygonSheet::cornerOnCanvas(polygon);
        click(widget()->addButton());
        QCOMPARE(polygon->polygon(), regularPolygonPoints(5, Most));
        QVERIFY(distance(corner, PolygonSheet::cornerOnCanvas(polygon)) < Tolerance);

        m_sheet->session->setProperty(polygon, QStringLiteral("pointList"), QStringLiteral("-5,-6 30,0 0,30"));
        const QPointF ofTriangle = PolygonSheet::cornerOnCanvas(polygon);
        click(widget()->removeButton(2));
        QCOMPARE(polygon->polygon(), regularPolygonPoints(3, Most));
        QVERIFY(distance(ofTriangle, PolygonSheet::cornerOnCanvas(polygon)) < Tolerance);
    }

    void theCornerStaysWhileThePointsAreTurned_data() { rotations(); }

    void theCornerStaysWhileThePointsAreTurned()
    {
        QFETCH(QString, rotation);
        auto* polygon = m_sheet->addAndSelect(
            with(with(points(Offset), "position", "33.3,-7"), "rotation", rotation.toLatin1().constData()));
        const QPolygonF start = polygon->polygon();
        const QPointF corner = PolygonSheet::cornerOnCanvas(polygon);
        for (const char* angle : {"45", "90", "181.5", "0.01"}) {
            turn(angle);
            QCOMPARE(polygon->polygon(), QTransform().rotate(QByteArray(angle).toDouble()).map(start));
            QVERIFY(distance(corner, PolygonSheet::cornerOnCanvas(polygon)) < Tolerance);
        }
    }

    void turningBackRestoresTheElementExactly_data() { rotations(); }

    void turningBackRestoresTheElementExactly()
    {
        QFETCH(QString, rotation);
        auto* polygon = m_sheet->addAndSelect(with(with(with(points("0.1,0.7 100.123456789012345,1e-5 33,77.7"),
                                                             "position", "33.333333333333336,-7.000000000000001"),
                                                        "keepRatio", "1.234567890123456"),
                                                   "rotation", rotation.toLatin1().constData()));
        const QStringList before = PolygonSheet::state(polygon);
        for (const char* angle : {"12.34", "200", "359.99", "0"})
            turn(angle);
        QCOMPARE(PolygonSheet::state(polygon), before);
        QCOMPARE(stack()->count(), 4);
    }

    void aKeptRatioFollowsThePoints()
    {
        auto* polygon = m_sheet->addAndSelect(with(points("0,0 100,0 50,50"), "keepRatio", "2"));
        enter(widget()->xField(1), "150");
        QCOMPARE(value(polygon, "keepRatio"), QStringLiteral("3"));
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("0,0 150,0 50,50"));
        turn("90");
        QVERIFY(std::abs(value(polygon, "keepRatio").toDouble() - 1.0 / 3) < 1e-9);
        m_sheet->session->undo();
        m_sheet->session->undo();
        QCOMPARE(value(polygon, "keepRatio"), QStringLiteral("2"));
    }

    void aFreeRatioStaysFree()
    {
        auto* polygon = m_sheet->addAndSelect(points("0,0 100,0 50,50"));
        enter(widget()->xField(1), "150");
        click(widget()->addButton());
        turn("30");
        QCOMPARE(value(polygon, "keepRatio"), QStringLiteral("0"));
    }

    void aFlatPolygonLeavesTheRatio()
    {
        auto* polygon = m_sheet->addAndSelect(with(points("0,0 100,0 50,50"), "keepRatio", "2"));
        enter(widget()->yField(2), "0");
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("0,0 100,0 50,0"));
        QCOMPARE(value(polygon, "keepRatio"), QStringLiteral("2"));
        turn("90"); // no width
        QCOMPARE(value(polygon, "keepRatio"), QStringLiteral("2"));
        turn("45");
        QVERIFY(std::abs(value(polygon, "keepRatio").toDouble() - 1) < 1e-6);
    }

    void aReshapeOnTheCanvasEndsTheTurn()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        turn("90");
        auto* item = PolygonSheet::item(polygon);
        item->resizeByMouse(0, item->mapToScene(QPointF(-100, -50)));
        auto gesture = std::make_unique<UndoCommand>();
        item->updateResizedDataObjects(0, gesture.get());
        stack()->execute(std::move(gesture));
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("-100,-50 -20,110 -80,60 -70,15"));
        QCOMPARE(widget()->pointList(), polygon->polygon());
        QCOMPARE(widget()->rotationControl()->value(), 0.0);
        const QPointF corner = PolygonSheet::cornerOnCanvas(polygon);
        turn("180");
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("100,50 20,-110 80,-60 70,-15"));
        QVERIFY(distance(corner, PolygonSheet::cornerOnCanvas(polygon)) < Tolerance);
    }

    void aMoveBetweenTwoTurnsCounts()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        turn("90");
        m_sheet->session->moveElements({polygon}, QPointF(1000, 500));
        const QPointF corner = PolygonSheet::cornerOnCanvas(polygon);
        turn("0");
        QCOMPARE(value(polygon, "pointList"), QString::fromLatin1(Offset));
        QVERIFY(distance(corner, PolygonSheet::cornerOnCanvas(polygon)) < Tolerance);
    }

    void theFocusedPointIsMarkedOnTheCanvas()
    {
        auto* other = m_sheet->add(points(Offset));
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        const QStringList before = PolygonSheet::state(polygon);
        const auto* item = PolygonSheet::item(polygon);
        QCOMPARE(item->highlightedPoint(), -1);
        for (int i = 0; i < 4; ++i) {
            widget()->xField(i)->setFocus();
            QCOMPARE(item->highlightedPoint(), i);
            widget()->yField(i)->setFocus();
            QCOMPARE(item->highlightedPoint(), i);
        }
        widget()->rotationControl()->spinBox()->setFocus();
        QCOMPARE(item->highlightedPoint(), -1);

        widget()->xField(2)->setFocus();
        m_sheet->select({other});
        QCOMPARE(item->highlightedPoint(), -1);

        m_sheet->select({polygon, other});
        widget()->yField(1)->setFocus();
        QCOMPARE(item->highlightedPoint(), 1);
        QCOMPARE(PolygonSheet::item(other)->highlightedPoint(), 1);
        m_sheet->idField()->setFocus();
        widget()->addButton()->setFocus();
        QCOMPARE(item->highlightedPoint(), -1);
        QCOMPARE(PolygonSheet::item(other)->highlightedPoint(), -1);
        QCOMPARE(PolygonSheet::state(polygon), before);
        QCOMPARE(stack()->count(), 0);
    }

    void aDeletedElementTakesItsMarkAlong()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        SheetFixture::type(widget()->xField(1), "55");
        m_sheet->session->removeElements({polygon});
        QCOMPARE(stack()->count(), 1);
        m_sheet->session->undo();
        QCOMPARE(value(polygon, "pointList"), QString::fromLatin1(Offset));
        QCOMPARE(PolygonSheet::item(polygon)->highlightedPoint(), -1);
        m_sheet->select({polygon});
        QCOMPARE(widget()->pointList(), polygon->polygon());
    }

private:
    static void enter(SpinBox* field, const char* text) { SheetFixture::enter(field, text); }
    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void turn(const char* angle) const { enter(widget()->rotationControl()->spinBox(), angle); }
    PointListWidget* widget() const { return m_sheet->widget(); }
    UndoStack* stack() const { return m_sheet->stack(); }
    static QString value(const DesignerObject* object, const char* id) { return PolygonSheet::value(object, id); }
    static void rotations()
    {
        QTest::addColumn<QString>("rotation");
        QTest::newRow("not turned") << QStringLiteral("angle: 0; fixedPoint: Center;");
        QTest::newRow("a full turn") << QStringLiteral("angle: 360; fixedPoint: BottomRight;");
        QTest::newRow("about the centre") << QStringLiteral("angle: 30; fixedPoint: Center;");
        QTest::newRow("about a corner") << QStringLiteral("angle: -75.5; fixedPoint: BottomRight;");
        QTest::newRow("about a side") << QStringLiteral("angle: 200; fixedPoint: Left;");
    }

    std::unique_ptr<PolygonSheet> m_sheet;
};

QTEST_MAIN(tst_PointListPlace)
#include "tst_PointListPlace.moc"
