#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include <QPicture>
#include <QtTest>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// How handles look: judged by the pixels of the view.
class tst_SelectionHandles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlesHaveTheSameSizeAtEveryZoom_data()
    {
        QTest::addColumn<double>("zoom");
        for (const double zoom : {0.25, 0.5, 1.0, 3.0, 8.0, 16.0})
            QTest::addRow("%g", zoom) << zoom;
    }

    void handlesHaveTheSameSizeAtEveryZoom()
    {
        QFETCH(double, zoom);
        CanvasFixture canvas;
        // As large on the screen as ever, so that all handles are apart and in view.
        DesignerObject* rectangle = canvas.addRectangle(QRectF(200, 150, 200 / zoom, 160 / zoom));
        canvas.view->setZoom(zoom);
        canvas.view->centerOn(canvas.graphic(rectangle));
        const QImage without = canvas.view->grab().toImage();
        canvas.select({rectangle});
        const QImage with = canvas.view->grab().toImage();
        const QRectF frame = canvas.view->viewportTransform().mapRect(canvas.outerRect(rectangle));
        for (const QPointF& corner : {frame.topLeft(), frame.topRight(), frame.bottomLeft(), frame.bottomRight()}) {
            const QRect changed = changedAbout(without, with, corner.toPoint());
            QVERIFY2(changed.width() >= 9 && changed.width() <= 11, qPrintable(QString::number(changed.width())));
            QVERIFY(changed.height() >= 9 && changed.height() <= 11);
            QVERIFY((QRectF(changed).center() - corner).manhattanLength() <= 2);
        }
    }

    void handlesShowOnAnyGround_data()
    {
        QTest::addColumn<QString>("color");
        for (const char* color : {"#ffffff", "#000000", "#808080", "#ff0000", "#181818"})
            QTest::newRow(color) << QString::fromLatin1(color);
    }

    void handlesShowOnAnyGround()
    {
        QFETCH(QString, color);
        CanvasFixture canvas;
        canvas.set(canvas.screen, "color", color);
        DesignerObject* rectangle = canvas.addRectangle(QRectF(200, 150, 200, 160));
        canvas.set(rectangle, "color", color);
        canvas.select({rectangle});
        const QImage image = canvas.view->grab().toImage();
        const QPoint corner = canvas.view->viewportTransform().map(QPointF(200, 150)).toPoint();
        int strongest = 0;
        for (int dx = -6; dx <= 6; ++dx) {
            const QColor pixel = image.pixelColor(corner + QPoint(dx, 0));
            strongest = qMax(strongest, qAbs(qGray(pixel.rgb()) - qGray(QColor(color).rgb())));
        }
        QVERIFY(strongest > 90);
    }

    void handlesFollowUndoWithoutLeavingAnythingBehind()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(200, 150, 200, 160));
        canvas.select({rectangle});
        canvas.view->viewport()->update();
        QApplication::processEvents();
        canvas.drag({300, 230}, {360, 260});
        canvas.session->undo();
        // What has been painted bit by bit is what a fresh picture shows.
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
        QCOMPARE(
            canvas.view->screen()->grabWindow(canvas.view->winId()).toImage().convertToFormat(QImage::Format_RGB32),
            canvas.view->grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

    void aTooSmallElementShowsOnlyTheKnob()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(200, 150, 8, 8));
        const QImage without = canvas.view->grab().toImage();
        canvas.select({rectangle});
        const QImage with = canvas.view->grab().toImage();
        const QPoint corner = canvas.view->viewportTransform().map(QPointF(208, 158)).toPoint();
        QVERIFY(without.pixelColor(corner + QPoint(3, 3)) == with.pixelColor(corner + QPoint(3, 3)));
        QCOMPARE(changedAbout(without, with, corner + QPoint(-4, -30)).isEmpty(), false);
    }

    void aRotatedElementShowsOnlyTheKnob_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<int>("angle");
        const QByteArrayList elements = CanvasFixture::frameElements();
        for (const QByteArray& element : elements) {
            for (const int angle : {0, 360, -360, 90, 30, -75})
                QTest::addRow("%s, %d degrees", element.constData(), angle) << element << angle;
        }
    }

    void aRotatedElementShowsOnlyTheKnob()
    {
        QFETCH(QByteArray, element);
        QFETCH(int, angle);
        CanvasFixture canvas;
        DesignerObject* object = canvas.addShape(element, QRectF(200, 150, 120, 90));
        canvas.set(object, "rotation", QStringLiteral("angle: %1; fixedPoint: Center;").arg(angle));
        const QImage without = canvas.view->grab().toImage();
        canvas.select({object});
        const QImage with = canvas.view->grab().toImage();
        const QGraphicsItem* item = canvas.graphic(object);
        const QTransform toView = item->sceneTransform() * canvas.view->viewportTransform();
        const QRectF frame = item->boundingRect();
        const auto changedAt = [&](const QPointF& itemPoint) {
            const QPoint at = toView.map(itemPoint).toPoint();
            return with.pixel(at) != without.pixel(at);
        };
        // Four pixels off the frame there is nothing but a handle.
        const bool handles = angle % 360 == 0;
        QCOMPARE(changedAt(frame.topLeft() - QPointF(4, 4)), handles);
        QCOMPARE(changedAt(frame.bottomRight() + QPointF(4, 4)), handles);
        QCOMPARE(changedAt({frame.left() - 4, frame.center().y()}), handles);
        QCOMPARE(changedAt({frame.center().x(), frame.bottom() + 4}), handles);
        const QPoint knob = toView.map(QPointF(frame.center().x(), frame.top() - 22)).toPoint();
        QVERIFY(!changedAbout(without, with, knob).isEmpty());
    }

    void pointHandlesAreShown()
    {
        CanvasFixture canvas;
        DesignerObject* points =
            canvas.add("PointElement", {{QStringLiteral("position"), QStringLiteral("200,150")},
                                        {QStringLiteral("points"), QStringLiteral("0,0 100,0 130,60 0,80")}});
        canvas.select({});
        const QImage without = canvas.view->grab().toImage();
        canvas.select({points});
        const QImage with = canvas.view->grab().toImage();
        const QPoint point = canvas.view->viewportTransform().map(QPointF(300, 150)).toPoint();
        const QRect changed = changedAbout(without, with, point);
        QVERIFY(changed.width() >= 10 && changed.width() <= 20);
    }

    void everyDotOfAFewPointsIsShownHoweverCloseTheyLie()
    {
        CanvasFixture canvas;
        canvas.add("IrregularPolygon", {{QStringLiteral("position"), QStringLiteral("200,150")},
                                        {QStringLiteral("pointList"), QStringLiteral("0,0 100,0 109,0 109,60 0,80")}});
        const QImage image = canvas.view->grab().toImage();
        for (const QPointF& point : {QPointF(300, 150), QPointF(309, 150), QPointF(309, 210)})
            QCOMPARE(image.pixelColor(canvas.view->viewportTransform().map(point).toPoint()), accent(canvas));
    }

    void dotsOfManyPointsStandApart()
    {
        CanvasFixture canvas;
        const double radius = 150;
        canvas.add("IrregularPolygon", {{QStringLiteral("position"), QStringLiteral("400,240")},
                                        {QStringLiteral("pointList"), circle(100000, radius)}});
        const QImage image = canvas.view->grab().toImage();
        const QPointF middle = canvas.view->viewportTransform().map(QPointF(400, 240));
        // Along the circle dots and gaps take turns, all the way round.
        int dots = 0;
        bool onDot = false;
        constexpr int Steps = 3000;
        for (int i = 0; i < Steps; ++i) {
            const double angle = 2 * M_PI * i / Steps;
            const QPointF there = middle + radius * QPointF(std::cos(angle), std::sin(angle));
            const bool now = image.pixelColor(there.toPoint()) == accent(canvas);
            dots += now && !onDot;
            onDot = now;
        }
        const double room = 2 * M_PI * radius / 12; // a dot is twelve pixels wide
        QVERIFY2(dots > 0.8 * room && dots <= room + 1, qPrintable(QString::number(dots)));
    }

    void pointsThatCannotBeToldApartHaveTheirDotsWhereTheyCan()
    {
        CanvasFixture canvas;
        canvas.add("IrregularPolygon", {{QStringLiteral("position"), QStringLiteral("400,240")},
                                        {QStringLiteral("pointList"), circle(1000, 150)}});
        canvas.view->setZoom(24); // the points lie 23 pixels apart
        canvas.view->centerOn(550, 240);
        const QImage image = canvas.view->grab().toImage();
        for (int i = -5; i <= 5; ++i) {
            const double angle = 2 * M_PI * i / 1000;
            const QPointF point(400 + 150 * std::cos(angle), 240 + 150 * std::sin(angle));
            QCOMPARE(image.pixelColor(canvas.view->viewportTransform().map(point).toPoint()), accent(canvas));
        }
    }

    void manyPointsAreDrawnWithAFewDots_data()
    {
        QTest::addColumn<double>("spread");
        QTest::addColumn<double>("zoom");
        QTest::addColumn<int>("most"); // dots
        QTest::newRow("all over the view") << 400.0 << 1.0 << 1000;
        QTest::newRow("small") << 20.0 << 1.0 << 15;
        QTest::newRow("out of view") << 400.0 << 16.0 << 1000;
        QTest::newRow("far out of view") << 1e9 << 1.0 << 3;
    }

    void manyPointsAreDrawnWithAFewDots()
    {
        QFETCH(double, spread);
        QFETCH(double, zoom);
        QFETCH(int, most);
        CanvasFixture canvas;
        QStringList points;
        for (int i = 0; i < 50000; ++i)
            points << QStringLiteral("%1,%2").arg(spread * (i % 223) / 223).arg(spread * (i % 224) / 224);
        DesignerObject* element =
            canvas.add("IrregularPolygon", {{QStringLiteral("position"), QStringLiteral("100,50")},
                                            {QStringLiteral("pointList"), points.join(QLatin1Char(' '))}});
        canvas.view->setZoom(zoom);
        const auto drawn = [&canvas] {
            QPicture picture;
            QPainter painter(&picture);
            canvas.view->render(&painter);
            painter.end();
            return int(picture.size());
        };
        const int selected = drawn();
        canvas.select({});
        constexpr int BytesOfADot = 250;
        constexpr int BytesOfTheRest = 5000;
        const int handles = selected - drawn();
        QVERIFY2(handles < most * BytesOfADot + BytesOfTheRest, qPrintable(QString::number(handles)));
        // A press beside the dots finds its point all the same.
        canvas.select({element});
        canvas.view->setZoom(1);
        canvas.view->centerOn(100, 50);
        bool handled = false;
        QCOMPARE(element->graphicsItem()->getResizePointHandle({100, 50}, &handled), 0);
    }

    void whatLiesBeyondAllPixelsIsNoTrouble()
    {
        for (const char* far : {"1e12,0", "1e300,1e300", "-1.7e308,1.7e308"}) {
            CanvasFixture canvas;
            DesignerObject* points =
                canvas.add("IrregularPolygon",
                           {{QStringLiteral("position"), QStringLiteral("200,150")},
                            {QStringLiteral("pointList"), QStringLiteral("0,0 0,80 40,90 ") + QLatin1String(far)}});
            DesignerObject* rectangle = canvas.addRectangle(QRectF(500, 300, 60, 40));
            canvas.select({points, rectangle});
            QVERIFY(!canvas.view->grab().toImage().isNull());
            canvas.select({points});
            const QImage image = canvas.view->grab().toImage();
            QVERIFY(!image.isNull());
            QCOMPARE(image.pixelColor(canvas.view->viewportTransform().map(QPointF(240, 240)).toPoint()),
                     accent(canvas));
            canvas.select({});
            canvas.drag({530, 320}, {550, 330});
            QCOMPARE(canvas.value(rectangle, "position"), QStringLiteral("520,310"));
        }
    }

private:
    static QColor accent(const CanvasFixture& canvas) { return canvas.view->palette().color(QPalette::Highlight); }

    static QString circle(int count, double radius)
    {
        QPolygonF points;
        for (int i = 0; i < count; ++i) {
            const double angle = 2 * M_PI * i / count;
            points << radius * QPointF(std::cos(angle), std::sin(angle));
        }
        return ValueConversion::toString(points);
    }

    /// The bounds of the pixels within 10 of \a center, off the frame's own lines, in which the images differ.
    static QRect changedAbout(const QImage& a, const QImage& b, const QPoint& center)
    {
        QRect changed;
        for (int y = center.y() - 9; y <= center.y() + 9; ++y) {
            for (int x = center.x() - 9; x <= center.x() + 9; ++x) {
                // The selection's frame runs along these lines.
                const bool onFrame = std::abs(x - center.x()) <= 1 || std::abs(y - center.y()) <= 1;
                if (!onFrame && a.rect().contains(x, y) && a.pixel(x, y) != b.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        return changed;
    }
};

QTEST_MAIN(tst_SelectionHandles)
#include "tst_SelectionHandles.moc"
