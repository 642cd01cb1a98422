#include "tests/lines/PolygonCanvas.h"

#include <QtTest>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using Test::PolygonCanvas;

namespace {

QString rotation(double angle, const char* fixedPoint)
{
    return QStringLiteral("angle: %1; fixedPoint: %2;").arg(angle).arg(QLatin1String(fixedPoint));
}

} // namespace

/// The points of irregular polygons under the mouse: each is dragged alone.
class tst_PolygonReshape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { m_canvas.reset(); }

    void eachPointOfTwentyIsDraggedAlone_data()
    {
        QTest::addColumn<int>("point");
        QTest::addColumn<double>("zoom");
        for (const double zoom : {0.5, 1.0, 1.3, 4.0}) {
            for (int point = 0; point < 20; ++point)
                QTest::addRow("point %d, zoom %g", point + 1, zoom) << point << zoom;
        }
    }

    void eachPointOfTwentyIsDraggedAlone()
    {
        QFETCH(int, point);
        QFETCH(double, zoom);
        const DesignerObject* polygon = canvas().addAlone(PolygonCanvas::star(20), {100.25, 60.5});
        m_canvas->view->setZoom(zoom);
        const auto before = m_canvas->values();
        const QPolygonF shown = PolygonCanvas::shownPoints(polygon);
        const QPointF grab = shown.at(point);
        const QPointF to(std::round(grab.x()) + 57, std::round(grab.y()) - 83);
        m_canvas->press(grab);
        for (int i = 1; i < 6; ++i)
            m_canvas->move(grab + (to - grab) * i / 6.0);
        QCOMPARE(PolygonCanvas::points(polygon), PolygonCanvas::star(20)); // only the item yet
        m_canvas->release(to);

        QPolygonF expected = shown;
        expected[point] = to;
        QVERIFY(PolygonCanvas::near(PolygonCanvas::shownPoints(polygon), expected));
        QVERIFY(PolygonCanvas::near(PolygonCanvas::placedPoints(polygon), expected));
        for (int i = 0; i < 20; ++i)
            QVERIFY(i == point || PolygonCanvas::points(polygon).at(i) == PolygonCanvas::star(20).at(i));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Reshape irregularPolygon1"));

        const auto after = m_canvas->values();
        QVERIFY(after != before);
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(PolygonCanvas::shownPoints(polygon), shown);
        m_canvas->session->redo();
        QCOMPARE(m_canvas->values(), after);
        QVERIFY(PolygonCanvas::near(PolygonCanvas::shownPoints(polygon), expected));
    }

    void aPointThatLeavesTheFormerFrameMovesNothingElse()
    {
        DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}, {0, 80}}, {200, 150});
        m_canvas->drag({200, 150}, {120, 90});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("-80,-60 100,0 100,80 0,80"));
        QCOMPARE(m_canvas->value(polygon, "position"), QStringLiteral("200,150"));
        QCOMPARE(m_canvas->value(polygon, "boundingSize"), QStringLiteral("180,140"));
        // The next ones go on from there.
        m_canvas->drag({300, 230}, {700, 400});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("-80,-60 100,0 500,250 0,80"));
        m_canvas->drag({120, 90}, {250, 160});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("50,10 100,0 500,250 0,80"));
        QCOMPARE(m_canvas->value(polygon, "position"), QStringLiteral("200,150"));
        QCOMPARE(m_canvas->value(polygon, "boundingSize"), QStringLiteral("500,250"));
        QCOMPARE(m_canvas->steps(), 3);
        // It is found where it is now, and no more where it was.
        m_canvas->select({});
        m_canvas->click({130, 95});
        QVERIFY(m_canvas->selected().isEmpty());
        m_canvas->click({450, 280});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>({polygon}));
    }

    void whileAPointIsDraggedTheOuterSizeIsShown()
    {
        const DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}}, {200, 150});
        const auto before = m_canvas->values();
        QSignalSpy readouts(m_canvas->view.get(), &CanvasView::readoutChanged);
        m_canvas->press({300, 230});
        m_canvas->move({330, 260});
        QVERIFY(polygon->graphicsItem()->isChangingSize());
        QCOMPARE(m_canvas->value(polygon, "boundingSize"), QStringLiteral("130,110"));
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("x 200, y 150, 130 × 110"));
        QVERIFY(m_canvas->stack()->isBlocked());
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(!polygon->graphicsItem()->isChangingSize());
        QVERIFY(!m_canvas->stack()->isBlocked());
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(PolygonCanvas::shownPoints(polygon), QPolygonF({{200, 150}, {300, 150}, {300, 230}}));
        m_canvas->release({330, 260});
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aDragThatEndsWhereItBeganMakesNoStep()
    {
        const DesignerObject* polygon =
            canvas().addAlone({{1.0 / 3, 1.0 / 7}, {100.0 / 3, 0}, {100, 80}}, {200.0 / 7, 150.0 / 7}, 1.25);
        const auto before = m_canvas->values();
        for (const QPointF& beside : {QPointF(0, 0), QPointF(2, -1)}) {
            const QPointF grab = PolygonCanvas::shownPoints(polygon).at(2) + beside;
            m_canvas->press(grab);
            m_canvas->move(grab + QPointF(31, 17));
            QVERIFY(m_canvas->values() != before);
            m_canvas->move(grab);
            m_canvas->release(grab);
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
            m_canvas->press(grab);
            m_canvas->release(grab);
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
        }
    }

    void aDragOntoThePointItselfMakesNoStep()
    {
        canvas().addAlone({{0, 0}, {100, 0}, {100, 80}}, {200, 150}, 1.25);
        const auto before = m_canvas->values();
        // Grabbed beside the point, let go on it.
        m_canvas->drag({302, 229}, {300, 230});
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void ofTwoPointsAtOnePlaceTheFirstIsDragged()
    {
        const DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}, {100, 0}, {0, 80}}, {200, 150});
        m_canvas->drag({300, 150}, {340, 120});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("0,0 140,-30 100,80 100,0 0,80"));
        // Now the other one lies alone.
        m_canvas->drag({300, 150}, {310, 160});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("0,0 140,-30 100,80 110,10 0,80"));
    }

    void aPointIsReachedWithinFivePixelsOfTheScreen_data()
    {
        QTest::addColumn<double>("zoom");
        for (const double zoom : {0.25, 1.0, 8.0, 32.0})
            QTest::addRow("%g", zoom) << zoom;
    }

    void aPointIsReachedWithinFivePixelsOfTheScreen()
    {
        QFETCH(double, zoom);
        const DesignerObject* polygon = canvas().addAlone({{0, 0}, {200, 0}, {100, 160}}, {100, 100});
        m_canvas->view->setZoom(zoom);
        bool handled = false;
        GraphicsItem* item = polygon->graphicsItem();
        const QPointF corner(300, 100);
        QCOMPARE(item->getResizePointHandle(corner + QPointF(2.4, -2.4) / zoom, &handled), 1);
        QCOMPARE(item->getResizePointHandle(corner + QPointF(2.6, -2.6) / zoom, &handled), -1);
        QCOMPARE(item->getResizePointHandle(corner + QPointF(4.9, 0) / zoom, &handled), 1);
        QCOMPARE(item->getResizePointHandle(corner + QPointF(0, 5.1) / zoom, &handled), -1);
    }

    void onlyWhatIsLargerThanTenPixelsOfTheScreenHasPoints()
    {
        const DesignerObject* polygon = canvas().addAlone({{0, 0}, {60, 0}, {30, 24}}, {100, 100});
        bool handled = false;
        GraphicsItem* item = polygon->graphicsItem();
        QCOMPARE(item->getResizePointHandle({100, 100}, &handled), 0);
        m_canvas->view->setZoom(0.4); // 24 x 9.6 pixels
        QCOMPARE(item->getResizePointHandle({100, 100}, &handled), -1);
        const auto values = m_canvas->value(polygon, "pointList");
        m_canvas->drag({130, 110}, {150, 140}); // moves
        QCOMPARE(m_canvas->value(polygon, "pointList"), values);
        QCOMPARE(m_canvas->value(polygon, "position"), QStringLiteral("120,130"));
    }

    void underTheMousePointsSayWhatTheyAre()
    {
        DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}}, {200, 150});
        const auto toolTip = [&] { return PolygonCanvas::graphic(polygon)->toolTip(); };
        m_canvas->move({300, 230});
        QCOMPARE(toolTip(), QStringLiteral("Drag this point (#3) to reshape"));
        QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::CrossCursor);
        m_canvas->move({200, 230}); // the frame's corner where there is no point
        QCOMPARE(toolTip(), QStringLiteral("Drag this point to resize"));
        m_canvas->move({250, 230});
        QCOMPARE(toolTip(), QStringLiteral("Drag this line to resize"));
        m_canvas->move({270, 180});
        QCOMPARE(toolTip(), QStringLiteral("Polygon (Irregular): irregularPolygon1"));
        m_canvas->move({300, 230});
        m_canvas->move({600, 400});
        QCOMPARE(toolTip(), QStringLiteral("Polygon (Irregular): irregularPolygon1"));
        m_canvas->select({});
        m_canvas->move({300, 230});
        QCOMPARE(toolTip(), QStringLiteral("Polygon (Irregular): irregularPolygon1"));
        // Unselected it is moved by its points.
        m_canvas->drag({299, 228}, {319, 248});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("0,0 100,0 100,80"));
        QCOMPARE(m_canvas->value(polygon, "position"), QStringLiteral("220,170"));
    }

    void aPointWinsOverTheFrame()
    {
        const DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}, {50, 80}, {0, 80}}, {200, 150});
        m_canvas->drag({250, 230}, {250, 260}); // on the middle of the lower side
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("0,0 100,0 100,80 50,110 0,80"));
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Reshape irregularPolygon1"));
    }

    void aTurnedOneIsMovedByItsPoints()
    {
        for (const double angle : {30.0, 90.0, 180.0, -45.0, 720.0}) {
            DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}, {0, 80}}, {300, 200});
            m_canvas->set(polygon, "rotation", rotation(angle, "BottomLeft"));
            const QString points = m_canvas->value(polygon, "pointList");
            const QPointF middle = PolygonCanvas::graphic(polygon)->mapToScene(QPointF(50, 40));
            for (const QPointF& corner : PolygonCanvas::shownPoints(polygon)) {
                // A little inside, where a press hits the polygon itself.
                const QPointF way = middle - corner;
                const QPointF grab = corner + way * 2 / std::hypot(way.x(), way.y());
                m_canvas->press(grab);
                m_canvas->move(grab + QPointF(40, 25));
                m_canvas->release(grab);
                QCOMPARE(m_canvas->steps(), 0);
                m_canvas->drag(grab, grab + QPointF(40, 25));
                QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Move irregularPolygon1"));
                QCOMPARE(m_canvas->value(polygon, "pointList"), points);
                m_canvas->session->undo();
                m_canvas->stack()->clear();
            }
            QVERIFY(!polygon->graphicsItem()->hasFrameHandles());
            QVERIFY(polygon->graphicsItem()->pointHandles().isEmpty());
        }
    }

    void aWholeTurnIsNoRotation()
    {
        for (const double angle : {360.0, -360.0}) {
            DesignerObject* polygon = canvas().addAlone({{10, 0}, {100, 0}, {100, 80}, {0, 80}}, {300, 200});
            m_canvas->set(polygon, "rotation", rotation(angle, "Right"));
            m_canvas->drag({400, 280}, {450, 300});
            QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("10,0 100,0 150,100 0,80"));
            m_canvas->drag({300, 300}, {290, 320}); // the frame's corner
            QCOMPARE(m_canvas->value(polygon, "boundingSize"), QStringLiteral("160,120"));
            QVERIFY(PolygonCanvas::near(PolygonCanvas::shownPoints(polygon), PolygonCanvas::placedPoints(polygon)));
            QCOMPARE(m_canvas->value(polygon, "rotation"), rotation(angle, "Right"));
        }
    }

    void aKeptRatioBecomesThatOfTheNewShape()
    {
        DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 50}, {0, 50}}, {200, 150}, 2);
        const auto before = m_canvas->values();
        m_canvas->drag({300, 200}, {320, 250});
        QCOMPARE(m_canvas->value(polygon, "keepRatio"), QStringLiteral("1.2"));
        QCOMPARE(m_canvas->value(polygon, "boundingSize"), QStringLiteral("120,100"));
        QCOMPARE(m_canvas->steps(), 1);
        // A frame drag keeps the new one.
        m_canvas->drag({320, 200}, {380, 200});
        QCOMPARE(m_canvas->value(polygon, "boundingSize"), QStringLiteral("180,150"));
        QCOMPARE(m_canvas->value(polygon, "keepRatio"), QStringLiteral("1.2"));
        m_canvas->session->undo();
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        // One that does not change what it keeps writes nothing.
        m_canvas->drag({200, 150}, {210, 160});
        QCOMPARE(m_canvas->value(polygon, "keepRatio"), QStringLiteral("2"));
        m_canvas->set(polygon, "keepRatio", QStringLiteral("0"));
        m_canvas->drag({300, 200}, {320, 250});
        QCOMPARE(m_canvas->value(polygon, "keepRatio"), QStringLiteral("0"));
    }

    void pointsThatDoNotConvertAreGivenByAReshapeAndTakenBackByUndo()
    {
        DesignerObject* polygon = canvas().addAlone({{0, 0}, {100, 0}, {100, 80}}, {200, 150});
        m_canvas->set(polygon, "pointList", QStringLiteral("lost"));
        const auto before = m_canvas->values();
        m_canvas->drag({250, 160}, {260, 180}); // a move writes no points
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("lost"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        m_canvas->press({300, 230});
        m_canvas->move({330, 260});
        m_canvas->key(Qt::Key_Escape);
        m_canvas->release({330, 260});
        QCOMPARE(m_canvas->values(), before);
        m_canvas->drag({300, 230}, {330, 260});
        QCOMPARE(m_canvas->value(polygon, "pointList"), QStringLiteral("0,0 100,0 130,110"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
    }

private:
    /// One canvas for the many rows, emptied before each: making a window is what takes time.
    PolygonCanvas& canvas()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<PolygonCanvas>();
        return *m_canvas;
    }

    std::unique_ptr<PolygonCanvas> m_canvas;
};

QTEST_MAIN(tst_PolygonReshape)
#include "tst_PolygonReshape.moc"
