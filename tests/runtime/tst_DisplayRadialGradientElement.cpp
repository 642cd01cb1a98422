#include "host/common/PaintHelper.h"
#include "tests/runtime/OutlineShape.h"

#include <QQuickItem>
#include <QRadialGradient>
#include <QTest>

#include <algorithm>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
DisplayType radialGradient()
{
    DisplayType type = OutlineShape::gradientType(QStringLiteral("RadialGradientElement"));
    OutlineShape::addNumber(&type, "centerX", 50, 20);
    OutlineShape::addNumber(&type, "centerY", 37.5, 60);
    OutlineShape::addNumber(&type, "radius", 50, 30.25);
    OutlineShape::addNumber(&type, "focalX", 50, 70);
    OutlineShape::addNumber(&type, "focalY", 37.5, 20);
    type.defaults.insert(QStringLiteral("spread"), 0);
    // A radius with which each spread shows.
    type.sample.insert(QStringLiteral("radius"), 25.0);
    type.changes.insert(QStringLiteral("spread"), 2);
    const int largest = std::numeric_limits<int>::max();
    for (int spread : {1, 2, 3, -1, largest, -largest}) {
        type.extremes.append({QStringLiteral("spread"), spread});
    }
    type.someValues = [] {
        QVariantMap values = OutlineShape::somePointsAndStops();
        const auto coordinate = [](int from, int to) { return double(*rc::gen::inRange(from, to)); };
        const double centerX = coordinate(-60, 150);
        const double centerY = coordinate(-40, 120);
        values.insert(QStringLiteral("centerX"), centerX);
        values.insert(QStringLiteral("centerY"), centerY);
        const int spread = *rc::gen::inRange(0, 3);
        values.insert(QStringLiteral("spread"), spread);
        if (spread == 0) {
            // About one focal point in two lies outside the circle.
            values.insert(QStringLiteral("radius"), *rc::gen::inRange(1000, 15000) / 100.0);
            values.insert(QStringLiteral("focalX"), coordinate(-60, 150));
            values.insert(QStringLiteral("focalY"), coordinate(-40, 120));
        } else {
            // Rings that are finer than pixels look different wherever they lie.
            values.insert(QStringLiteral("radius"), *rc::gen::inRange(2000, 15000) / 100.0);
            values.insert(QStringLiteral("focalX"), centerX + coordinate(-10, 11));
            values.insert(QStringLiteral("focalY"), centerY + coordinate(-10, 11));
        }
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        const auto number = [&item](const char* name) { return item.property(name).toDouble(); };
        QRadialGradient gradient;
        gradient.setCenter(number("centerX"), number("centerY"));
        gradient.setRadius(number("radius"));
        gradient.setFocalPoint(number("focalX"), number("focalY"));
        gradient.setSpread(static_cast<QGradient::Spread>(std::clamp(item.property("spread").toInt(), 0, 2)));
        gradient.setStops(OutlineShape::stops(item));
        Common::PaintHelper::paintGradientItem(OutlineShape::points(item), gradient, painter);
    };
    return type;
}
} // namespace

/** The radial gradient on the display. */
class TestDisplayRadialGradientElement : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayRadialGradientElement()
        : DisplayTypeTest(radialGradient())
    {}

private Q_SLOTS:
    void itTakesWhatAnExportWrites()
    {
        for (const char* script : {"points = [ [0, 0], [100, 0], [100, 75], [0, 75], [0, 0] ]",
                                   "gradientStops = [ [ 0, \"#ff0000\" ], [ 1, \"#0000ff\" ] ]", "centerX = 30",
                                   "centerY = 40", "radius = 33.3333", "focalX = 20", "focalY = 40", "spread = 1"}) {
            QVERIFY(OutlineShape::run(&item(), QString::fromLatin1(script)));
        }
        QVERIFY(looksAsPainted());
        const QColor focus = colorAt(20, 40);
        QVERIFY(focus.red() > 240 && focus.blue() < 20);
        const QColor circle = colorAt(62, 40);
        QVERIFY(circle.blue() > 230 && circle.red() < 30);
    }

    void aFocalPointOutsideOfTheCircleLiesOnIt()
    {
        setValues({{QStringLiteral("points"), OutlineShape::toList(QPolygonF(QRectF(0, 0, 100, 75)))},
                   {QStringLiteral("gradientStops"),
                    OutlineShape::toList(QGradientStops({{0, Qt::red}, {0.5, Qt::green}, {1, Qt::blue}}))},
                   {QStringLiteral("centerX"), 40.0},
                   {QStringLiteral("radius"), 30.0},
                   {QStringLiteral("focalX"), 95.0},
                   {QStringLiteral("focalY"), 37.5}});
        QVERIFY(looksAsPainted());
        // Beyond the circle everything has the last colour, also where the focal point was set.
        QCOMPARE(colorAt(90, 37), QColor(Qt::blue));
        QCOMPARE(colorAt(5, 37), QColor(Qt::blue));
        QVERIFY(colorAt(60, 37) != QColor(Qt::blue));
    }

    void aSpreadThatIsNoneCountsAsTheNextOne()
    {
        setValues({{QStringLiteral("points"), OutlineShape::toList(QPolygonF(QRectF(0, 0, 100, 75)))},
                   {QStringLiteral("radius"), 20.0}});
        const QImage padded = sheet().running();
        item().setProperty("spread", 2);
        const QImage repeated = sheet().running();
        QVERIFY(padded != repeated);
        item().setProperty("spread", 7);
        QCOMPARE(sheet().running(), repeated);
        item().setProperty("spread", -7);
        QCOMPARE(sheet().running(), padded);
    }

private:
    [[nodiscard]] QColor colorAt(int x, int y) const
    {
        const QImage image = sheet().running();
        const double ratio = double(image.width()) / sheet().screen()->width();
        return image.pixelColor(int((40 + x) * ratio), int((30 + y) * ratio));
    }
};

QTEST_MAIN(TestDisplayRadialGradientElement)
#include "tst_DisplayRadialGradientElement.moc"
