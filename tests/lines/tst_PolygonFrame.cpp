#include "tests/lines/PolygonCanvas.h"

#include "host/common/FrameResize.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::PolygonCanvas;

namespace {

constexpr int Handles[] = {TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight};

/// Evenly in every case: RapidCheck's own ranges begin with the small numbers.
int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

QPointF anyPlace()
{
    return {double(anyNumber(0, 800)), double(anyNumber(0, 480))};
}

QPolygonF anyPoints(int count)
{
    QPolygonF points;
    for (int i = 0; i < count; ++i)
        points << QPointF(anyNumber(-15000, 15000), anyNumber(-15000, 15000)) / 100;
    return points;
}

QString rotation(double angle, const char* fixedPoint)
{
    return QStringLiteral("angle: %1; fixedPoint: %2;").arg(angle).arg(QLatin1String(fixedPoint));
}

} // namespace

/// The frame of irregular polygons under the mouse, which scales them; and anything that the mouse does to them, undone.
class tst_PolygonFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { m_canvas.reset(); }

    void theCornerOppositeTheFramesHandleStays_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QPointF>("offset");
        QTest::addColumn<double>("zoom");
        for (const int handle : Handles) {
            for (const double ratio : {0.0, 1.37}) {
                for (const QPointF& offset : {QPointF(0, 0), QPointF(40.3, -70.9), QPointF(-500, 300)}) {
                    for (const double zoom : {0.25, 0.5, 1.0, 1.3, 4.0, 16.0}) {
                        QTest::addRow("handle %d, ratio %g, points from %g, %g, zoom %g", handle, ratio, offset.x(),
                                      offset.y(), zoom)
                            << handle << ratio << offset << zoom;
                    }
                }
            }
        }
    }

    void theCornerOppositeTheFramesHandleStays()
    {
        QFETCH(int, handle);
        QFETCH(double, ratio);
        QFETCH(QPointF, offset);
        QFETCH(double, zoom);
        // No point lies on a handle of the frame.
        const QPolygonF points = QPolygonF({{30, 0}, {110, 0}, {133.3, 20}, {133.3, 70}, {100, 91.9}, {0, 20}});
        const DesignerObject* polygon = canvas().addAlone(points.translated(offset), QPointF(250, 200) - offset, ratio);
        m_canvas->view->setZoom(zoom);
        const auto valuesBefore = m_canvas->values();
        const QRectF before = PolygonCanvas::outerRect(polygon);
        // Grabbed a little beside the handle: the frame does not jump to the mouse.
        const QPointF grab = PolygonCanvas::handlePoint(before, handle) + QPointF(1, -1) / zoom;
        const QPointF out = PolygonCanvas::handlePoint(before, handle) - before.center();
        const QPointF way(std::round(0.4 * out.x()), std::round(0.4 * out.y()));
        m_canvas->press(grab);
        for (int i = 1; i <= 7; ++i) {
            m_canvas->move(grab + way * i / 7.0);
            QVERIFY(PolygonCanvas::keepsItsCorner(handle, before, PolygonCanvas::shownFrame(polygon)));
        }
        m_canvas->release(grab + way);
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Resize irregularPolygon1"));

        const QRectF after = PolygonCanvas::outerRect(polygon);
        QVERIFY(PolygonCanvas::keepsItsCorner(handle, before, after));
        const bool widthDrives = ratio == 0 ? handleChangesWidth(handle) : handle != Top && handle != Bottom;
        if (widthDrives)
            QVERIFY(std::abs(after.width() - before.width() - std::abs(way.x())) <= 1e-9);
        else
            QVERIFY(std::abs(after.height() - before.height() - std::abs(way.y())) <= 1e-9);
        if (ratio > 0)
            QVERIFY(std::abs(after.width() / after.height() - ratio) < 1e-9);
        const QPolygonF now = PolygonCanvas::points(polygon);
        for (qsizetype i = 0; i < now.size(); ++i) {
            const QPointF was = points.at(i) + offset;
            // Each point keeps its share of the frame, and a dimension that is not dragged its very numbers.
            const QPointF placed = PolygonCanvas::placedPoints(polygon).at(i) - after.topLeft();
            QVERIFY(std::abs(placed.x() / after.width() - points.at(i).x() / before.width()) < 1e-9);
            QVERIFY(std::abs(placed.y() / after.height() - points.at(i).y() / before.height()) < 1e-9);
            QVERIFY(ratio > 0 || handleChangesWidth(handle) || now.at(i).x() == was.x());
            QVERIFY(ratio > 0 || handleChangesHeight(handle) || now.at(i).y() == was.y());
        }

        const auto valuesAfter = m_canvas->values();
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), valuesBefore);
        m_canvas->session->redo();
        QCOMPARE(m_canvas->values(), valuesAfter);
        QVERIFY(PolygonCanvas::near(PolygonCanvas::shownPoints(polygon), PolygonCanvas::placedPoints(polygon)));
    }

    void throughTheSmallestSizeAndBackNothingIsLost_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<double>("ratio");
        for (const int handle : Handles) {
            for (const double ratio : {0.0, 133.3 / 91.9})
                QTest::addRow("handle %d, ratio %g", handle, ratio) << handle << ratio;
        }
    }

    void throughTheSmallestSizeAndBackNothingIsLost()
    {
        QFETCH(int, handle);
        QFETCH(double, ratio);
        const QPolygonF points = QPolygonF({{30, 0}, {110, 0}, {133.3, 20}, {133.3, 70}, {100, 91.9}, {0, 20}});
        const DesignerObject* polygon = canvas().addAlone(points.translated(7, 11), {250, 200}, ratio);
        const QRectF before = PolygonCanvas::outerRect(polygon);
        const QPointF grab = PolygonCanvas::handlePoint(before, handle);
        const QPointF in = before.center() - grab;
        m_canvas->press(grab);
        for (const double way : {0.3, 1.9, 2.0, 2.1, 7.0, 2.5, 30.0, 1.5, 30.0}) {
            m_canvas->move(grab + way * in);
            const QRectF now = PolygonCanvas::shownFrame(polygon);
            QVERIFY(PolygonCanvas::keepsItsCorner(handle, before, now));
            QVERIFY(now.width() > 1 - 1e-9 && now.height() > 1 - 1e-9);
        }
        // To one pixel beside the start, where it would be as it was in any case.
        const QPointF way(handleChangesWidth(handle) ? 1 : 0, handleChangesHeight(handle) ? 1 : 0);
        m_canvas->release(grab + way);
        QCOMPARE(m_canvas->steps(), 1);
        const QRectF after = PolygonCanvas::outerRect(polygon);
        for (qsizetype i = 0; i < points.size(); ++i) {
            const QPointF placed = PolygonCanvas::placedPoints(polygon).at(i) - after.topLeft();
            QVERIFY(std::abs(placed.x() - points.at(i).x() * after.width() / before.width()) < 1e-9);
            QVERIFY(std::abs(placed.y() - points.at(i).y() * after.height() / before.height()) < 1e-9);
        }
    }

    void anyWayOfTheFrameKeepsTheCorner()
    {
        const bool held = rc::check("ways", [this] {
            const QPolygonF points = anyPoints(anyNumber(3, 21));
            const QRectF outline = points.boundingRect();
            const double zoom = *rc::gen::element(0.25, 0.5, 1.0, 1.3, 4.0, 16.0);
            RC_PRE(outline.width() * zoom > 11 && outline.height() * zoom > 11);
            const double ratio = anyNumber(0, 2) * anyNumber(20, 500) / 100.0;
            const int handle = Handles[anyNumber(0, 8)];
            const DesignerObject* polygon = canvas().addAlone(points, {400, 240}, ratio);
            m_canvas->view->setZoom(zoom);
            const QRectF before = PolygonCanvas::outerRect(polygon);
            const QPointF grab = PolygonCanvas::handlePoint(before, handle);
            bool handled = false;
            // A point there would be dragged instead.
            RC_PRE(polygon->graphicsItem()->getResizePointHandle(grab, &handled) < 0);
            const auto valuesBefore = m_canvas->values();
            m_canvas->press(grab);
            QList<QPointF> places;
            for (int i = anyNumber(1, 8); i > 0; --i)
                places.append(QPointF(anyNumber(-500, 500), anyNumber(-500, 500)) / 2);
            QPointF way;
            for (int i = anyNumber(1, 200); i > 0; --i) {
                way = places.at(i % places.size());
                m_canvas->move(grab + way);
                RC_ASSERT(PolygonCanvas::keepsItsCorner(handle, before, PolygonCanvas::shownFrame(polygon)));
            }
            m_canvas->release(grab + way);
            const QRectF after = PolygonCanvas::outerRect(polygon);
            RC_ASSERT(PolygonCanvas::keepsItsCorner(handle, before, after));
            for (qsizetype i = 0; i < points.size(); ++i) {
                const QPointF placed = PolygonCanvas::placedPoints(polygon).at(i) - after.topLeft();
                const QPointF share = points.at(i) - outline.topLeft();
                RC_ASSERT(std::abs(placed.x() - share.x() * after.width() / before.width()) < 1e-8);
                RC_ASSERT(std::abs(placed.y() - share.y() * after.height() / before.height()) < 1e-8);
            }
            const auto valuesAfter = m_canvas->values();
            RC_ASSERT(m_canvas->steps() == (valuesAfter == valuesBefore ? 0 : 1));
            if (m_canvas->steps() == 1) {
                m_canvas->session->undo();
                RC_ASSERT(m_canvas->values() == valuesBefore);
                m_canvas->session->redo();
                RC_ASSERT(m_canvas->values() == valuesAfter);
            }
        });
        QVERIFY(held);
    }

    void undoingAndRedoingAllGivesEveryValueBack()
    {
        const bool held = rc::check("gestures", [this] {
            canvas().clear();
            for (int i = 0; i < 3; ++i) {
                const QPointF position = anyPlace();
                DesignerObject* polygon = m_canvas->add(
                    "IrregularPolygon",
                    {{QStringLiteral("position"), ValueConversion::toString(position)},
                     {QStringLiteral("pointList"), ValueConversion::toString(anyPoints(anyNumber(3, 21)))}});
                if (i == 1)
                    m_canvas->set(polygon, "keepRatio", QStringLiteral("1.3"));
                if (i == 2 && anyNumber(0, 2) == 1)
                    m_canvas->set(polygon, "rotation", rotation(anyNumber(-180, 180), "BottomLeft"));
            }
            m_canvas->stack()->clear();
            QList<QMap<QString, QString>> states = {m_canvas->values()};
            for (int i = anyNumber(1, 30); i > 0; --i) {
                const QList<DesignerObject*> elements = m_canvas->scene()->selectableElements();
                DesignerObject* polygon = elements.at(anyNumber(0, int(elements.size())));
                const QPolygonF shown = PolygonCanvas::shownPoints(polygon);
                const QPointF from =
                    anyNumber(0, 3) == 0
                        ? PolygonCanvas::handlePoint(PolygonCanvas::shownFrame(polygon), Handles[anyNumber(0, 8)])
                        : shown.at(anyNumber(0, int(shown.size())));
                const QPointF to = anyPlace();
                const int stepsBefore = m_canvas->stack()->index();
                m_canvas->select({polygon});
                m_canvas->press(from);
                m_canvas->move(0.5 * (from + to));
                const int end = anyNumber(0, 10);
                if (end == 0)
                    m_canvas->key(Qt::Key_Escape);
                m_canvas->release(end == 1 ? from : to);
                if (end == 2) {
                    m_canvas->session->setProperty(polygon, QStringLiteral("boundingSize"),
                                                   QStringLiteral("%1,%2").arg(anyNumber(1, 300)).arg(150));
                }
                const int steps = m_canvas->stack()->index() - stepsBefore;
                RC_ASSERT(steps >= 0 && steps <= 2);
                if (steps == 2)
                    states.append(QMap<QString, QString>());
                if (steps > 0)
                    states.append(m_canvas->values());
                else
                    RC_ASSERT(m_canvas->values() == states.last());
            }
            const int last = m_canvas->stack()->index();
            RC_ASSERT(states.size() == last + 1);
            for (int round = 0; round < 2; ++round) {
                for (int i = last; i > 0; --i) {
                    m_canvas->session->undo();
                    if (!states.at(i - 1).isEmpty())
                        RC_ASSERT(m_canvas->values() == states.at(i - 1));
                }
                for (int i = 0; i < last; ++i) {
                    m_canvas->session->redo();
                    if (!states.at(i + 1).isEmpty())
                        RC_ASSERT(m_canvas->values() == states.at(i + 1));
                }
            }
        });
        QVERIFY(held);
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

QTEST_MAIN(tst_PolygonFrame)
#include "tst_PolygonFrame.moc"
