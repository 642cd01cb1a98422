#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::CanvasFixture;

namespace {

constexpr int Handles[] = {0, 1, 2, 3, 5, 6, 7, 8};
constexpr double ShortestEdge = 1;
constexpr double LongestEdge = 320;

QPointF handlePoint(const QRectF& frame, int handle)
{
    return fixedPointPosition(static_cast<TransformOrigin>(handle), frame);
}

bool near(double a, double b)
{
    return std::abs(a - b) <= 1e-9;
}

/// Whether the corner that a drag of \a handle has to leave alone lies where it lay.
bool keepsItsCorner(int handle, const QRectF& before, const QRectF& after)
{
    const QPointF way = handlePoint(after, cornerKeptBy(handle)) - handlePoint(before, cornerKeptBy(handle));
    return near(way.x(), 0) && near(way.y(), 0);
}

/// The outer size of a polygon, from its corners: \a n of them, the first at the top, \a edge apart, and moved outwards
/// until a border that is \a border wide, or the next even number, lies within.
QSizeF outerSize(int n, double edge, int border)
{
    const double radius = edge / (2 * std::sin(M_PI / n)) + 0.5 * (border + border % 2) / std::cos(M_PI / n);
    double right = 0;
    double bottom = 0;
    for (int i = 0; i < n; ++i) {
        right = std::max(right, radius * std::sin(2 * M_PI * i / n));
        bottom = std::max(bottom, -radius * std::cos(2 * M_PI * i / n));
    }
    return {2 * right, radius + bottom};
}

/// Rows of polygons with each handle: all numbers of edges, without, with an odd and with an even border.
void addPolygonRows()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<int>("border");
    QTest::addColumn<int>("handle");
    for (int edges = 3; edges <= 20; ++edges) {
        for (const int border : {0, 1, 7, 10}) {
            for (const int handle : Handles)
                QTest::addRow("%d edges, border %d, handle %d", edges, border, handle) << edges << border << handle;
        }
    }
}

} // namespace

