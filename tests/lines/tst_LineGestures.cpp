#include "tests/lines/AnyNumber.h"
#include "tests/lines/LineCanvas.h"

#include "host/common/LineGeometry.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using namespace Korvex::Meridane::Designer::Test;

/// Lines on a real canvas under the mouse: their ends, and what undo makes of everything that is done with them.
class tst_LineGestures : public QObject, private LineCanvas
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (m_canvas)
            clear();
    }

    void cleanupTestCase() { m_canvas.reset(); }

    void anEndGoesWhereTheMouseGoes_data()
    {
        QTest::addColumn<bool>("start");
        QTest::addColumn<double>("zoom");
        QTest::addColumn<QPointF>("way");
        QTest::addColumn<double>("angle"); // of the line; negative: any
        struct Row
        {
            const char* name;
            QPointF way; // from the end that stays to the one that is dragged
            double ofEnd;
            double ofStart;
        };
        const Row rows[] = {{"right", {70, 0}, 0, 180},
                            {"down", {0, 70}, 90, 270},
                            {"left", {-70, 0}, 180, 0},
                            {"up", {0, -70}, 270, 90},
                            {"first quadrant", {40, 30}, 36.8698976458, 216.8698976458},
                            {"second quadrant", {-40, 30}, 143.1301023542, 323.1301023542},
                            {"third quadrant", {-40, -30}, 216.8698976458, 36.8698976458},
                            {"fourth quadrant", {40, -30}, 323.1301023542, 143.1301023542},
                            {"nearly down", {1, 70}, 89.181544538, 269.181544538},
                            {"nearly right", {70, -1}, 359.181544538, 179.181544538}};
        for (const bool start : {false, true}) {
            for (const double zoom : {0.25, 0.5, 1.0, 4.0, 16.0}) {
                for (const Row& row : rows) {
                    QTest::addRow("%s, zoom %g, %s", start ? "start" : "end", zoom, row.name)
                        << start << zoom << row.way << (start ? row.ofStart : row.ofEnd);
                }
            }
        }
    }

    void anEndGoesWhereTheMouseGoes()
    {
        QFETCH(bool, start);
        QFETCH(double, zoom);
        QFETCH(QPointF, way);
        QFETCH(double, angle);
        // Its end lies on whole pixels, too, but for the noise of its angle.
        DesignerObject* line = addLine({300, 200}, "100", "36.86989764584402", "6");
        m_canvas->view->setZoom(zoom);
        const QPointF grabbed = start ? startOf(line) : endOf(line);
        const QPointF kept = start ? endOf(line) : startOf(line);
        const auto before = m_canvas->values();
        const bool level = way.y() == 0;
        const bool plumb = way.x() == 0;
        // Away from zoom 1 the mouse places ends on whole pixels.
        QPointF aim = kept + way;
        if (zoom != 1)
            aim = aim.toPoint();
        m_canvas->press(grabbed);
        m_canvas->move(grabbed + 0.3 * (aim - grabbed));
        m_canvas->move(aim);
        m_canvas->release(aim);

        QVERIFY(near(start ? startOf(line) : endOf(line), aim, 1e-8));
        QVERIFY(near(start ? endOf(line) : startOf(line), kept, 1e-8));
        if (level || plumb)
            QCOMPARE(CanvasFixture::value(line, "angle"), QString::number(angle));
        else
            QVERIFY(near(real(line, "angle"), angle, 1e-6));
        QCOMPARE(CanvasFixture::value(line, "width"), QStringLiteral("6"));
        if (!start)
            QCOMPARE(CanvasFixture::value(line, "position"), QStringLiteral("300,200"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Reshape line1"));
        compareUndo(before);
    }

    void anEndIsDraggedFromWithinItsReach()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "2");
        m_canvas->drag({403, 203}, {380, 240});
        QVERIFY(near(endOf(line), QPointF(380, 240), 1e-8));
        m_canvas->drag({297, 197}, {250, 150});
        QVERIFY(near(startOf(line), QPointF(250, 150), 1e-8));
        QVERIFY(near(endOf(line), QPointF(380, 240), 1e-8));
        QCOMPARE(m_canvas->steps(), 2);
    }

    void aLineIsNotDraggedShorterThan1_data()
    {
        QTest::addColumn<bool>("start");
        QTest::newRow("start") << true;
        QTest::newRow("end") << false;
    }

    void aLineIsNotDraggedShorterThan1()
    {
        QFETCH(bool, start);
        DesignerObject* line = addLine({300, 200}, "100", "0", "2");
        const auto before = m_canvas->values();
        const QPointF grabbed = start ? QPointF(300, 200) : QPointF(400, 200);
        const QPointF other = start ? QPointF(400, 200) : QPointF(300, 200);
        m_canvas->drag(grabbed, other);
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
        // It stays as it was at the last place where it could be.
        m_canvas->press(grabbed);
        m_canvas->move(other + QPointF(0, 30));
        m_canvas->move(other + QPointF(0, 0.9));
        m_canvas->release(other + QPointF(0.5, 0.5));
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("30"));
        QCOMPARE(CanvasFixture::value(line, "angle"), start ? QStringLiteral("270") : QStringLiteral("90"));
        QCOMPARE(m_canvas->steps(), 1);
        compareUndo(before);
        m_canvas->drag(start ? startOf(line) : endOf(line), other - QPointF(0, 1));
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("1"));
    }

    void withoutAChangeThereIsNoStep()
    {
        DesignerObject* line = addLine({300.1, 200.2}, "33.333333333333336", "77.7", "3");
        const auto before = m_canvas->values();
        for (const QPointF& grabbed : {startOf(line), endOf(line)}) {
            m_canvas->click(grabbed);
            m_canvas->press(grabbed);
            m_canvas->move(grabbed + QPointF(20, 30));
            QVERIFY(m_canvas->values() != before); // the outer size is live
            m_canvas->move(grabbed);
            m_canvas->release(grabbed);
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
        }
    }

    void escapeTakesADragBack()
    {
        DesignerObject* line = addLine({300.1, 200.2}, "100", "30", "20");
        const auto before = m_canvas->values();
        const QPolygonF outline = outlineOf(line);
        const QRectF frame = CanvasFixture::outerRect(line);
        for (const QPointF& grabbed : {startOf(line), endOf(line), frame.topRight(), frame.bottomLeft()}) {
            m_canvas->press(grabbed);
            m_canvas->move(grabbed + QPointF(31, -17));
            QVERIFY(outlineOf(line) != outline);
            m_canvas->key(Qt::Key_Escape);
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(outlineOf(line), outline);
            m_canvas->release(grabbed + QPointF(31, -17));
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
        }
    }

    void whileAnEndIsDraggedOnlyTheOuterSizeFollows()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "20");
        m_canvas->set(line, "keepRatio", QStringLiteral("5"));
        auto expected = m_canvas->values();
        QSignalSpy readouts(m_canvas->view.get(), &CanvasView::readoutChanged);
        m_canvas->press({400, 200});
        m_canvas->move({300, 260});
        expected.insert(QStringLiteral("line1.boundingSize"), QStringLiteral("20,60"));
        QCOMPARE(m_canvas->values(), expected);
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("x 300, y 200, 20 × 60"));
        m_canvas->release({300, 260});
        expected.insert(QStringLiteral("line1.length"), QStringLiteral("60"));
        expected.insert(QStringLiteral("line1.angle"), QStringLiteral("90"));
        // A kept ratio is that of the line as it is now.
        expected.insert(QStringLiteral("line1.keepRatio"), ValueConversion::toString(20.0 / 60));
        QCOMPARE(m_canvas->values(), expected);
    }

    void anUnselectedLineIsMovedByItsEnds()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "20");
        m_canvas->select({});
        m_canvas->drag({398, 200}, {408, 230});
        QCOMPARE(CanvasFixture::value(line, "position"), QStringLiteral("310,230"));
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("100"));
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Move line1"));
    }

    void aRotatedLineIsMovedByItsEnds_data()
    {
        QTest::addColumn<QString>("rotation");
        QTest::addColumn<bool>("rotated");
        QTest::newRow("45") << QStringLiteral("45") << true;
        QTest::newRow("-90") << QStringLiteral("-90") << true;
        QTest::newRow("720") << QStringLiteral("720") << true;
        QTest::newRow("360") << QStringLiteral("360") << false;
        QTest::newRow("-360") << QStringLiteral("-360") << false;
    }

    void aRotatedLineIsMovedByItsEnds()
    {
        QFETCH(QString, rotation);
        QFETCH(bool, rotated);
        DesignerObject* line = addLine({300, 200}, "100", "30", "20");
        m_canvas->set(line, "rotation", QStringLiteral("angle: %1; fixedPoint: Center;").arg(rotation));
        const auto before = m_canvas->values();
        // A little inside, so that the line itself is there to be moved.
        const QPointF end = endOf(line) + 0.02 * (startOf(line) - endOf(line));
        m_canvas->drag(end, end + QPointF(10, 40));
        if (rotated) {
            QCOMPARE(CanvasFixture::value(line, "position"), QStringLiteral("310,240"));
            QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("100"));
        } else {
            QCOMPARE(CanvasFixture::value(line, "position"), QStringLiteral("300,200"));
            QVERIFY(near(endOf(line), end + QPointF(10, 40), 1e-6));
            m_canvas->drag(endOf(line), {300, 250});
            QCOMPARE(CanvasFixture::value(line, "angle"), QStringLiteral("90"));
            QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("50"));
            m_canvas->session->undo();
        }
        QCOMPARE(m_canvas->steps() - (rotated ? 0 : 1), 1);
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
    }

    void inAGroupAnEndGoesWhereTheMouseGoes()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "2");
        m_canvas->addGroup({250, 150}, {line});
        line->graphicsItem()->resizeByMouse(1, {300, 260});
        QVERIFY(near(endOf(line), QPointF(300, 260)));
        line->graphicsItem()->resizeByMouse(0, {200, 260});
        QVERIFY(near(startOf(line), QPointF(200, 260)));
        QVERIFY(near(endOf(line), QPointF(300, 260)));
        QCOMPARE(CanvasFixture::graphic(line)->pos(), QPointF(-50, 110));
    }

    void endsComeBeforeTheFrame()
    {
        DesignerObject* line = addLine({300, 200}, "140", "45", "2");
        const QRectF frame = CanvasFixture::outerRect(line);
        m_canvas->drag(frame.bottomRight(), frame.bottomRight() + QPointF(20, 0));
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Reshape line1"));
        m_canvas->session->undo();
        m_canvas->drag(frame.topLeft(), frame.topLeft() + QPointF(20, 0));
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Reshape line1"));
        m_canvas->session->undo();
        m_canvas->drag(frame.topRight(), frame.topRight() + QPointF(20, 0));
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Resize line1"));
        m_canvas->session->undo();
        // The middle of the line is no handle at all.
        m_canvas->drag(frame.center(), frame.center() + QPointF(20, 0));
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Move line1"));
    }

    void theMouseShowsWhatItIsOver()
    {
        DesignerObject* line = addLine({300, 200}, "140", "45", "20");
        const QRectF frame = CanvasFixture::outerRect(line);
        const auto toolTipAt = [&](const QPointF& scenePos) {
            m_canvas->move(scenePos);
            return CanvasFixture::graphic(line)->toolTip();
        };
        QCOMPARE(toolTipAt(startOf(line)), QStringLiteral("This is the start point."));
        QCOMPARE(toolTipAt(endOf(line)), QStringLiteral("This is the end point."));
        QCOMPARE(toolTipAt(frame.topRight()), QStringLiteral("Drag this point to resize"));
        QCOMPARE(toolTipAt({frame.center().x(), frame.top()}), QStringLiteral("Drag this line to resize"));
        QCOMPARE(toolTipAt(frame.center()), QStringLiteral("Line: line1"));
        m_canvas->set(line, "rotation", QStringLiteral("angle: 10; fixedPoint: Center;"));
        QCOMPARE(toolTipAt(startOf(line)), QStringLiteral("Line: line1"));
    }

    void movingALineKeepsTextsThatDoNotConvert()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "20");
        for (const char* id : {"length", "angle", "width", "color", "keepRatio"})
            m_canvas->set(line, id, QStringLiteral("broken"));
        auto expected = m_canvas->values();
        m_canvas->drag({350, 200}, {360, 210});
        expected.insert(QStringLiteral("line1.position"), QStringLiteral("310,210"));
        QCOMPARE(m_canvas->values(), expected);
        // A drag of an end gives the line values again.
        m_canvas->drag({410, 210}, {310, 260});
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("50"));
        QCOMPARE(CanvasFixture::value(line, "angle"), QStringLiteral("90"));
        QCOMPARE(CanvasFixture::value(line, "width"), QStringLiteral("broken"));
        QCOMPARE(CanvasFixture::value(line, "keepRatio"), QStringLiteral("broken"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), expected);
    }

    void undoingAndRedoingAllGivesEveryValueBack()
    {
        const bool held = rc::check("lines under the mouse and in the sheet", [this] {
            clear();
            for (int i = 0; i < 3; ++i) {
                DesignerObject* line =
                    canvas().add("Line", {{QStringLiteral("position"), coordinates()},
                                          {QStringLiteral("length"), QString::number(anyNumber(1, 300))},
                                          {QStringLiteral("angle"), QString::number(anyNumber(0, 36000) / 100.0)},
                                          {QStringLiteral("width"), QString::number(anyNumber(1, 40))}});
                if (i == 1)
                    m_canvas->set(line, "keepRatio", QStringLiteral("2"));
                if (i == 2)
                    m_canvas->set(line, "rotation", QStringLiteral("angle: -360; fixedPoint: Left;"));
            }
            const QList<DesignerObject*> lines = m_canvas->scene()->selectableElements();
            QList<QMap<QString, QString>> states = {m_canvas->values()};
            const int count = anyNumber(1, 30);
            for (int i = 0; i < count; ++i) {
                const int before = m_canvas->stack()->index();
                act(lines.at(anyNumber(0, 3)));
                const int steps = m_canvas->stack()->index() - before;
                RC_ASSERT(steps == 0 || steps == 1);
                if (steps == 1)
                    states.append(m_canvas->values());
                else
                    RC_ASSERT(m_canvas->values() == states.last());
                for (const DesignerObject* line : lines)
                    RC_ASSERT(outlineOf(line) == outlineOfValues(line));
            }
            const int last = m_canvas->stack()->index();
            RC_ASSERT(states.size() == last + 1);
            RC_CLASSIFY(last >= 5, "five steps or more");
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
    /// The same as outlineOf(), made of the values of the element alone.
    static QPolygonF outlineOfValues(const DesignerObject* line)
    {
        const double angle = ValueConversion::toRotationInfo(CanvasFixture::value(line, "rotation")).angle();
        QPolygonF outline = lineOutline(real(line, "length"), real(line, "angle"), real(line, "width"));
        outline.append(outline.first());
        const QPointF position = ValueConversion::toPoint(CanvasFixture::value(line, "position"));
        return rotationAbout({0, 0}, angle).map(outline).translated(position);
    }

    static QString coordinates() { return QStringLiteral("%1,%2").arg(anyNumber(0, 800)).arg(anyNumber(0, 480)); }

    /// Does something with a line, within a property test.
    void act(DesignerObject* line)
    {
        EditSession* session = m_canvas->session.get();
        const QPointF to(anyNumber(-50, 850), anyNumber(-50, 530));
        const auto drag = [&](const QPointF& from) {
            m_canvas->select({line});
            m_canvas->press(from);
            m_canvas->move(0.5 * (from + to));
            m_canvas->release(to);
        };
        switch (anyNumber(0, 12)) {
        case 0:
        case 1:
            drag(startOf(line));
            break;
        case 2:
        case 3:
            drag(endOf(line));
            break;
        case 4:
        case 5:
        case 6:
            drag(handlePoint(CanvasFixture::outerRect(line), Handles[anyNumber(0, 8)]));
            break;
        case 7:
            drag(0.5 * (startOf(line) + endOf(line)));
            break;
        case 8:
            session->setProperty(line, QStringLiteral("boundingSize"),
                                 QStringLiteral("%1,%2").arg(anyNumber(1, 400)).arg(anyNumber(1, 300)));
            break;
        case 9: {
            // One dimension, as the sheet would edit it.
            QSizeF size = ValueConversion::toSize(CanvasFixture::value(line, "boundingSize"));
            size.setWidth(anyNumber(1, 400));
            session->setProperty(line, QStringLiteral("boundingSize"), ValueConversion::toString(size));
            break;
        }
        case 10: {
            const char* id = *rc::gen::element("length", "angle", "width");
            session->setProperty(line, QString::fromLatin1(id), QString::number(anyNumber(1, 100)));
            break;
        }
        default:
            session->setProperty(line, QStringLiteral("keepRatio"),
                                 *rc::gen::element(QStringLiteral("0"), QStringLiteral("1.3")));
        }
    }
};

QTEST_MAIN(tst_LineGestures)
#include "tst_LineGestures.moc"
