#include "host/common/PaintHelper.h"
#include "tests/runtime/OutlineShape.h"

#include <QLinearGradient>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
DisplayType linearGradient()
{
    DisplayType type = OutlineShape::gradientType(QStringLiteral("LinearGradientElement"));
    OutlineShape::addNumber(&type, "startX", 0, 40);
    OutlineShape::addNumber(&type, "startY", 0, 30);
    OutlineShape::addNumber(&type, "stopX", 100, 70);
    OutlineShape::addNumber(&type, "stopY", 100, 20);
    type.someValues = [] {
        QVariantMap values = OutlineShape::somePointsAndStops();
        const auto percent = [] { return double(*rc::gen::inRange(0, 101)); };
        values.insert(QStringLiteral("startX"), percent());
        values.insert(QStringLiteral("startY"), percent());
        values.insert(QStringLiteral("stopX"), percent());
        values.insert(QStringLiteral("stopY"), percent());
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        const auto number = [&item](const char* name) { return item.property(name).toDouble(); };
        QLinearGradient gradient(number("startX"), number("startY"), number("stopX"), number("stopY"));
        gradient.setStops(OutlineShape::stops(item));
        Common::PaintHelper::paintGradientItem(OutlineShape::points(item), gradient, painter);
    };
    return type;
}
} // namespace

/** The linear gradient on the display, and what all gradients there have in common. */
class TestDisplayLinearGradientElement : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayLinearGradientElement()
        : DisplayTypeTest(linearGradient())
    {}

private Q_SLOTS:
    void itTakesWhatAnExportWrites()
    {
        run("points = [ [0, 0], [100, 0], [100, 75], [0, 75], [0, 0] ]");
        run("gradientStops = [\n\t[ 0, \"#ff0000\" ],\n\t[ 0.5, \"#8000ff00\" ],\n\t[ 1, \"#0000ff\" ]\n]");
        run("startX = 0");
        run("startY = 50");
        run("stopX = 100");
        run("stopY = 50");
        QCOMPARE(OutlineShape::stops(item()),
                 QGradientStops({{0, Qt::red}, {0.5, QColor(0, 255, 0, 128)}, {1, Qt::blue}}));
        QVERIFY(looksAsPainted());
        // From left to right, whatever the height.
        const QImage image = sheet().running();
        const double ratio = double(image.width()) / sheet().screen()->width();
        const auto color = [&](int x, int y) { return image.pixelColor(int((40 + x) * ratio), int((30 + y) * ratio)); };
        QVERIFY(color(2, 5).red() > 240 && color(2, 5).blue() < 20);
        QVERIFY(color(97, 70).blue() > 240 && color(97, 70).red() < 20);
        QCOMPARE(color(30, 5), color(30, 70));
    }

    void whatIsNoListOfStopsIsRefused_data()
    {
        QTest::addColumn<QString>("script");
        for (const char* script :
             {"[0, 'red', 1, 'blue']", "[[0, 'red'], [1]]", "[[0, 'red'], [1, 'blue', 2]]", "[[0, 'red'], []]",
              "[[0, 'red'], null]", "[[0, 'red'], ['1', 'blue']]", "[[0, 'red'], [true, 'blue']]",
              "[[0, 'red'], [undefined, 'blue']]", "[[0, 'red'], [NaN, 'blue']]", "[[0, 'red'], [Infinity, 'blue']]",
              "[[0, 'red'], [1, '']]", "[[0, 'red'], [1, 5]]", "[['red', 0], ['blue', 1]]",
              "[{position: 0, color: 'red'}]", "['0 red', '1 blue']"}) {
            QTest::newRow(script) << QString::fromLatin1(script);
        }
    }

    void whatIsNoListOfStopsIsRefused()
    {
        QFETCH(QString, script);
        setValues({{QStringLiteral("points"), OutlineShape::toList(QPolygonF(QRectF(0, 0, 100, 75)))}});
        const QImage before = sheet().running();
        QSignalSpy changes(&item(), SIGNAL(gradientStopsChanged()));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("gradientStops: not a list of \\[position, color\\]")));
        run("gradientStops = " + script.toLatin1());
        QCOMPARE(OutlineShape::stops(item()),
                 QGradientStops({{0.33, QColor(248, 151, 29)}, {0.67, QColor(Qt::white)}}));
        QVERIFY(changes.isEmpty());
        QCOMPARE(sheet().running(), before);
    }

    void everyKindOfOutlineLooksAsPaintedAboutEachFixedPoint_data()
    {
        QTest::addColumn<QPolygonF>("polygon");
        QPolygonF star;
        for (int i = 0; i < 200; ++i) {
            const double angle = 2 * M_PI * 77 * i / 200;
            star.append(QPointF(50 + 45 * std::cos(angle), 40 + 38 * std::sin(angle)));
        }
        const std::pair<const char*, QPolygonF> polygons[] = {
            {"triangle", {{0, 80}, {50, 0}, {100, 60}}},
            {"concave", {{0, 0}, {100, 0}, {100, 80}, {50, 20}, {0, 80}}},
            {"crossing itself", {{50, 0}, {80, 90}, {0, 35}, {100, 35}, {20, 90}}},
            {"off its origin", {{40.5, 30.25}, {120, 45}, {75, 101}}},
            {"200 points that cross each other", star},
        };
        for (const auto& [name, polygon] : polygons) {
            QTest::newRow(name) << polygon;
        }
    }

    void everyKindOfOutlineLooksAsPaintedAboutEachFixedPoint()
    {
        QFETCH(QPolygonF, polygon);
        setValues({{QStringLiteral("points"), OutlineShape::toList(polygon)}});
        QVERIFY(!isBlank());
        item().setPosition(QPointF(110.5, 70.25));
        for (const char* fixedPoint :
             {"TopLeft", "Top", "TopRight", "Left", "Center", "Right", "BottomLeft", "Bottom", "BottomRight"}) {
            item().setProperty("fixedPoint", QString::fromLatin1(fixedPoint));
            for (double angle : {0.0, 30.0, 90.0, 180.0, -77.5, 360.0}) {
                item().setRotation(angle);
                QVERIFY2(DisplaySheet::pixelsThatDiffer(sheet().running(), painted(), Tolerance) <= 1, fixedPoint);
            }
        }
    }

private:
    void run(const QByteArray& script) { QVERIFY(OutlineShape::run(&item(), QString::fromLatin1(script))); }
};

QTEST_MAIN(TestDisplayLinearGradientElement)
#include "tst_DisplayLinearGradientElement.moc"
