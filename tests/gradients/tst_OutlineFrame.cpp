#include "tests/gradients/OutlineCanvas.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/OutlineReaction.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::OutlineCanvas;

namespace {

/// 133.3 x 91.9 pixels large.
const QPolygonF Shape({{30, 0}, {110, 0}, {133.3, 20}, {133.3, 70}, {100, 91.9}, {0, 20}});

/// Evenly in every case: RapidCheck's own ranges begin with the small numbers.
int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

QPolygonF anyPoints(int count)
{
    QPolygonF points;
    for (int i = 0; i < count; ++i)
        points << QPointF(anyNumber(-15000, 15000), anyNumber(-15000, 15000)) / 100;
    return points;
}

/// The outer size that a drag of \a handle by \a way asks for.
QSizeF draggedSize(const QSizeF& size, int handle, const QPointF& way)
{
    const QPointF fractions = originFractions(static_cast<TransformOrigin>(handle));
    const double width = size.width() + (fractions.x() == 0 ? -way.x() : way.x());
    const double height = size.height() + (fractions.y() == 0 ? -way.y() : way.y());
    return {handleChangesWidth(handle) ? withoutNoise(std::max(width, 1.0)) : size.width(),
            handleChangesHeight(handle) ? withoutNoise(std::max(height, 1.0)) : size.height()};
}

} // namespace

