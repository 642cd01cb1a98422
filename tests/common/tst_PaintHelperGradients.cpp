#include "host/common/GradientStops.h"
#include "host/common/PaintHelper.h"

#include <QConicalGradient>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

namespace {
const QGradientStops BlackToWhite = {{0, Qt::black}, {1, Qt::white}};

template <typename Gradient>
QImage painted(const QPolygonF& polygon, Gradient gradient, const QGradientStops& stops = BlackToWhite)
{
    gradient.setStops(stops);
    QImage image(220, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PaintHelper::paintGradientItem(polygon, gradient, &painter);
    return image;
}

int grey(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y).red();
}

const QPolygonF Wide(QRectF(10, 10, 200, 100));
} // namespace

class TestPaintHelperGradients : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linearPointsArePercentOfTheBoundingRectangle();
    void linearStripesAreNotSkewed();
    void radialPointsArePixels();
    void focalPointOutsideTheCircleIsMovedOntoIt();
    void spreadIsKept();
    void conicalCentreIsPercentAndMayLieOutside();
    void conicalAngleIsClockwise();
    void onlyThePolygonIsFilled();
    void whatIsFarAwayIsDrawnWithoutHarm();
    void withoutARadiusEverythingHasTheLastColour();
    void numbersThatAreNoneDrawNothing();
    void onlyStopsWithinTheGradientAreDrawable();
};

void TestPaintHelperGradients::linearPointsArePercentOfTheBoundingRectangle()
{
    const QImage image = painted(Wide, QLinearGradient(25, 0, 75, 0));
    QVERIFY(grey(image, 58, 50) < 4);
    QVERIFY(qAbs(grey(image, 110, 50) - 128) < 4);
    QVERIFY(grey(image, 161, 50) > 251);
    QCOMPARE(grey(image, 20, 20), grey(image, 20, 90));
}

void TestPaintHelperGradients::linearStripesAreNotSkewed()
{
    const QImage image = painted(Wide, QLinearGradient(0, 0, 100, 100));
    // From (10, 10) along (200, 100): points on a line at right angles have one colour.
    const QPoint middle(110, 60);
    for (int step : {-15, -8, 8, 15}) {
        const QPoint point = middle + QPoint(step, -2 * step);
        QVERIFY(qAbs(grey(image, point.x(), point.y()) - grey(image, middle.x(), middle.y())) < 4);
    }
}

void TestPaintHelperGradients::radialPointsArePixels()
{
    const QImage image = painted(Wide, QRadialGradient(QPointF(60, 60), 40, QPointF(60, 60)));
    QVERIFY(grey(image, 60, 60) < 8);
    for (const QPoint& point : {QPoint(80, 60), QPoint(40, 60), QPoint(60, 40), QPoint(60, 80)}) {
        QVERIFY(qAbs(grey(image, point.x(), point.y()) - 128) < 8);
    }
    QVERIFY(grey(image, 150, 60) > 251);
}

void TestPaintHelperGradients::focalPointOutsideTheCircleIsMovedOntoIt()
{
    QRadialGradient outside;
    outside.setCenter(60, 60);
    outside.setRadius(40);
    outside.setFocalPoint(160, 60);
    const QRadialGradient adjusted(QPointF(60, 60), 40, QPointF(160, 60));
    QVERIFY(adjusted.focalPoint().x() <= 100);
    QCOMPARE(painted(Wide, outside), painted(Wide, adjusted));
    // Beyond the circle everything has the last colour.
    QVERIFY(grey(painted(Wide, outside), 150, 60) > 251);
}

void TestPaintHelperGradients::spreadIsKept()
{
    QRadialGradient gradient(QPointF(60, 60), 40, QPointF(60, 60));
    gradient.setSpread(QGradient::ReflectSpread);
    QVERIFY(grey(painted(Wide, gradient), 139, 60) < 20);
    QLinearGradient linear(0, 0, 25, 0);
    linear.setSpread(QGradient::RepeatSpread);
    QVERIFY(grey(painted(Wide, linear), 62, 60) < 20);
}

void TestPaintHelperGradients::conicalCentreIsPercentAndMayLieOutside()
{
    const QGradientStops halves = {{0, Qt::black}, {0.4999, Qt::black}, {0.5, Qt::white}, {1, Qt::white}};
    // Counter-clockwise from the right: the upper half is black, the lower one white.
    const QImage middle = painted(Wide, QConicalGradient(50, 50, 0), halves);
    QCOMPARE(grey(middle, 60, 20), 0);
    QCOMPARE(grey(middle, 160, 100), 255);
    const QImage below = painted(Wide, QConicalGradient(50, 200, 0), halves);
    QCOMPARE(grey(below, 60, 20), 0);
    QCOMPARE(grey(below, 160, 100), 0);
    const QImage left = painted(Wide, QConicalGradient(-100, 75, 0), halves);
    QCOMPARE(grey(left, 60, 80), 0);
    QCOMPARE(grey(left, 60, 90), 255);
}

