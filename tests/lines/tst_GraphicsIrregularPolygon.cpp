#include "tests/lines/PolygonItem.h"

#include "host/core/commands/ChangeProperty.h"

#include "host/common/PaintHelper.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Korvex::Meridane::Common::PaintHelper;
using Test::picture;
using Test::PolygonItem;

namespace {

constexpr double DotRadius = 5;

bool near(const QPointF& a, const QPointF& b)
{
    return (a - b).manhattanLength() <= 1e-9;
}

/// Where \a a and \a b differ, in the coordinates of picture().
QRect difference(const QImage& a, const QImage& b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                changed |= QRect(x - 50, y - 50, 1, 1);
        }
    }
    return changed;
}

} // namespace

/// The irregular polygon's canvas item: its copy of the values, its picture and its marks.
class tst_GraphicsIrregularPolygon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_polygon = std::make_unique<PolygonItem>(); }

    void cleanup() { m_polygon.reset(); }

    void itNamesItself()
    {
        QCOMPARE(item()->className(), QStringLiteral("GraphicsIrregularPolygon"));
        QCOMPARE(item()->classNames(), QStringList(QStringLiteral("GraphicsItem")));
        QVERIFY(item()->initialize());
        QCOMPARE(item()->minSize(), 1.0);
    }

    void itIsMadeEmptyAndFilledFromItsElement()
    {
        GraphicsIrregularPolygon fresh(m_polygon->shape.element.get());
        QCOMPARE(fresh.boundingRect(), QRectF());
        QVERIFY(fresh.shape().isEmpty());
        QVERIFY(fresh.pointHandles().isEmpty());
        QCOMPARE(fresh.highlightedPoint(), -1);
        QCOMPARE(picture(&fresh), picture([](QPainter*) {}));
        fresh.updateFromDataObject();
        QCOMPARE(fresh.boundingRect(), item()->boundingRect());
        QCOMPARE(picture(&fresh), picture(item()));
        m_polygon->shape.element->setGraphicsItem(item());
    }

    void itTakesTheColour()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        m_polygon->shape.set("color", "#80336699");
        QCOMPARE(picture(item()), paintedBy(QColor(0x33, 0x66, 0x99, 0x80)));
        m_polygon->shape.set("color", "inkish");
        QCOMPARE(picture(item()), paintedBy(QColor(0x33, 0x66, 0x99, 0x80)));
    }

    void onlyAnotherColourIsRepainted()
    {
        QApplication::processEvents();
        QSignalSpy repaints(&m_polygon->scene, &QGraphicsScene::changed);
        m_polygon->shape.set("color", "#f8971d");
        m_polygon->shape.set("color", "#fff8971d");
        QApplication::processEvents();
        QCOMPARE(repaints.size(), 0);
        m_polygon->shape.set("color", "#fef8971d");
        QTRY_VERIFY(!repaints.isEmpty());
    }

    void itTakesThePointsThatConvertAndNoOthers()
    {
        const QPolygonF points{{-10, 5}, {60, 20}, {30, -25}};
        m_polygon->setPoints(points);
        QCOMPARE(item()->pointHandles(), points);
        QCOMPARE(item()->boundingRect(), QRectF(-10, -25, 70, 45));
        QCOMPARE(item()->outerRect(), QRectF(-10, -25, 70, 45));
        QCOMPARE(item()->contentRect(), QRectF(-10, -25, 70, 45));
        m_polygon->shape.set("pointList", "1,2 3,4 five");
        QCOMPARE(item()->pointHandles(), points);
        QCOMPARE(item()->boundingRect(), QRectF(-10, -25, 70, 45));
        m_polygon->shape.set("pointList", "");
        QCOMPARE(item()->boundingRect(), QRectF());
    }

    void pointsThatDifferInTheLastDigitAreTaken()
    {
        // Qt takes such points for equal; their texts are not, and a move would write the old ones back.
        for (const char* text : {"0,0 100,0 50,80", "1e-13,0 100,0 50,80", "0,0 100.00000000000001,0 50,80"}) {
            m_polygon->shape.set("pointList", text);
            UndoCommand parent;
            QVERIFY(!item()->updateDataObject(m_polygon->property("pointList"), &parent));
        }
        QVERIFY(item()->pointHandles().at(1).x() == 100.00000000000001);
    }

    void itWritesItsPointsBackOnlyWhereTheyDiffer()
    {
        UndoCommand parent;
        for (const auto& each : m_polygon->shape.element->properties())
            QVERIFY2(!item()->updateDataObject(each, &parent), qPrintable(each->id()));
        QVERIFY(!item()->updateDataObject({}, &parent));
        QCOMPARE(parent.childCommandCount(), 0);

        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        item()->resizeByMouse(1, {90, -5});
        const auto* change =
            dynamic_cast<ChangeProperty*>(item()->updateDataObject(m_polygon->property("pointList"), &parent));
        QVERIFY(change);
        QCOMPARE(change->value(), QStringLiteral("0,0 90,-5 40,60"));
        QCOMPARE(parent.childCommandCount(), 1);
        QCOMPARE(m_polygon->shape.value("pointList"), QStringLiteral("0,0 80,0 40,60"));
        // A text that does not convert is not what the item shows.
        m_polygon->shape.set("pointList", "broken");
        QVERIFY(item()->updateDataObject(m_polygon->property("pointList"), &parent));
    }

    void itsShapeIsItsPolygon()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {0, 60}});
        const QPainterPath shape = item()->shape();
        QVERIFY(shape.contains(QPointF(20, 20)));
        QVERIFY(!shape.contains(QPointF(60, 50)));
        QCOMPARE(item()->getShape(), shape);
        // Where the polygon crosses itself nothing is filled, and nothing is hit.
        m_polygon->setPoints({{0, 0}, {90, 0}, {90, 90}, {30, 90}, {30, 30}, {60, 30}, {60, 60}, {0, 60}});
        QVERIFY(item()->shape().contains(QPointF(75, 45)));
        QVERIFY(!item()->shape().contains(QPointF(45, 45)));
        QCOMPARE(picture(item()).pixelColor(50 + 45, 50 + 45), QColor(Qt::white));
    }

    void itsShapeTurnsAboutTheFixedPointOfTheBoundingRectangle_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QPointF>("place");
        const char* names[] = {"TopLeft", "Top",        "TopRight", "Left",       "Center",
                               "Right",   "BottomLeft", "Bottom",   "BottomRight"};
        for (int i = 0; i < 9; ++i)
            QTest::newRow(names[i]) << QString::fromLatin1(names[i]) << QPointF(0.5 * (i % 3), 0.5 * (i / 3));
    }

    void itsShapeTurnsAboutTheFixedPointOfTheBoundingRectangle()
    {
        QFETCH(QString, name);
        QFETCH(QPointF, place);
        m_polygon->shape.set("position", "7,9");
        m_polygon->setPoints({{40, 30}, {140, 50}, {90, 110}, {-20, 45}});
        const QPointF fixed(-20 + 160 * place.x(), 30 + 80 * place.y());
        for (const double angle : {0.0, 30.0, 90.0, -137.5, 360.0}) {
            m_polygon->shape.set("rotation", QStringLiteral("angle: %1; fixedPoint: %2;").arg(angle).arg(name));
            QTransform turned = QTransform::fromTranslate(fixed.x(), fixed.y());
            turned.rotate(angle);
            turned.translate(-fixed.x(), -fixed.y());
            const QPainterPath shape = item()->getShape();
            const QPainterPath expected = turned.map(item()->shape());
            QCOMPARE(shape.elementCount(), expected.elementCount());
            for (int i = 0; i < shape.elementCount(); ++i) {
                const QPointF point = shape.elementAt(i);
                QVERIFY(near(point, expected.elementAt(i)));
                QVERIFY(near(point + QPointF(7, 9), item()->mapToScene(item()->shape().elementAt(i))));
            }
        }
    }

    void itPaintsWhatThePaintHelperPaints()
    {
        QVERIFY(rc::check("any polygon", [this] {
            m_polygon->setPoints(PolygonItem::somePoints(30));
            const QColor color(*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256),
                               *rc::gen::element(255, 128, 0));
            m_polygon->shape.set("color", ValueConversion::toString(color));
            RC_ASSERT(picture(item()) == paintedBy(color));
            // Nothing is painted outside of the bounds, for they are what is repainted.
            const QRect painted = difference(picture(item()), picture([](QPainter*) {}));
            RC_ASSERT(painted.isEmpty() || item()->boundingRect().toAlignedRect().contains(painted));
        }));
    }

    void aSelectedOneHasAFrame()
    {
        m_polygon->setPoints({{-10, 5}, {60, 20}, {30, -25}});
        const QImage framed = picture([this](QPainter* painter) {
            PaintHelper::paintIrregularPolygon(item()->pointHandles(), QColor(248, 151, 29), painter);
            QStyleOptionGraphicsItem option;
            option.state = QStyle::State_Selected;
            PaintHelper::paintHighlightSelected({-10, -25, 70, 45}, painter, &option);
        });
        QVERIFY(framed != picture(item()));
        QCOMPARE(picture(item(), true), framed);
        // Also while a point beside the frame is marked.
        item()->setHighlightedPoint(2);
        QCOMPARE(picture(item(), true).pixelColor(50 + 20, 50 - 25), framed.pixelColor(50 + 20, 50 - 25));
    }

    void paintingShowsTheName()
    {
        item()->setToolTip({});
        QVERIFY(!picture(item()).isNull());
        QCOMPARE(item()->toolTip(), QStringLiteral("Polygon (Irregular): kite"));
    }

    void aMarkedPointHasADotInAContrastingColour_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("dot");
        QTest::newRow("orange") << QColor(248, 151, 29) << QColor(0, 0, 255);
        QTest::newRow("just dark") << QColor(127, 127, 127) << QColor(255, 255, 255);
        QTest::newRow("just light") << QColor(128, 128, 128) << QColor(0, 0, 0);
        QTest::newRow("mixed") << QColor(127, 128, 0) << QColor(255, 0, 255);
        QTest::newRow("translucent") << QColor(0, 0, 0, 10) << QColor(255, 255, 255);
    }

    void aMarkedPointHasADotInAContrastingColour()
    {
        QFETCH(QColor, color);
        QFETCH(QColor, dot);
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        m_polygon->shape.set("color", ValueConversion::toString(color));
        item()->setHighlightedPoint(2);
        const QImage expected = picture([&](QPainter* painter) {
            PaintHelper::paintIrregularPolygon(item()->pointHandles(), color, painter);
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(Qt::NoPen);
            painter->setBrush(dot);
            painter->drawEllipse(QPointF(40, 60), DotRadius, DotRadius);
        });
        QCOMPARE(picture(item()), expected);
        QCOMPARE(picture(item()).pixelColor(90, 110), dot);
        item()->setHighlightedPoint(-1);
        QCOMPARE(picture(item()), paintedBy(color));
    }

    void onlyAPointOrNoneCanBeMarked()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        for (const int index : {0, 1, 2, -1}) {
            item()->setHighlightedPoint(index);
            QCOMPARE(item()->highlightedPoint(), index);
        }
        item()->setHighlightedPoint(1);
        for (const int index : {3, 4, -2, -2147483647, 2147483647}) {
            item()->setHighlightedPoint(index);
            QCOMPARE(item()->highlightedPoint(), 1);
        }
        m_polygon->setPoints({});
        QCOMPARE(item()->highlightedPoint(), -1);
        item()->setHighlightedPoint(0);
        QCOMPARE(item()->highlightedPoint(), -1);
    }

    void theDotIsRepaintedAndNoPartOfTheOuterSize()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        const QString outer = m_polygon->shape.value("boundingSize");
        const QImage plain = picture(item());
        for (int i = 0; i < 3; ++i) {
            const QPointF point = item()->pointHandles().at(i);
            QApplication::processEvents();
            QSignalSpy repaints(&m_polygon->scene, &QGraphicsScene::changed);
            item()->setHighlightedPoint(i);
            QTRY_VERIFY(!repaints.isEmpty());
            const QRectF dot(point.x() - DotRadius, point.y() - DotRadius, 2 * DotRadius, 2 * DotRadius);
            QVERIFY(item()->boundingRect().contains(dot));
            QCOMPARE(item()->boundingRect(), QRectF(0, 0, 80, 60) | dot);
            QVERIFY(item()->boundingRect().toAlignedRect().contains(difference(picture(item()), plain)));
            QCOMPARE(item()->outerRect(), QRectF(0, 0, 80, 60));
            QCOMPARE(item()->contentRect(), QRectF(0, 0, 80, 60));
            QCOMPARE(item()->shape().boundingRect(), QRectF(0, 0, 80, 60));
            QCOMPARE(m_polygon->shape.value("boundingSize"), outer);
        }
        // What the dot leaves is repainted too.
        QApplication::processEvents();
        QSignalSpy repaints(&m_polygon->scene, &QGraphicsScene::changed);
        item()->setHighlightedPoint(-1);
        QTRY_VERIFY(!repaints.isEmpty());
        const auto regions = repaints.first().first().value<QList<QRectF>>();
        QRectF repainted;
        for (const QRectF& region : regions)
            repainted |= region;
        QVERIFY(repainted.contains(QRectF(35, 55, 10, 10)));
        QCOMPARE(item()->boundingRect(), QRectF(0, 0, 80, 60));
        QCOMPARE(picture(item()), plain);
    }

    void theSameMarkIsNotRepainted()
    {
        item()->setHighlightedPoint(1);
        QApplication::processEvents();
        QSignalSpy repaints(&m_polygon->scene, &QGraphicsScene::changed);
        item()->setHighlightedPoint(1);
        item()->setHighlightedPoint(7);
        QApplication::processEvents();
        QCOMPARE(repaints.size(), 0);
    }

    void theDotFollowsItsPointAndGoesWithIt()
    {
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}, {10, 50}});
        item()->setHighlightedPoint(3);
        item()->resizeByMouse(3, {-30, 90});
        QCOMPARE(item()->highlightedPoint(), 3);
        QVERIFY(item()->boundingRect().contains(QRectF(-35, 85, 10, 10)));
        m_polygon->setPoints({{0, 0}, {80, 0}, {40, 60}});
        QCOMPARE(item()->highlightedPoint(), -1);
        QCOMPARE(item()->boundingRect(), QRectF(0, 0, 80, 60));
        QVERIFY(!picture(item()).isNull());
    }

private:
    /// The picture of the item's points in \a color.
    [[nodiscard]] QImage paintedBy(const QColor& color) const
    {
        const QPolygonF points = ValueConversion::toPolygon(m_polygon->shape.value("pointList"));
        return picture([&](QPainter* painter) { PaintHelper::paintIrregularPolygon(points, color, painter); });
    }

    [[nodiscard]] GraphicsIrregularPolygon* item() const { return m_polygon->item; }

    std::unique_ptr<PolygonItem> m_polygon;
};

QTEST_MAIN(tst_GraphicsIrregularPolygon)
#include "tst_GraphicsIrregularPolygon.moc"