/// Resizing a regular polygon by its frame: one dimension decides, and only the length of its edges changes.
class tst_PolygonGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { clear(); }
    void cleanupTestCase() { m_canvas.reset(); }

    void theWidthDecidesAndForTopAndBottomTheHeight_data() { addPolygonRows(); }

    void theWidthDecidesAndForTopAndBottomTheHeight()
    {
        QFETCH(int, edges);
        QFETCH(int, border);
        QFETCH(int, handle);
        const DesignerObject* polygon = addPolygon(edges, 37.5, border);
        const QRectF before = CanvasFixture::outerRect(polygon);
        const QPointF grab = handlePoint(before, handle);
        // The other dimension would want another size.
        QPointF out = grab - before.center();
        out = {out.x() < 0 ? -23.0 : 23.0, out.y() < 0 ? -5.0 : 5.0};
        if (handle == Top || handle == Bottom)
            out = {-61, 4 * out.y()};
        m_canvas->drag(grab, grab + out);

        const QRectF after = CanvasFixture::outerRect(polygon);
        if (handle == Top || handle == Bottom)
            QVERIFY(near(after.height(), before.height() + 20));
        else
            QVERIFY(near(after.width(), before.width() + 23));
        const QSizeF expected = outerSize(edges, edgeLength(polygon), border);
        QVERIFY(near(after.width(), expected.width()) && near(after.height(), expected.height()));
        QVERIFY(keepsItsCorner(handle, before, after));
        QCOMPARE(m_canvas->steps(), 1);
    }

    void theEdgeLengthIsTheOnlyGeometryThatIsWritten_data() { addPolygonRows(); }

    void theEdgeLengthIsTheOnlyGeometryThatIsWritten()
    {
        QFETCH(int, edges);
        QFETCH(int, border);
        QFETCH(int, handle);
        const DesignerObject* polygon = addPolygon(edges, 60, border);
        const auto before = m_canvas->values();
        const QPointF grab = handlePoint(CanvasFixture::outerRect(polygon), handle);
        m_canvas->drag(grab, grab + QPointF(14, 14));
        const auto after = m_canvas->values();
        QSet<QString> changed;
        for (auto it = before.cbegin(); it != before.cend(); ++it) {
            if (after.value(it.key()) != it.value())
                changed.insert(it.key());
        }
        QSet<QString> expected = {QStringLiteral("polygon1.edgeLength"), QStringLiteral("polygon1.boundingSize")};
        if (cornerKeptBy(handle) != TopLeft)
            expected.insert(QStringLiteral("polygon1.position"));
        QCOMPARE(changed, expected);
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        m_canvas->session->redo();
        QCOMPARE(m_canvas->values(), after);
    }

    void aDragFarOutStopsAtTheLongestEdge_data() { addPolygonRows(); }

    void aDragFarOutStopsAtTheLongestEdge()
    {
        QFETCH(int, edges);
        QFETCH(int, border);
        QFETCH(int, handle);
        const DesignerObject* polygon = addPolygon(edges, 100, border);
        const QRectF before = CanvasFixture::outerRect(polygon);
        const auto valuesBefore = m_canvas->values();
        const QPointF grab = handlePoint(before, handle);
        const QPointF out = grab - before.center();
        m_canvas->press(grab);
        QRectF atTheLimit;
        for (const double way : {9.0, 7.5, 30.0, 8.1, 8.0, 55.0}) {
            m_canvas->move(grab + way * out);
            const QRectF now = CanvasFixture::graphic(polygon)->sceneBoundingRect();
            if (atTheLimit.isNull())
                atTheLimit = now;
            QVERIFY(near(now.width(), outerSize(edges, LongestEdge, border).width()));
            QVERIFY(keepsItsCorner(handle, before, now));
            // It does not creep.
            QCOMPARE(now, atTheLimit);
        }
        m_canvas->release(grab + 20 * out);
        QCOMPARE(CanvasFixture::value(polygon, "edgeLength"), QStringLiteral("320"));
        QVERIFY(keepsItsCorner(handle, before, CanvasFixture::outerRect(polygon)));
        QCOMPARE(m_canvas->steps(), 1);

        // From the limit there is no way further.
        const auto longest = m_canvas->values();
        const QPointF there = handlePoint(CanvasFixture::outerRect(polygon), handle);
        m_canvas->drag(there, there + 0.5 * out);
        QCOMPARE(m_canvas->values(), longest);
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), valuesBefore);
    }

    void aDragOverTheOtherSideStopsAtTheShortestEdge_data() { addPolygonRows(); }

    void aDragOverTheOtherSideStopsAtTheShortestEdge()
    {
        QFETCH(int, edges);
        QFETCH(int, border);
        QFETCH(int, handle);
        const DesignerObject* polygon = addPolygon(edges, 100, border);
        const QRectF before = CanvasFixture::outerRect(polygon);
        const QPointF grab = handlePoint(before, handle);
        const QPointF in = before.center() - grab;
        m_canvas->press(grab);
        QRectF atTheLimit;
        for (const double way : {2.0, 2.2, 7.0, 3.1, 3.0, 40.0}) {
            m_canvas->move(grab + way * in);
            const QRectF now = CanvasFixture::graphic(polygon)->sceneBoundingRect();
            if (atTheLimit.isNull())
                atTheLimit = now;
            QVERIFY(keepsItsCorner(handle, before, now));
            QCOMPARE(now, atTheLimit);
        }
        m_canvas->release(grab + 40 * in);
        // The dimension that decides is never below the item's smallest, which stops a lying triangle before its edges.
        const double smallest = polygon->graphicsItem()->minSize();
        const QSizeF limit = outerSize(edges, ShortestEdge, border);
        const QSizeF after = CanvasFixture::outerRect(polygon).size();
        if (handle == Top || handle == Bottom)
            QVERIFY(near(after.height(), std::max(limit.height(), smallest)));
        else
            QVERIFY(near(after.width(), std::max(limit.width(), smallest)));
        QVERIFY(edgeLength(polygon) >= ShortestEdge);
        QVERIFY(keepsItsCorner(handle, before, CanvasFixture::outerRect(polygon)));
        QCOMPARE(m_canvas->steps(), 1);
    }

    void beyondALimitAndBackItIsWhatAStraightWayGives_data() { addPolygonRows(); }

    void beyondALimitAndBackItIsWhatAStraightWayGives()
    {
        QFETCH(int, edges);
        QFETCH(int, border);
        QFETCH(int, handle);
        const DesignerObject* polygon = addPolygon(edges, 100, border);
        const QRectF before = CanvasFixture::outerRect(polygon);
        const QPointF grab = handlePoint(before, handle);
        const QPointF out = grab - before.center();
        m_canvas->drag(grab, grab + 0.25 * out);
        const QRectF straight = CanvasFixture::outerRect(polygon);
        m_canvas->session->undo();
        m_canvas->press(grab);
        m_canvas->move(grab + 40 * out);
        m_canvas->move(grab - 40 * out);
        m_canvas->move(grab + 0.25 * out);
        m_canvas->release(grab + 0.25 * out);
        const QRectF round = CanvasFixture::outerRect(polygon);
        QVERIFY(near(round.width(), straight.width()) && near(round.height(), straight.height()));
        QVERIFY(keepsItsCorner(handle, straight, round));
    }

    void aPolygonBeyondTheLimitsComesWithinThemByADrag()
    {
        for (const double length : {0.25, 400.0}) {
            const DesignerObject* polygon = addPolygon(4, length, 12);
            const auto before = canvas().values();
            const QRectF frame = CanvasFixture::outerRect(polygon);
            // As long as it is where it was grabbed, nothing happens to it.
            m_canvas->press(frame.bottomRight());
            m_canvas->move(frame.bottomRight() + QPointF(3, 3));
            m_canvas->move(frame.bottomRight());
            m_canvas->release(frame.bottomRight());
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
            const QPointF out = length < 1 ? QPointF(-1, -1) : QPointF(2, 2);
            m_canvas->drag(frame.bottomRight(), frame.bottomRight() + out);
            QCOMPARE(edgeLength(polygon), length < 1 ? ShortestEdge : LongestEdge);
            QVERIFY(keepsItsCorner(BottomRight, frame, CanvasFixture::outerRect(polygon)));
            m_canvas->session->undo();
            QCOMPARE(m_canvas->values(), before);
            clear();
        }
    }

    void aCornerDraggedUpOrDownMakesNoStep_data() { addPolygonRows(); }

    void aCornerDraggedUpOrDownMakesNoStep()
    {
        QFETCH(int, edges);
        QFETCH(int, border);
        QFETCH(int, handle);
        if (!handleChangesWidth(handle) || !handleChangesHeight(handle))
            return;
        for (const double length : {45.5, 33.3, 120.07}) {
            const DesignerObject* polygon = addPolygon(edges, length, border);
            const auto before = m_canvas->values();
            const QPointF grab = handlePoint(CanvasFixture::outerRect(polygon), handle);
            m_canvas->drag(grab, grab + QPointF(0, 17));
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
            clear();
        }
    }

    void anOddBorderTakesTheRoomOfTheNextEvenOne()
    {
        for (const int border : {1, 3, 9}) {
            QSizeF sizes[2];
            QString lengths[2];
            for (const int more : {0, 1}) {
                const DesignerObject* polygon = addPolygon(3, 80, border + more);
                const QPointF corner = CanvasFixture::outerRect(polygon).bottomRight();
                m_canvas->drag(corner, corner + QPointF(20, 0));
                sizes[more] = CanvasFixture::outerRect(polygon).size();
                lengths[more] = CanvasFixture::value(polygon, "edgeLength");
                clear();
            }
            // The edges of a triangle are as much longer as it is wider.
            QCOMPARE(lengths[0], QStringLiteral("100"));
            QCOMPARE(lengths[1], lengths[0]);
            QCOMPARE(sizes[1], sizes[0]);
            QVERIFY(near(sizes[0].width(), 100 + (border + 1) * std::sqrt(3)));
        }
    }

    void whileDraggingOnlyTheOuterSizeFollows()
    {
        const DesignerObject* polygon = addPolygon(4, 100, 10);
        const auto before = canvas().values();
        const QRectF frame = CanvasFixture::outerRect(polygon);
        QSignalSpy readouts(m_canvas->view.get(), &CanvasView::readoutChanged);
        m_canvas->press(frame.topLeft());
        m_canvas->move(frame.topLeft() - QPointF(20, 3));
        QVERIFY(polygon->graphicsItem()->isChangingSize());
        QCOMPARE(CanvasFixture::value(polygon, "edgeLength"), QStringLiteral("100"));
        QCOMPARE(CanvasFixture::value(polygon, "position"), before.value(QStringLiteral("polygon1.position")));
        // A square on its corner: (100 + 10) √2 and 20 more.
        QCOMPARE(CanvasFixture::value(polygon, "boundingSize"), QStringLiteral("175.563492,175.563492"));
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("x 280, y 180, 175.56 × 175.56"));
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(!polygon->graphicsItem()->isChangingSize());
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(CanvasFixture::graphic(polygon)->sceneBoundingRect(), frame);
        m_canvas->release(frame.topLeft() - QPointF(20, 3));
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void anEdgeLengthThatDoesNotConvertIsGivenByAResizeAndByEscapeTakenBack()
    {
        DesignerObject* polygon = addPolygon(4, 100, 0);
        const QPointF corner = CanvasFixture::outerRect(polygon).bottomRight();
        m_canvas->set(polygon, "edgeLength", QStringLiteral("broken"));
        m_canvas->press(corner);
        m_canvas->move(corner + QPointF(50, 0));
        m_canvas->key(Qt::Key_Escape);
        m_canvas->release(corner + QPointF(50, 0));
        QCOMPARE(CanvasFixture::value(polygon, "edgeLength"), QStringLiteral("broken"));
        m_canvas->drag(corner, corner + QPointF(50, 0));
        QVERIFY(near(edgeLength(polygon), 100 + 50 * std::sqrt(0.5)));
        m_canvas->session->undo();
        QCOMPARE(CanvasFixture::value(polygon, "edgeLength"), QStringLiteral("broken"));
    }

    void anyWayKeepsTheOppositeCornerAndTheLimits()
    {
        const bool held = rc::check("ways", [this] {
            // Evenly in every case: RapidCheck's own ranges begin with the small numbers.
            const auto number = [](int low, int high) {
                return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
            };
            const int edges = number(3, 21);
            const int border = number(0, 30);
            const int handle = Handles[number(0, 8)];
            const double zoom = *rc::gen::element(0.25, 0.5, 1.0, 1.3, 4.0, 16.0);
            // Large enough on the screen to have handles.
            const double smallest = std::ceil(11 / (zoom * outerSize(edges, 1, 0).height()));
            const DesignerObject* polygon =
                addPolygon(edges, smallest + number(0, 100 * int(LongestEdge - smallest)) / 100.0, border);
            m_canvas->view->setZoom(zoom);
            const QRectF before = CanvasFixture::outerRect(polygon);
            const auto valuesBefore = m_canvas->values();
            const QPointF grab = handlePoint(before, handle);
            m_canvas->press(grab);
            // Round and round between a few places, where errors of one kind would add up.
            QList<QPointF> places;
            for (int i = number(1, 8); i > 0; --i)
                places.append(QPointF(number(-500, 500), number(-500, 500)) / 2);
            const int moves = number(1, 300);
            QPointF way;
            for (int i = 0; i < moves; ++i) {
                way = places.at(i % places.size());
                m_canvas->move(grab + way);
                const QRectF now = CanvasFixture::graphic(polygon)->sceneBoundingRect();
                RC_ASSERT(keepsItsCorner(handle, before, now));
            }
            m_canvas->release(grab + way);

            const QRectF after = CanvasFixture::outerRect(polygon);
            RC_ASSERT(keepsItsCorner(handle, before, after));
            const double length = edgeLength(polygon);
            RC_ASSERT(length >= ShortestEdge && length <= LongestEdge);
            const QSizeF expected = outerSize(edges, length, border);
            RC_ASSERT(near(after.width(), expected.width()) && near(after.height(), expected.height()));
            RC_CLASSIFY(length == ShortestEdge, "shortest");
            RC_CLASSIFY(length == LongestEdge, "longest");
            const auto valuesAfter = m_canvas->values();
            RC_ASSERT(m_canvas->steps() == (valuesAfter == valuesBefore ? 0 : 1));
            if (m_canvas->steps() == 1) {
                m_canvas->session->undo();
                RC_ASSERT(m_canvas->values() == valuesBefore);
                m_canvas->session->redo();
                RC_ASSERT(m_canvas->values() == valuesAfter);
            }
            clear();
        });
        QVERIFY(held);
    }