/// The frame of paths and gradients under the mouse, which scales their points.
class tst_OutlineFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { m_canvas.reset(); }

    void theCornerOppositeTheHandleStays_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<int>("handle");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QPointF>("offset");
        QTest::addColumn<double>("zoom");
        int count = 0;
        for (const int handle : OutlineCanvas::Handles) {
            for (const double ratio : {0.0, 1.37}) {
                for (const QPointF& offset : {QPointF(0, 0), QPointF(40.3, -70.9), QPointF(-500, 300)}) {
                    for (const double zoom : {0.25, 0.5, 1.0, 1.3, 4.0, 16.0}) {
                        const QByteArray name = OutlineCanvas::elements().at(count++ % 5 % 4);
                        QTest::addRow("%s, handle %d, ratio %g, points from %g, %g, zoom %g", name.constData(), handle,
                                      ratio, offset.x(), offset.y(), zoom)
                            << name << handle << ratio << offset << zoom;
                    }
                }
            }
        }
    }

    void theCornerOppositeTheHandleStays()
    {
        QFETCH(QByteArray, className);
        QFETCH(int, handle);
        QFETCH(double, ratio);
        QFETCH(QPointF, offset);
        QFETCH(double, zoom);
        const DesignerObject* element =
            canvas().addAlone(className, Shape.translated(offset), QPointF(250, 200) - offset, ratio);
        m_canvas->view->setZoom(zoom);
        const auto valuesBefore = m_canvas->values();
        const QRectF before = OutlineCanvas::outerRect(element);
        // Grabbed a little beside the handle: the frame does not jump to the mouse.
        const QPointF grab = OutlineCanvas::handlePoint(before, handle) + QPointF(1, -1) / zoom;
        const QPointF out = OutlineCanvas::handlePoint(before, handle) - before.center();
        const QPointF way(std::round(0.4 * out.x()), std::round(0.4 * out.y()));
        m_canvas->press(grab);
        for (int i = 1; i <= 7; ++i) {
            m_canvas->move(grab + way * i / 7.0);
            const QRectF now = OutlineCanvas::shownFrame(element);
            QVERIFY(OutlineCanvas::keepsItsCorner(handle, before, now));
            // The outer size is told on the way, the points at the end.
            const QSizeF told = ValueConversion::toSize(m_canvas->value(element, "boundingSize"));
            QVERIFY(std::abs(told.width() - now.width()) < 1e-6 && std::abs(told.height() - now.height()) < 1e-6);
            QCOMPARE(OutlineCanvas::points(element), Shape.translated(offset));
        }
        m_canvas->release(grab + way);
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Resize ") + element->getIdName());

        const QRectF after = OutlineCanvas::outerRect(element);
        QVERIFY(OutlineCanvas::keepsItsCorner(handle, before, after));
        const bool widthDrives = handleChangesWidth(handle);
        if (widthDrives)
            QVERIFY(std::abs(after.width() - before.width() - std::abs(way.x())) <= 1e-9);
        if (!widthDrives || (ratio == 0 && handleChangesHeight(handle)))
            QVERIFY(std::abs(after.height() - before.height() - std::abs(way.y())) <= 1e-9);
        if (ratio > 0) // both sides by one factor: the outline's own proportions stay
            QVERIFY(std::abs(after.width() / after.height() - before.width() / before.height()) < 1e-9);
        const QPolygonF now = OutlineCanvas::points(element);
        const QPointF place = ValueConversion::toPoint(m_canvas->value(element, "position"));
        for (qsizetype i = 0; i < now.size(); ++i) {
            // Each point keeps its share of the frame, and a dimension that is not dragged its very numbers.
            const QPointF share = now.at(i) + place - after.topLeft();
            QVERIFY(std::abs(share.x() / after.width() - Shape.at(i).x() / before.width()) < 1e-9);
            QVERIFY(std::abs(share.y() / after.height() - Shape.at(i).y() / before.height()) < 1e-9);
            const QPointF was = Shape.translated(offset).at(i);
            QVERIFY(ratio > 0 || handleChangesWidth(handle) || now.at(i).x() == was.x());
            QVERIFY(ratio > 0 || handleChangesHeight(handle) || now.at(i).y() == was.y());
        }

        const auto valuesAfter = m_canvas->values();
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), valuesBefore);
        QCOMPARE(OutlineCanvas::shownFrame(element), before);
        m_canvas->session->redo();
        QCOMPARE(m_canvas->values(), valuesAfter);
        QCOMPARE(OutlineCanvas::shownFrame(element), after);
    }

    void aDragToASizeGivesThePointsOfTypingIt()
    {
        const bool held = rc::check("dragged and typed", [this] {
            QPolygonF points = anyPoints(anyNumber(3, 12));
            if (anyNumber(0, 3) == 0) // as an earlier resize leaves them
                points = QTransform::fromScale(1.0 / 3, 1 / 1.7).map(points);
            for (QPointF& point : points)
                point = withoutNoise(point);
            const QSizeF size = points.boundingRect().size();
            RC_PRE(size.width() > 12 && size.height() > 12);
            const double ratio = *rc::gen::element(0.0, 0.0, 0.3, 1.0, 2.5, size.width() / size.height());
            const QByteArray name = OutlineCanvas::elements().at(anyNumber(0, 4));
            DesignerObject* typed = canvas().addAlone(name, points, {400, 240}, ratio);
            DesignerObject* dragged = m_canvas->addOutline(name, points, {400, 240}, ratio);
            m_canvas->select({dragged});

            const int handle = OutlineCanvas::Handles[anyNumber(0, 8)];
            const QPointF way(anyNumber(-400, 400) / 4.0 * anyNumber(0, 2),
                              anyNumber(-400, 400) / 4.0 * anyNumber(0, 2));
            const QSizeF wanted = draggedSize(size, handle, way);
            // What an editor hands on of a dimension that is not typed.
            const QSizeF shown = ValueConversion::toSize(m_canvas->value(typed, "boundingSize"));
            const bool widthTyped = withoutNoise(wanted.width()) != withoutNoise(size.width());
            const bool heightTyped = withoutNoise(wanted.height()) != withoutNoise(size.height());
            RC_PRE(widthTyped || heightTyped);
            const QSizeF text(widthTyped ? wanted.width() : shown.width(),
                              heightTyped ? wanted.height() : shown.height());
            RC_PRE(outlineFactors(shown, text, ratio).has_value()); // what is refused is another test's
            const QString value = ValueConversion::toString(text);
            RC_ASSERT(m_canvas->session->setProperty(typed, QStringLiteral("boundingSize"), value).accepted);

            const QPointF grab = OutlineCanvas::handlePoint(OutlineCanvas::outerRect(dragged), handle);
            m_canvas->press(grab);
            for (int i = anyNumber(0, 5); i > 0; --i)
                m_canvas->move(grab + QPointF(anyNumber(-300, 300), anyNumber(-300, 300)));
            m_canvas->release(grab + way);
            RC_ASSERT(m_canvas->value(dragged, "points") == m_canvas->value(typed, "points"));
        });
        QVERIFY(held);
    }

    void aDragEndsWhereATypedSizeWouldBeRefused_data()
    {
        QTest::addColumn<double>("ratio");
        QTest::addColumn<int>("handle");
        QTest::addColumn<QSizeF>("smallest");
        QTest::newRow("right") << 10.0 << int(Right) << QSizeF(10, 7.5);
        QTest::newRow("left") << 10.0 << int(Left) << QSizeF(10, 7.5);
        QTest::newRow("right, narrow") << 0.25 << int(Right) << QSizeF(1, 0.75);
        QTest::newRow("bottom") << 0.25 << int(Bottom) << QSizeF(4 / 0.75, 4);
        QTest::newRow("top") << 0.25 << int(Top) << QSizeF(4 / 0.75, 4);
        QTest::newRow("bottom, by thirds") << 1.0 / 3 << int(Bottom) << QSizeF(4, 3);
        QTest::newRow("bottom, wide") << 10.0 << int(Bottom) << QSizeF(1 / 0.75, 1);
        QTest::newRow("a corner, straight sideways") << 10.0 << int(BottomRight) << QSizeF(10, 7.5);
    }

    void aDragEndsWhereATypedSizeWouldBeRefused()
    {
        QFETCH(double, ratio);
        QFETCH(int, handle);
        QFETCH(QSizeF, smallest);
        const QPolygonF rectangle(QRectF(0, 0, 100, 75));
        for (const double beyond : {0.999, 1.0, 3.0}) {
            const DesignerObject* element = canvas().addAlone("PathElement", rectangle, {300, 200}, ratio);
            const QRectF before = OutlineCanvas::outerRect(element);
            const QPointF grab = OutlineCanvas::handlePoint(before, handle);
            QPointF in = 2 * beyond * (before.center() - grab);
            if (handle == BottomRight)
                in.setY(0);
            m_canvas->drag(grab, grab + in);
            const QRectF after = OutlineCanvas::outerRect(element);
            QVERIFY(OutlineCanvas::near(QPointF(after.width(), after.height()),
                                        QPointF(smallest.width(), smallest.height())));
            QVERIFY(OutlineCanvas::keepsItsCorner(handle, before, after));
        }
        // One that is smaller than that already stays as it is.
        const DesignerObject* element = canvas().addAlone("PathElement", rectangle, {300, 200}, 200);
        m_canvas->drag({400, 237.5}, {380, 237.5});
        m_canvas->drag({400, 237.5}, {450, 237.5});
        QCOMPARE(OutlineCanvas::points(element), rectangle);
        m_canvas->drag({400, 237.5}, {500, 237.5});
        QCOMPARE(OutlineCanvas::points(element), QPolygonF(QRectF(0, 0, 200, 150)));
    }

    void atACornerTheSideThatWasDraggedDecides()
    {
        // Noise of the points must not look like a width that was dragged: 100.4 - 0.1 is not quite 100.3.
        for (const double left : {0.0, 0.1}) {
            const QRectF rect(QPointF(left, 0), QPointF(100 + 4 * left, 75));
            const auto resized = [&](const QPointF& way) {
                const DesignerObject* element = canvas().addAlone("PathElement", QPolygonF(rect), {200, 100}, 4.0 / 3);
                const QPointF grab = OutlineCanvas::outerRect(element).bottomRight();
                m_canvas->drag(grab, grab + way);
                return OutlineCanvas::outerRect(element).width() / rect.width();
            };
            QVERIFY(std::abs(resized({0, 75}) - 2) < 1e-9);
            QVERIFY(std::abs(resized({rect.width(), 0}) - 2) < 1e-9);
            QVERIFY(std::abs(resized({rect.width(), -30}) - 2) < 1e-9); // the width, when both were
        }
    }

    void theWayOfTheMouseDoesNotCount_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<double>("ratio");
        for (const int handle : OutlineCanvas::Handles) {
            for (const double ratio : {0.0, 133.3 / 91.9, 5.0})
                QTest::addRow("handle %d, ratio %g", handle, ratio) << handle << ratio;
        }
    }

    void theWayOfTheMouseDoesNotCount()
    {
        QFETCH(int, handle);
        QFETCH(double, ratio);
        const QPolygonF points = Shape.translated(7, 11);
        const DesignerObject* element = canvas().addAlone("LinearGradientElement", points, {250, 200}, ratio);
        const auto start = m_canvas->values();
        const QRectF before = OutlineCanvas::outerRect(element);
        const QPointF grab = OutlineCanvas::handlePoint(before, handle);
        const QPointF in = before.center() - grab;
        const QPointF end = grab + QPointF(17, 23);
        m_canvas->drag(grab, end);
        const QString straight = m_canvas->value(element, "points");
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), start);

        m_canvas->press(grab);
        for (const double way : {0.3, 1.9, 2.0, 2.1, 7.0, 2.5, 30.0, 1.5, -30.0, 30.0}) {
            m_canvas->move(grab + way * in);
            const QRectF now = OutlineCanvas::shownFrame(element);
            QVERIFY(OutlineCanvas::keepsItsCorner(handle, before, now));
            QVERIFY(ratio == 5 || (now.width() > 1 - 1e-9 && now.height() > 1 - 1e-9));
        }
        m_canvas->release(end);
        QCOMPARE(m_canvas->value(element, "points"), straight);
        QCOMPARE(m_canvas->steps(), 1);
        // Each drag begins with what the last one left.
        const QRectF now = OutlineCanvas::outerRect(element);
        const QPointF again = OutlineCanvas::handlePoint(now, handle);
        m_canvas->drag(again, again - in);
        QCOMPARE(m_canvas->steps(), 2);
        QVERIFY(OutlineCanvas::keepsItsCorner(handle, now, OutlineCanvas::outerRect(element)));
    }

    void whatEndsWhereItBeganMakesNoStep()
    {
        for (const QByteArray& name : OutlineCanvas::elements()) {
            const DesignerObject* element =
                canvas().addAlone(name, Shape.translated(1.0 / 3, 0.7), {250 + 1.0 / 7, 200}, 1.1);
            const auto before = m_canvas->values();
            const QRectF frame = OutlineCanvas::shownFrame(element);
            for (const int handle : OutlineCanvas::Handles) {
                const QPointF grab = OutlineCanvas::handlePoint(frame, handle);
                m_canvas->press(grab);
                m_canvas->move(grab + QPointF(31, 47));
                m_canvas->release(grab);
                QCOMPARE(m_canvas->values(), before);
                QCOMPARE(m_canvas->steps(), 0);
                m_canvas->press(grab);
                m_canvas->move(grab + QPointF(31, 47));
                m_canvas->key(Qt::Key_Escape);
                m_canvas->release(grab + QPointF(31, 47));
                QCOMPARE(m_canvas->values(), before);
                QCOMPARE(m_canvas->steps(), 0);
                QCOMPARE(OutlineCanvas::shownFrame(element), frame);
            }
        }
    }

    void aCircleDoesNotScaleWithTheFrame()
    {
        const DesignerObject* element = canvas().addAlone("RadialGradientElement", Shape, {250, 200});
        const QPointF grab = OutlineCanvas::outerRect(element).bottomRight();
        m_canvas->drag(grab, grab + QPointF(50, 80));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->value(element, "center"), QStringLiteral("50,37.5"));
        QCOMPARE(m_canvas->value(element, "focalPoint"), QStringLiteral("50,37.5"));
        QCOMPARE(m_canvas->value(element, "radius"), QStringLiteral("50"));
    }

    void undoingAndRedoingAllGivesEveryValueBack()
    {
        const bool held = rc::check("gestures", [this] {
            canvas().clear();
            for (const QByteArray& name : OutlineCanvas::elements()) {
                const QPointF position(anyNumber(0, 800), anyNumber(0, 480));
                DesignerObject* element = m_canvas->addOutline(name, anyPoints(anyNumber(3, 12)), position,
                                                               *rc::gen::element(0.0, 1.3, 10.0));
                if (anyNumber(0, 4) == 0)
                    m_canvas->set(element, "rotation", QStringLiteral("angle: 20; fixedPoint: BottomLeft;"));
            }
            m_canvas->stack()->clear();
            QList<QMap<QString, QString>> states = {m_canvas->values()};
            for (int i = anyNumber(1, 25); i > 0; --i) {
                const QList<DesignerObject*> elements = m_canvas->scene()->selectableElements();
                DesignerObject* element = elements.at(anyNumber(0, int(elements.size())));
                m_canvas->select({element});
                const int stepsBefore = m_canvas->stack()->index();
                const QRectF frame = OutlineCanvas::shownFrame(element);
                const QPointF from = anyNumber(0, 4) == 0
                                         ? QPointF(anyNumber(0, 800), anyNumber(0, 480))
                                         : OutlineCanvas::handlePoint(frame, OutlineCanvas::Handles[anyNumber(0, 8)]);
                const QPointF to(anyNumber(0, 800), anyNumber(0, 480));
                switch (anyNumber(0, 6)) {
                case 0:
                    m_canvas->session->setProperty(
                        element, QStringLiteral("boundingSize"),
                        QStringLiteral("%1,%2").arg(anyNumber(0, 300)).arg(anyNumber(0, 300)));
                    break;
                case 1:
                    m_canvas->press(from);
                    m_canvas->move(to);
                    m_canvas->key(Qt::Key_Escape);
                    m_canvas->release(to);
                    break;
                default:
                    m_canvas->press(from);
                    m_canvas->move(0.5 * (from + to));
                    m_canvas->release(to);
                }
                const int steps = m_canvas->stack()->index() - stepsBefore;
                RC_ASSERT(steps == 0 || steps == 1);
                if (steps == 1)
                    states.append(m_canvas->values());
                else
                    RC_ASSERT(m_canvas->values() == states.last());
            }
            const int last = m_canvas->stack()->index();
            RC_ASSERT(states.size() == last + 1);
            for (int round = 0; round < 2; ++round) {
                for (int i = last; i > 0; --i) {
                    m_canvas->session->undo();
                    RC_ASSERT(m_canvas->values() == states.at(i - 1));
                }
                for (int i = 0; i < last; ++i) {
                    m_canvas->session->redo();
                    RC_ASSERT(m_canvas->values() == states.at(i + 1));
                }
            }
        });
        QVERIFY(held);
    }

private:
    /// One canvas for the many rows, emptied before each: making a window is what takes time.
    OutlineCanvas& canvas()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<OutlineCanvas>();
        return *m_canvas;
    }

    std::unique_ptr<OutlineCanvas> m_canvas;
};

QTEST_MAIN(tst_OutlineFrame)
#include "tst_OutlineFrame.moc"
