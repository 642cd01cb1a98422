#include "tests/canvas/CanvasFixture.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Turning an element by the knob above its frame.
class tst_RotateGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_rectangle = m_canvas->addRectangle(QRectF(200, 200, 100, 100));
        m_canvas->select({m_rectangle});
    }

    void cleanup() { m_canvas.reset(); }

    void theKnobTurnsAboutTheCentre()
    {
        m_canvas->drag({250, 178}, {350, 250});
        QCOMPARE(m_canvas->value(m_rectangle, "rotation"), QStringLiteral("angle: 90; fixedPoint: Center;"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Rotate rectangle1"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->graphic(m_rectangle)->rotation(), 0.0);
    }

    void theFixedPointIsKept()
    {
        m_canvas->set(m_rectangle, "rotation", QStringLiteral("angle: 0; fixedPoint: BottomLeft;"));
        m_canvas->press({250, 178});
        m_canvas->move({250 + 72, 250}); // from (50, -122) to (122, -50) about the corner
        QCOMPARE(m_canvas->graphic(m_rectangle)->mapToScene(QPointF(0, 100)), QPointF(200, 300));
        m_canvas->release({250 + 72, 250});
        QVERIFY(m_canvas->value(m_rectangle, "rotation").endsWith(QStringLiteral("fixedPoint: BottomLeft;")));
    }

    void shiftGoesInStepsOfFifteenDegrees()
    {
        m_canvas->drag({250, 178}, {300, 180}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->value(m_rectangle, "rotation"), QStringLiteral("angle: 30; fixedPoint: Center;"));
    }

    void anglesStayWithinOneTurn()
    {
        m_canvas->drag({250, 178}, {178, 250});
        QCOMPARE(m_canvas->value(m_rectangle, "rotation"), QStringLiteral("angle: 270; fixedPoint: Center;"));
        // The knob has turned with the frame.
        m_canvas->drag({178, 250}, {250, 178});
        QCOMPARE(m_canvas->value(m_rectangle, "rotation"), QStringLiteral("angle: 0; fixedPoint: Center;"));
    }

    void backAtTheStartNothingHasChanged()
    {
        m_canvas->set(m_rectangle, "rotation", QStringLiteral("angle: 0.4; fixedPoint: Center;"));
        m_canvas->press({250, 178});
        m_canvas->move({350, 250});
        m_canvas->move({250, 178});
        m_canvas->release({250, 178});
        QCOMPARE(m_canvas->value(m_rectangle, "rotation"), QStringLiteral("angle: 0.4; fixedPoint: Center;"));
        QCOMPARE(m_canvas->steps(), 0);
    }

    void escapeTurnsBack()
    {
        m_canvas->press({250, 178});
        m_canvas->move({350, 250});
        QCOMPARE(m_canvas->graphic(m_rectangle)->rotation(), 90.0);
        m_canvas->key(Qt::Key_Escape);
        QCOMPARE(m_canvas->graphic(m_rectangle)->rotation(), 0.0);
        m_canvas->release({350, 250});
        QCOMPARE(m_canvas->steps(), 0);
    }

    void theReadoutShowsTheAngle()
    {
        QSignalSpy readouts(m_canvas->view.get(), &CanvasView::readoutChanged);
        m_canvas->press({250, 178});
        m_canvas->move({350, 250});
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("90°"));
        m_canvas->release({350, 250});
    }

    void whatCannotBeTurnedHasNoKnob()
    {
        m_canvas->graphic(m_rectangle);
        m_rectangle->graphicsItem()->setRotatable(false);
        m_canvas->drag({250, 178}, {350, 178});
        QVERIFY(m_canvas->value(m_rectangle, "rotation").startsWith(QStringLiteral("angle: 0;")));
        QCOMPARE(m_canvas->steps(), 0);
    }

private:
    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_rectangle = nullptr;
};

QTEST_MAIN(tst_RotateGestures)
#include "tst_RotateGestures.moc"
