#include "tests/lines/LineCanvas.h"

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr int NoPoint = -1;
constexpr int NoHandle = 4;
constexpr QPointF Start(200, 100); // of every line

} // namespace

/// Where on the canvas a line has its handles, and what they say.
class tst_LineHandles : public QObject, private LineCanvas
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (m_canvas)
            clear();
    }

    void cleanupTestCase() { m_canvas.reset(); }

    void anEndIsWithinItsDistanceInEveryDirection_data()
    {
        QTest::addColumn<double>("zoom");
        for (const double zoom : {0.25, 1.0, 4.0, 16.0})
            QTest::addRow("zoom %g", zoom) << zoom;
    }

    void anEndIsWithinItsDistanceInEveryDirection()
    {
        QFETCH(double, zoom);
        DesignerObject* line = addLine(Start, "100", "30", "2");
        canvas().view->setZoom(zoom);
        const double reach = 5 / zoom;
        QCOMPARE(line->graphicsItem()->detectionWidth(), reach);
        const QPointF start = Start;
        const QPointF end = start + QPointF(100 * std::cos(M_PI / 6), 100 * std::sin(M_PI / 6));
        for (int degrees = 0; degrees < 360; degrees += 15) {
            const QPointF way(std::cos(degrees * M_PI / 180), std::sin(degrees * M_PI / 180));
            bool handled = false;
            QCOMPARE(line->graphicsItem()->getResizePointHandle(start + 0.99 * reach * way, &handled), 0);
            QVERIFY(handled);
            QCOMPARE(toolTip(line), QStringLiteral("This is the start point."));
            QCOMPARE(line->graphicsItem()->getResizePointHandle(end + 0.99 * reach * way, &handled), 1);
            QVERIFY(handled);
            QCOMPARE(toolTip(line), QStringLiteral("This is the end point."));
            QCOMPARE(line->graphicsItem()->getResizePointHandle(start + 1.01 * reach * way, &handled), NoPoint);
            QVERIFY(!handled);
            QCOMPARE(toolTip(line), QStringLiteral("Line: line1"));
            QCOMPARE(line->graphicsItem()->getResizePointHandle(end + 1.01 * reach * way, &handled), NoPoint);
            QVERIFY(!handled);
        }
    }

    void whereBothEndsAreNearTheStartWins()
    {
        DesignerObject* line = addLine(Start, "2", "0", "2");
        bool handled = false;
        QCOMPARE(line->graphicsItem()->getResizePointHandle({203, 100}, &handled), 0);
        QCOMPARE(line->graphicsItem()->getResizePointHandle({206, 100}, &handled), 1);
    }

    void theHandleToolTipsAreThoseOfASelectedLine()
    {
        DesignerObject* line = addLine(Start, "100", "0", "20");
        bool handled = false;
        (void)line->graphicsItem()->getResizePointHandle({200, 100}, &handled);
        QCOMPARE(toolTip(line), QStringLiteral("This is the start point."));
        // A handle's tooltip is not that of a line that is no longer selected.
        canvas().select({});
        QCOMPARE(line->graphicsItem()->getResizePointHandle({200, 100}, &handled), 0);
        QCOMPARE(toolTip(line), QStringLiteral("Line: line1"));
        QCOMPARE(line->graphicsItem()->getResizeHandle({200, 90}, &handled), 0);
        QCOMPARE(toolTip(line), QStringLiteral("Line: line1"));
        canvas().select({line});
        QCOMPARE(line->graphicsItem()->getResizeHandle({200, 90}, &handled), 0);
        QCOMPARE(toolTip(line), QStringLiteral("Drag this point to resize"));
        QCOMPARE(line->graphicsItem()->getResizeHandle({250, 90}, &handled), 1);
        QCOMPARE(toolTip(line), QStringLiteral("Drag this line to resize"));
        QCOMPARE(line->graphicsItem()->getResizeHandle({250, 100}, &handled), NoHandle);
        QCOMPARE(toolTip(line), QStringLiteral("Line: line1"));
    }

    void aRotatedLineHasNoHandlesButAWholeTurnIsNone_data()
    {
        QTest::addColumn<QString>("angle");
        QTest::addColumn<bool>("rotated");
        for (const char* angle : {"45", "-45", "0.1", "180", "720", "359.99"})
            QTest::newRow(angle) << QString::fromLatin1(angle) << true;
        for (const char* angle : {"0", "360", "-360"})
            QTest::newRow(angle) << QString::fromLatin1(angle) << false;
    }

    void aRotatedLineHasNoHandlesButAWholeTurnIsNone()
    {
        QFETCH(QString, angle);
        QFETCH(bool, rotated);
        DesignerObject* line = addLine(Start, "100", "30", "2");
        canvas().set(line, "rotation", QStringLiteral("angle: %1; fixedPoint: Center;").arg(angle));
        GraphicsItem* item = line->graphicsItem();
        const QPointF end(100 * std::cos(M_PI / 6), 100 * std::sin(M_PI / 6));
        bool handled = false;
        QCOMPARE(item->getResizePointHandle({200, 100}, &handled), rotated ? NoPoint : 0);
        QVERIFY(handled);
        QCOMPARE(toolTip(line), rotated ? QStringLiteral("Line: line1") : QStringLiteral("This is the start point."));
        QCOMPARE(item->getResizePointHandle(item->graphic()->mapToScene(end), &handled), rotated ? NoPoint : 1);
        QVERIFY(handled);
        QCOMPARE(item->getResizePointHandle({20, 20}, &handled), NoPoint);
        QCOMPARE(handled, rotated);
        const QRectF frame = item->outerRect();
        QCOMPARE(item->getResizeHandle(item->graphic()->mapToScene(frame.topRight()), &handled),
                 rotated ? NoHandle : 2);
        QVERIFY(handled);
        QCOMPARE(item->hasFrameHandles(), !rotated);
        QCOMPARE(item->pointHandles().size(), rotated ? 0 : 2);
    }

    void theFrameLeavesThePlacesOfTheEndsAlone_data()
    {
        QTest::addColumn<double>("zoom");
        for (const double zoom : {0.25, 1.0, 4.0, 16.0})
            QTest::addRow("zoom %g", zoom) << zoom;
    }

    void theFrameLeavesThePlacesOfTheEndsAlone()
    {
        QFETCH(double, zoom);
        // Its outline is 204.9 x 120.4 pixels large, with ends that lie within the frame.
        DesignerObject* line = addLine(Start, "220", "30", "12");
        canvas().view->setZoom(zoom);
        GraphicsItem* item = line->graphicsItem();
        const QPointF start = Start;
        const QPointF end = start + QPointF(220 * std::cos(M_PI / 6), 220 * std::sin(M_PI / 6));
        const QRectF frame = CanvasFixture::outerRect(line);
        // Five pixels of the design, however large they are on the screen.
        for (int degrees = 0; degrees < 360; degrees += 15) {
            const QPointF way(std::cos(degrees * M_PI / 180), std::sin(degrees * M_PI / 180));
            for (const QPointF& place : {start, end}) {
                bool handled = true;
                QCOMPARE(item->getResizeHandle(place + 4.99 * way, &handled), NoHandle);
                QVERIFY(!handled);
            }
        }
        bool handled = false;
        QCOMPARE(item->getResizeHandle(frame.topRight(), &handled), 2);
        QVERIFY(handled);
        QCOMPARE(item->getResizeHandle(frame.bottomLeft(), &handled), 6);
        QCOMPARE(item->getResizeHandle({frame.center().x(), frame.top()}, &handled), 1);
        QCOMPARE(item->getResizeHandle({frame.center().x(), frame.bottom()}, &handled), 7);
        QCOMPARE(item->getResizeHandle({frame.left(), frame.center().y()}, &handled), 3);
        QCOMPARE(item->getResizeHandle({frame.right(), frame.center().y()}, &handled), 5);
        QCOMPARE(item->getResizeHandle(frame.center(), &handled), NoHandle);
        QVERIFY(handled);
        QCOMPARE(toolTip(line), QStringLiteral("Line: line1"));
        // Its top left corner is 6.6 pixels away from the start, beyond the five.
        QCOMPARE(item->getResizeHandle(frame.topLeft(), &handled), 0);
    }

    void aLineThatIsLowOnTheScreenHasNoFrameHandles()
    {
        DesignerObject* line = addLine(Start, "100", "0", "10");
        GraphicsItem* item = line->graphicsItem();
        bool handled = false;
        QVERIFY(!item->hasFrameHandles());
        QCOMPARE(item->getResizeHandle({250, 95}, &handled), NoHandle);
        QVERIFY(handled);
        // Not even where its ends are.
        QCOMPARE(item->getResizeHandle({200, 100}, &handled), NoHandle);
        QVERIFY(handled);
        QCOMPARE(toolTip(line), QStringLiteral("Line: line1"));
        canvas().set(line, "width", QStringLiteral("11"));
        QVERIFY(item->hasFrameHandles());
        QCOMPARE(item->getResizeHandle({250, 94.5}, &handled), 1);
        canvas().view->setZoom(0.5);
        QVERIFY(!item->hasFrameHandles());
        canvas().set(line, "width", QStringLiteral("2"));
        canvas().view->setZoom(5.1);
        QVERIFY(item->hasFrameHandles());
        // The ends can be dragged at any size.
        canvas().view->setZoom(0.25);
        QCOMPARE(item->getResizePointHandle({200, 100}, &handled), 0);
        QCOMPARE(item->pointHandles(), QVector<QPointF>({QPointF(0, 0), QPointF(100, 0)}));
    }

    void frameHandlesLeaveTheEndsFree()
    {
        DesignerObject* line = addLine(Start, "100", "45", "2");
        GraphicsItem* item = line->graphicsItem();
        QVERIFY(item->hasFrameHandles());
        for (const int end : {0, 8})
            QVERIFY(!item->showsFrameHandle(end));
        for (const int elsewhere : {1, 2, 3, 5, 6, 7})
            QVERIFY(item->showsFrameHandle(elsewhere));
        // Far in, the corner and the end are far apart.
        canvas().set(line, "width", QStringLiteral("20"));
        canvas().view->setZoom(4);
        QVERIFY(item->showsFrameHandle(0));
    }
};

QTEST_MAIN(tst_LineHandles)
#include "tst_LineHandles.moc"