void TestPaintHelperGradients::conicalAngleIsClockwise()
{
    const QGradientStops wedge = {{0, Qt::black}, {0.02, Qt::black}, {0.03, Qt::white}, {1, Qt::white}};
    // The wedge begins straight below the centre and runs counter-clockwise, to the right.
    const QImage image = painted(Wide, QConicalGradient(50, 50, 90), wedge);
    QCOMPARE(grey(image, 112, 100), 0);
    QCOMPARE(grey(image, 105, 100), 255);
    QCOMPARE(grey(image, 112, 20), 255);
}

void TestPaintHelperGradients::onlyThePolygonIsFilled()
{
    const QPolygonF triangle({QPointF(10, 10), QPointF(210, 10), QPointF(10, 110)});
    const QImage image = painted(triangle, QLinearGradient(0, 0, 100, 0));
    QCOMPARE(qAlpha(image.pixel(20, 20)), 255);
    QCOMPARE(qAlpha(image.pixel(200, 100)), 0);
    QCOMPARE(qAlpha(image.pixel(5, 5)), 0);
}

void TestPaintHelperGradients::whatIsFarAwayIsDrawnWithoutHarm()
{
    // From 1e38 on a radial gradient of the painter's own would read colours from anywhere.
    const bool held = rc::check("far away", [] {
        const auto number = [] {
            const double size = *rc::gen::element(0.0, 1e-300, 1e-9, 1.0, 50.0, 1e6, 1e9, 1e18, 1e38, 1e154, 1e300);
            return *rc::gen::element(-size, size);
        };
        const QPointF first(number(), number());
        const QPointF second(number(), number());
        const auto spread = static_cast<QGradient::Spread>(*rc::gen::inRange(0, 3));
        QLinearGradient linear(first, second);
        linear.setSpread(spread);
        QRadialGradient radial(first, number(), second);
        radial.setSpread(spread);
        for (const QImage& image :
             {painted(Wide, linear), painted(Wide, radial), painted(Wide, QConicalGradient(first, number()))}) {
            RC_ASSERT(qAlpha(image.pixel(110, 60)) == 255);
            RC_ASSERT(qAlpha(image.pixel(5, 5)) == 0);
        }
    });
    QVERIFY(held);
    // A circle far beyond the polygon is still the circle that it was.
    const QImage image = painted(Wide, QRadialGradient(QPointF(60 - 1e6, 60), 1e6 + 40, QPointF(60 - 1e6, 60)));
    QVERIFY(grey(image, 20, 60) > 200 && grey(image, 20, 60) <= grey(image, 200, 60));
}

void TestPaintHelperGradients::withoutARadiusEverythingHasTheLastColour()
{
    for (double radius : {0.0, -1.0, -1e300, 1e-300}) {
        const QImage image = painted(Wide, QRadialGradient(QPointF(60.25, 60.25), radius, QPointF(100, 60)));
        for (const QPoint& point : {QPoint(20, 20), QPoint(61, 61), QPoint(100, 60), QPoint(200, 100)}) {
            QCOMPARE(grey(image, point.x(), point.y()), 255);
        }
    }
}

void TestPaintHelperGradients::numbersThatAreNoneDrawNothing()
{
    QImage blank(220, 120, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    for (double none : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        for (double number : {none, -none}) {
            QCOMPARE(painted(Wide, QLinearGradient(number, 0, 100, 100)), blank);
            QCOMPARE(painted(Wide, QLinearGradient(0, 0, 100, number)), blank);
            QCOMPARE(painted(Wide, QRadialGradient(QPointF(60, number), 40, QPointF(60, 60))), blank);
            QCOMPARE(painted(Wide, QRadialGradient(QPointF(60, 60), number, QPointF(60, 60))), blank);
            QCOMPARE(painted(Wide, QRadialGradient(QPointF(60, 60), 40, QPointF(number, 60))), blank);
            QCOMPARE(painted(Wide, QConicalGradient(number, 50, 0)), blank);
            QCOMPARE(painted(Wide, QConicalGradient(50, 50, number)), blank);
        }
    }
}

void TestPaintHelperGradients::onlyStopsWithinTheGradientAreDrawable()
{
    const QGradientStops inside = {{1, Qt::red}, {0, Qt::blue}, {0.5, Qt::red}};
    QCOMPARE(drawableStops(inside), inside);
    QCOMPARE(drawableStops({{-1e-9, Qt::red}, {0, Qt::blue}, {1.000001, Qt::green}, {std::nan(""), Qt::red}}),
             QGradientStops({{0, Qt::blue}}));
    // Of no stops a gradient would make black and white.
    QImage blank(220, 120, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    QCOMPARE(painted(Wide, QLinearGradient(0, 0, 100, 100), drawableStops({})), blank);
    QCOMPARE(painted(Wide, QLinearGradient(0, 0, 100, 100), drawableStops({{-1, Qt::red}, {2, Qt::blue}})), blank);
}

QTEST_MAIN(TestPaintHelperGradients)
#include "tst_PaintHelperGradients.moc"