private:
    static double edgeLength(const DesignerObject* polygon)
    {
        bool ok = false;
        const double length = ValueConversion::toReal(CanvasFixture::value(polygon, "edgeLength"), &ok);
        return ok ? length : NAN;
    }

    /// The only element of the canvas, at (300, 200), and selected.
    DesignerObject* addPolygon(int edges, double edgeLength, int border)
    {
        clear();
        DesignerObject* polygon = canvas().add(
            "Polygon", {{QStringLiteral("position"), QStringLiteral("300,200")},
                        {QStringLiteral("edges"), QString::number(edges)},
                        {QStringLiteral("edgeLength"), ValueConversion::toString(edgeLength)},
                        {QStringLiteral("border"), ValueConversion::toString(BorderInfo(border, Qt::black))}});
        m_canvas->select({polygon});
        return polygon;
    }

    void clear()
    {
        canvas().view->cancelGesture(); // of a case that failed half-way
        canvas().session->removeElements(canvas().scene()->selectableElements());
        canvas().stack()->clear();
        canvas().view->setZoom(1);
    }

    /// One canvas for the many rows, emptied after each: making a window is what takes time.
    CanvasFixture& canvas()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<CanvasFixture>();
        return *m_canvas;
    }

    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_PolygonGestures)
#include "tst_PolygonGestures.moc"
