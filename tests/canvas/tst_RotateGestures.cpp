#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"
#include "host/common/TransformOrigin.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::CanvasFixture;

namespace {

QPointF turned(const QPointF& point, const QPointF& center, double angle)
{
    return QTransform().translate(center.x(), center.y()).rotate(angle).translate(-center.x(), -center.y()).map(point);
}

bool near(const QPointF& a, const QPointF& b)
{
    return std::abs(a.x() - b.x()) <= 1e-9 && std::abs(a.y() - b.y()) <= 1e-9;
}

} // namespace

/// Turning an element by the knob above its frame: every test runs with each kind of element.
class tst_RotateGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QByteArray>("element");
        const QByteArrayList elements = CanvasFixture::frameElements();
        for (const QByteArray& element : elements)
            QTest::newRow(element.constData()) << element;
    }

    void init()
    {
        QFETCH_GLOBAL(QByteArray, element);
        m_canvas = std::make_unique<CanvasFixture>();
        m_object = m_canvas->addShape(element, QRectF(200, 200, 120, 90), 3);
        m_canvas->select({m_object});
    }

    void cleanup() { m_canvas.reset(); }

    void theKnobTurnsAboutTheFixedPoint_data()
    {
        QTest::addColumn<QString>("fixedPoint");
        for (const QString& name : RotationInfo::fixedPointNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    void theKnobTurnsAboutTheFixedPoint()
    {
        QFETCH(QString, fixedPoint);
        m_canvas->set(m_object, "rotation", QStringLiteral("angle: 0; fixedPoint: %1;").arg(fixedPoint));
        const auto before = m_canvas->values();
        const QPointF center = fixedPlace();
        for (const double angle : {90.0, 37.0, 271.0, 180.0, 359.0}) {
            const QPointF grab = knob();
            m_canvas->press(grab);
            for (const double part : {0.1, 0.4, 0.8, 1.0}) {
                m_canvas->move(turned(grab, center, part * angle));
                QCOMPARE(m_canvas->graphic(m_object)->rotation(), std::round(part * angle));
                QVERIFY(near(m_canvas->graphic(m_object)->mapToScene(fixedPointOfContent()), center));
                QCOMPARE(m_canvas->values(), before);
            }
            m_canvas->release(turned(grab, center, angle));
            auto expected = before;
            expected.insert(m_object->getIdName() + QStringLiteral(".rotation"),
                            QStringLiteral("angle: %1; fixedPoint: %2;").arg(angle).arg(fixedPoint));
            QCOMPARE(m_canvas->values(), expected);
            QVERIFY(near(m_canvas->graphic(m_object)->mapToScene(fixedPointOfContent()), center));
            QCOMPARE(m_canvas->steps(), 1);
            QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Rotate ") + m_object->getIdName());

            m_canvas->session->undo();
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->graphic(m_object)->rotation(), 0.0);
            m_canvas->session->redo();
            QCOMPARE(m_canvas->values(), expected);
            QCOMPARE(m_canvas->graphic(m_object)->rotation(), angle);
            m_canvas->session->undo();
        }
    }

    void shiftGoesInStepsOfFifteenDegrees_data() { theKnobTurnsAboutTheFixedPoint_data(); }

    void shiftGoesInStepsOfFifteenDegrees()
    {
        QFETCH(QString, fixedPoint);
        m_canvas->set(m_object, "rotation", QStringLiteral("angle: 0; fixedPoint: %1;").arg(fixedPoint));
        const QPointF center = fixedPlace();
        const QPointF grab = knob();
        m_canvas->press(grab, Qt::ShiftModifier);
        for (int angle = 1; angle < 360; angle += 7) {
            m_canvas->move(turned(grab, center, angle), Qt::ShiftModifier);
            QCOMPARE(int(m_canvas->graphic(m_object)->rotation()), (angle + 7) / 15 * 15 % 360);
        }
        m_canvas->release(turned(grab, center, 38), Qt::ShiftModifier);
        QCOMPARE(rotation(), QStringLiteral("angle: 45; fixedPoint: %1;").arg(fixedPoint));
        QCOMPARE(m_canvas->steps(), 1);
    }

    void shiftMeetsTheStepsAlsoFromAnAngleBetweenThem()
    {
        m_canvas->set(m_object, "rotation", QStringLiteral("angle: 20; fixedPoint: Center;"));
        m_canvas->drag(knob(), turned(knob(), fixedPlace(), 21), Qt::ShiftModifier);
        QCOMPARE(rotation(), QStringLiteral("angle: 45; fixedPoint: Center;"));
    }

    void theKnobTurnsWithTheFrameAndAnglesStayWithinOneTurn()
    {
        const QPointF center = fixedPlace();
        turnBy(270);
        QCOMPARE(rotation(), QStringLiteral("angle: 270; fixedPoint: Center;"));
        turnBy(90);
        QCOMPARE(rotation(), QStringLiteral("angle: 0; fixedPoint: Center;"));
        turnBy(-40);
        QCOMPARE(rotation(), QStringLiteral("angle: 320; fixedPoint: Center;"));
        QCOMPARE(m_canvas->steps(), 3);
        QVERIFY(near(fixedPlace(), center));
    }

    void theKnobIsGrabbedAtEveryZoom()
    {
        for (const double zoom : {0.25, 0.5, 1.3, 4.0, 16.0}) {
            m_canvas->view->setZoom(zoom);
            turnBy(60);
            QCOMPARE(rotation(), QStringLiteral("angle: 60; fixedPoint: Center;"));
            m_canvas->session->undo();
        }
    }

    void theKnobIsSeen()
    {
        for (const double angle : {0.0, 90.0, 200.0}) {
            m_canvas->set(m_object, "rotation", QStringLiteral("angle: %1; fixedPoint: Center;").arg(angle));
            m_canvas->select({});
            const QImage without = m_canvas->view->grab().toImage();
            m_canvas->select({m_object});
            const QImage with = m_canvas->view->grab().toImage();
            const QPoint at = m_canvas->view->viewportTransform().map(knob()).toPoint();
            int changed = 0;
            for (int dy = -7; dy <= 7; ++dy) {
                for (int dx = -7; dx <= 7; ++dx)
                    changed += with.pixel(at + QPoint(dx, dy)) != without.pixel(at + QPoint(dx, dy));
            }
            // A ring about a disc of 9 pixels, and the end of its stem, on a white screen.
            QVERIFY2(changed > 20 && changed < 120, qPrintable(QString::number(changed)));
            QCOMPARE(with.pixelColor(at), QColor(Qt::white));
            m_canvas->move(knob());
            QCOMPARE(m_canvas->view->viewport()->cursor().shape(), Qt::PointingHandCursor);
            QHelpEvent help(QEvent::ToolTip, at, m_canvas->view->viewport()->mapToGlobal(at));
            QApplication::sendEvent(m_canvas->view->viewport(), &help);
            QCOMPARE(QToolTip::text(), QStringLiteral("Drag this point to rotate"));
        }
    }

    void backAtTheStartNothingHasChanged()
    {
        m_canvas->set(m_object, "rotation", QStringLiteral("angle: 0.4; fixedPoint: Center;"));
        const auto before = m_canvas->values();
        const QPointF grab = knob();
        m_canvas->press(grab);
        m_canvas->move(turned(grab, fixedPlace(), 90));
        m_canvas->move(grab);
        m_canvas->release(grab);
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void escapeTurnsBack()
    {
        const auto before = m_canvas->values();
        const QPointF there = turned(knob(), fixedPlace(), 90);
        m_canvas->press(knob());
        m_canvas->move(there);
        QCOMPARE(m_canvas->graphic(m_object)->rotation(), 90.0);
        m_canvas->key(Qt::Key_Escape);
        QCOMPARE(m_canvas->graphic(m_object)->rotation(), 0.0);
        m_canvas->release(there);
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void theReadoutShowsTheAngle()
    {
        QSignalSpy readouts(m_canvas->view.get(), &CanvasView::readoutChanged);
        const QPointF there = turned(knob(), fixedPlace(), 90);
        m_canvas->press(knob());
        m_canvas->move(there);
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("90°"));
        m_canvas->release(there);
    }

    void whatCannotBeTurnedHasNoKnob()
    {
        m_object->graphicsItem()->setRotatable(false);
        m_canvas->drag(knob(), turned(knob(), fixedPlace(), 40));
        QVERIFY(rotation().startsWith(QStringLiteral("angle: 0;")));
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aRotatedElementIsMovedAndStaysTurned()
    {
        turnBy(50);
        const QPointF middle =
            m_canvas->graphic(m_object)->mapToScene(m_canvas->graphic(m_object)->boundingRect().center());
        const QPointF center = fixedPlace();
        auto expected = m_canvas->values();
        m_canvas->drag(middle, middle + QPointF(31, -17));
        expected.insert(m_object->getIdName() + QStringLiteral(".position"), QStringLiteral("231,183"));
        QCOMPARE(m_canvas->values(), expected);
        QVERIFY(near(m_canvas->graphic(m_object)->mapToScene(fixedPointOfContent()), center + QPointF(31, -17)));
        // And turned on from there.
        turnBy(20);
        QCOMPARE(rotation(), QStringLiteral("angle: 70; fixedPoint: Center;"));
        QCOMPARE(m_canvas->steps(), 3);
    }

private:
    QString rotation() const { return CanvasFixture::value(m_object, "rotation"); }

    void turnBy(double angle)
    {
        const QPointF grab = knob();
        m_canvas->drag(grab, turned(grab, fixedPlace(), angle));
    }

    // Where things are, from the values alone.

    QPointF position() const { return ValueConversion::toPoint(CanvasFixture::value(m_object, "position")); }

    /// The fixed point of the rotation on the content, in the element's coordinates.
    QPointF fixedPointOfContent() const
    {
        QRectF content;
        if (m_object->className() == QLatin1String("Polygon"))
            content = PaintHelper::getPolygonBoundingRect(
                ValueConversion::toInt(CanvasFixture::value(m_object, "edges")),
                ValueConversion::toReal(CanvasFixture::value(m_object, "edgeLength")), 0);
        else
            content = QRectF(QPointF(0, 0), ValueConversion::toSize(CanvasFixture::value(m_object, "size")));
        const RotationInfo info = ValueConversion::toRotationInfo(rotation());
        return fixedPointPosition(transformOriginFromName(info.fixedPoint()), content);
    }

    /// The same on the scene.
    QPointF fixedPlace() const { return position() + fixedPointOfContent(); }

    /// The middle of the knob on the scene: 22 screen pixels above the frame, turned with it.
    QPointF knob() const
    {
        const QRectF frame = CanvasFixture::outerRect(m_object);
        const QPointF above(frame.center().x(), frame.top() - 22 / m_canvas->view->zoom());
        return turned(above, fixedPlace(), ValueConversion::toRotationInfo(rotation()).angle());
    }

    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_object = nullptr;
};

QTEST_MAIN(tst_RotateGestures)
#include "tst_RotateGestures.moc"
