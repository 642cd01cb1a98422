#include "host/common/PaintHelper.h"
#include "tests/runtime/OutlineShape.h"

#include <QConicalGradient>
#include <QQuickItem>
#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
DisplayType conicalGradient()
{
    DisplayType type = OutlineShape::gradientType(QStringLiteral("ConicalGradientElement"));
    OutlineShape::addNumber(&type, "centerX", 50, 20);
    OutlineShape::addNumber(&type, "centerY", 50, 180);
    OutlineShape::addNumber(&type, "startAngle", 0, 123.45);
    type.someValues = [] {
        QVariantMap values = OutlineShape::somePointsAndStops();
        values.insert(QStringLiteral("centerX"), double(*rc::gen::inRange(-100, 201)));
        values.insert(QStringLiteral("centerY"), double(*rc::gen::inRange(-100, 201)));
        values.insert(QStringLiteral("startAngle"), *rc::gen::inRange(0, 36000) / 100.0);
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        const auto number = [&item](const char* name) { return item.property(name).toDouble(); };
        QConicalGradient gradient(number("centerX"), number("centerY"), number("startAngle"));
        gradient.setStops(OutlineShape::stops(item));
        Common::PaintHelper::paintGradientItem(OutlineShape::points(item), gradient, painter);
    };
    return type;
}
} // namespace

/** The conical gradient on the display. */
class TestDisplayConicalGradientElement : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayConicalGradientElement()
        : DisplayTypeTest(conicalGradient())
    {}

private Q_SLOTS:
    void itTakesWhatAnExportWrites()
    {
        for (const char* script : {"points = [ [0, 0], [100, 0], [100, 75], [0, 75], [0, 0] ]",
                                   "gradientStops = [ [ 0, \"#ff0000\" ], [ 1, \"#0000ff\" ] ]", "centerX = -100",
                                   "centerY = 200", "startAngle = 359.99"}) {
            QVERIFY(OutlineShape::run(&item(), QString::fromLatin1(script)));
        }
        QCOMPARE(item().property("centerX").toDouble(), -100.0);
        QCOMPARE(item().property("startAngle").toDouble(), 359.99);
        QVERIFY(looksAsPainted());
    }

    void theStartAngleIsClockwise()
    {
        setValues({{QStringLiteral("points"), OutlineShape::toList(QPolygonF(QRectF(0, 0, 100, 100)))},
                   {QStringLiteral("gradientStops"),
                    OutlineShape::toList(
                        QGradientStops({{0, Qt::black}, {0.02, Qt::black}, {0.03, Qt::white}, {1, Qt::white}}))}});
        // A dark wedge: to the right of the centre, below it, to the left, above.
        const std::pair<double, QPoint> places[] = {{0, {95, 48}}, {90, {52, 95}}, {180, {5, 52}}, {270, {48, 5}}};
        for (const auto& [angle, dark] : places) {
            item().setProperty("startAngle", angle);
            const QImage image = sheet().running();
            const double ratio = double(image.width()) / sheet().screen()->width();
            for (const auto& [other, place] : places) {
                const QColor color = image.pixelColor(int((40 + place.x()) * ratio), int((30 + place.y()) * ratio));
                QCOMPARE(color.red() < 60, place == dark);
            }
        }
    }
};

QTEST_MAIN(TestDisplayConicalGradientElement)
#include "tst_DisplayConicalGradientElement.moc"
