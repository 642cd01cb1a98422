#include "tests/gradients/OutlineElements.h"

#include "host/common/PaintHelper.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <functional>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Korvex::Meridane::Common::PaintHelper;
using Test::OutlineElement;

namespace {

QImage picture(const std::function<void(QPainter*)>& paint)
{
    QImage image(200, 180, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(40.25, 30.5);
    paint(&painter);
    return image;
}

QImage blank()
{
    return picture([](QPainter*) {});
}

template <typename Gradient>
QImage picture(const QPolygonF& polygon, Gradient gradient, const QGradientStops& stops)
{
    gradient.setStops(stops);
    return picture([&](QPainter* painter) { PaintHelper::paintGradientItem(polygon, gradient, painter); });
}

/// The canvas item of a gradient or path, alone on a scene.
class PaintedOutline
{
public:
    explicit PaintedOutline(const QByteArray& className)
        : element(className)
        , item(element.place())
        , scene(-500, -500, 1000, 1000)
    {
        scene.addItem(item);
    }

    ~PaintedOutline() { scene.removeItem(item); }

    Q_DISABLE_COPY_MOVE(PaintedOutline)

    [[nodiscard]] QImage picture() const
    {
        return ::picture([this](QPainter* painter) {
            const QStyleOptionGraphicsItem option;
            item->paint(painter, &option, nullptr);
        });
    }

    /// Whether setting the value asks for a repaint.
    bool repaints(const char* id, const char* value)
    {
        QApplication::processEvents();
        QSignalSpy changes(&scene, &QGraphicsScene::changed);
        element.set(id, value);
        QApplication::processEvents();
        return !changes.isEmpty();
    }

    OutlineElement element;
    GraphicsOutline* item;
    QGraphicsScene scene;
};

const QPolygonF NewOutline(QRectF(0, 0, 100, 75));
const QGradientStops NewStops{{0.33, QColor(248, 151, 29, 255)}, {0.67, QColor(255, 255, 255, 255)}};

QPolygonF anyPolygon()
{
    QPolygonF polygon;
    for (int i = *rc::gen::inRange(3, 12); i > 0; --i)
        polygon << QPointF(*rc::gen::inRange(-2000, 11000) / 100.0, *rc::gen::inRange(-1500, 9000) / 100.0);
    return polygon;
}

QGradientStops anyStops()
{
    QGradientStops stops;
    for (int i = *rc::gen::inRange(2, 8); i > 0; --i) {
        const int alpha = *rc::gen::element(255, 255, 0, 90);
        stops.append({i / 8.0, QColor(*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), 40 * i % 256, alpha)});
    }
    return stops;
}

} // namespace

/// The canvas items of the gradients: what they take over, when they repaint, and their pictures.
class tst_GraphicsGradients : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newItemsShowWhatNewElementsHold()
    {
        const QImage linear = picture(NewOutline, QLinearGradient(0, 0, 100, 100), NewStops);
        const QImage radial = picture(NewOutline, QRadialGradient(QPointF(50, 37.5), 50), NewStops);
        const QImage conical = picture(NewOutline, QConicalGradient(50, 50, 0), NewStops);
        const QImage path = picture(
            [](QPainter* painter) { PaintHelper::paintIrregularPolygon(NewOutline, QColor(248, 151, 29), painter); });
        QCOMPARE(PaintedOutline("LinearGradientElement").picture(), linear);
        QCOMPARE(PaintedOutline("RadialGradientElement").picture(), radial);
        QCOMPARE(PaintedOutline("ConicalGradientElement").picture(), conical);
        QCOMPARE(PaintedOutline("PathElement").picture(), path);
        // Also those to which nothing has been told yet.
        const auto shown = [](QGraphicsItem* item) {
            return picture([item](QPainter* painter) {
                const QStyleOptionGraphicsItem option;
                item->paint(painter, &option, nullptr);
            });
        };
        GraphicsLinearGradient bareLinear(nullptr);
        QCOMPARE(shown(&bareLinear), linear);
        GraphicsRadialGradient bareRadial(nullptr);
        QCOMPARE(shown(&bareRadial), radial);
        GraphicsConicalGradient bareConical(nullptr);
        QCOMPARE(shown(&bareConical), conical);
        GraphicsPathItem barePath(nullptr);
        QCOMPARE(shown(&barePath), path);
    }

    void linearPixelsAreThoseOfThePaintHelper()
    {
        const bool held = rc::check("linear", [] {
            PaintedOutline outline("LinearGradientElement");
            const QPolygonF polygon = anyPolygon();
            const QGradientStops stops = anyStops();
            const QPointF start(*rc::gen::inRange(0, 50), *rc::gen::inRange(0, 101));
            const QPointF finalStop(*rc::gen::inRange(51, 101), *rc::gen::inRange(0, 101));
            outline.element.setPoints(polygon);
            outline.element.property("gradientStops")->fill(ValueConversion::toString(stops));
            outline.item->updateGraphicsItem(outline.element.property("gradientStops"));
            outline.element.set("start", ValueConversion::toString(start));
            outline.element.set("finalStop", ValueConversion::toString(finalStop));
            RC_ASSERT(outline.picture() == picture(polygon, QLinearGradient(start, finalStop), stops));
        });
        QVERIFY(held);
    }

    void radialPixelsAreThoseOfThePaintHelper()
    {
        const bool held = rc::check("radial", [] {
            PaintedOutline outline("RadialGradientElement");
            const QPolygonF polygon = anyPolygon();
            const QGradientStops stops = anyStops();
            const QPointF center(*rc::gen::inRange(-50, 150), *rc::gen::inRange(-40, 120));
            const QPointF focal(*rc::gen::inRange(-50, 150), *rc::gen::inRange(-40, 120));
            const double radius = *rc::gen::inRange(4, 400) / 4.0;
            const int spread = *rc::gen::inRange(0, 3);
            outline.element.setPoints(polygon);
            outline.element.property("gradientStops")->fill(ValueConversion::toString(stops));
            outline.item->updateGraphicsItem(outline.element.property("gradientStops"));
            outline.element.set("center", ValueConversion::toString(center));
            outline.element.set("radius", ValueConversion::toString(radius));
            outline.element.set("focalPoint", ValueConversion::toString(focal));
            constexpr const char* Names[] = {"PadSpread", "ReflectSpread", "RepeatSpread"};
            outline.element.set("spread", Names[spread]);
            QRadialGradient gradient(center, radius, focal);
            gradient.setSpread(static_cast<QGradient::Spread>(spread));
            RC_ASSERT(outline.picture() == picture(polygon, gradient, stops));
        });
        QVERIFY(held);
    }

    void conicalPixelsAreThoseOfThePaintHelper()
    {
        const bool held = rc::check("conical", [] {
            PaintedOutline outline("ConicalGradientElement");
            const QPolygonF polygon = anyPolygon();
            const QGradientStops stops = anyStops();
            const QPointF center(*rc::gen::inRange(-100, 201), *rc::gen::inRange(-100, 201));
            const double angle = *rc::gen::inRange(0, 36000) / 100.0;
            outline.element.setPoints(polygon);
            outline.element.property("gradientStops")->fill(ValueConversion::toString(stops));
            outline.item->updateGraphicsItem(outline.element.property("gradientStops"));
            outline.element.set("center", ValueConversion::toString(center));
            outline.element.set("startAngle", ValueConversion::toString(angle));
            RC_ASSERT(outline.picture() == picture(polygon, QConicalGradient(center, angle), stops));
        });
        QVERIFY(held);
    }

    void theOutlineIsAsSmoothAsThatOfAPath()
    {
        // With one colour throughout a gradient is a path, pixel by pixel.
        const bool held = rc::check("edges", [] {
            const QPolygonF polygon = anyPolygon();
            const QColor color(*rc::gen::inRange(0, 256), 90, 200);
            PaintedOutline path("PathElement");
            path.element.setPoints(polygon);
            path.element.set("color", ValueConversion::toString(color));
            const QImage expected = path.picture();
            for (const char* name : {"LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"}) {
                PaintedOutline gradient(name);
                gradient.element.setPoints(polygon);
                gradient.element.property("gradientStops")
                    ->fill(ValueConversion::toString(QGradientStops({{0, color}, {1, color}})));
                gradient.item->updateGraphicsItem(gradient.element.property("gradientStops"));
                const QImage actual = gradient.picture();
                for (int y = 0; y < actual.height(); ++y) {
                    for (int x = 0; x < actual.width(); ++x) {
                        const QColor a = actual.pixelColor(x, y);
                        const QColor b = expected.pixelColor(x, y);
                        RC_ASSERT(std::abs(a.red() - b.red()) <= 1 && std::abs(a.green() - b.green()) <= 1
                                  && std::abs(a.blue() - b.blue()) <= 1);
                    }
                }
            }
        });
        QVERIFY(held);
    }

    void theStartAngleIsClockwise()
    {
        PaintedOutline outline("ConicalGradientElement");
        outline.element.set("points", "0,0 100,0 100,100 0,100");
        outline.element.set("gradientStops", "0 #000000, 0.02 #000000, 0.03 #ffffff, 1 #ffffff");
        const auto dark = [&](int x, int y) { return outline.picture().pixelColor(40 + x, 30 + y).red() < 60; };
        // The dark wedge begins to the right of the centre and moves with the clock: down, left, up.
        QVERIFY(dark(95, 48) && !dark(52, 95) && !dark(5, 52) && !dark(48, 5));
        outline.element.set("startAngle", "90");
        QVERIFY(!dark(95, 48) && dark(52, 95) && !dark(5, 52) && !dark(48, 5));
        outline.element.set("startAngle", "180");
        QVERIFY(!dark(95, 48) && !dark(52, 95) && dark(5, 52) && !dark(48, 5));
        outline.element.set("startAngle", "270");
        QVERIFY(!dark(95, 48) && !dark(52, 95) && !dark(5, 52) && dark(48, 5));
    }

    void theLastAngleIsTakenAndAWholeTurnIgnored()
    {
        PaintedOutline outline("ConicalGradientElement");
        outline.element.set("startAngle", "10");
        QVERIFY(outline.repaints("startAngle", "359.99"));
        const QImage last = picture(NewOutline, QConicalGradient(50, 50, 359.99), NewStops);
        QCOMPARE(outline.picture(), last);
        for (const char* ignored : {"360", "359.995", "-1", "-0.001", "1e+300", "up"}) {
            QVERIFY2(!outline.repaints("startAngle", ignored), ignored);
            QCOMPARE(outline.element.value("startAngle"), QString::fromLatin1(ignored));
            QCOMPARE(outline.picture(), last);
        }
        QVERIFY(outline.repaints("startAngle", "0"));
        QCOMPARE(outline.picture(), picture(NewOutline, QConicalGradient(50, 50, 0), NewStops));
    }

    void onlyWhatDiffersByMoreThanNoiseIsRepainted_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArrayList>("same");
        QTest::addColumn<QByteArray>("other");
        const auto row = [](const char* name, const char* property, const QByteArrayList& same, const char* other) {
            QTest::addRow("%s %s", name, property)
                << QByteArray(name) << QByteArray(property) << same << QByteArray(other);
        };
        const QByteArrayList stops{"0.33 #f8971d, 0.67 #ffffff", "0.330 #F8971D, 0.67 white", "0.5 red", "garbage"};
        row("LinearGradientElement", "start", {"0,0", "1e-13,-1e-13", "-0.0000000000009,0", "garbage"}, "0.000001,0");
        row("LinearGradientElement", "finalStop", {"100,100", "100.0000000000001,99.9999999999999"}, "99.9,100");
        row("LinearGradientElement", "gradientStops", stops, "0.33 #f8971d, 0.67 #fffffe");
        row("RadialGradientElement", "center", {"50,37.5", "50.0000000000005,37.5"}, "50.1,37.5");
        row("RadialGradientElement", "focalPoint", {"50,37.5", "50,37.5000000000005", "garbage"}, "50,38");
        row("RadialGradientElement", "radius", {"50", "50.0", "5e1", "wide"}, "50.000001");
        row("RadialGradientElement", "spread", {"PadSpread", "garbage"}, "RepeatSpread");
        row("RadialGradientElement", "gradientStops", stops, "0.33 #f8971d, 0.68 #ffffff");
        row("ConicalGradientElement", "center", {"50,50", "50,49.9999999999999"}, "50,51");
        row("ConicalGradientElement", "startAngle", {"0", "0.0", "-0"}, "0.01");
        row("ConicalGradientElement", "gradientStops", stops, "0.33 #f8971d, 0.66 #ffffff, 0.67 #ffffff");
        row("PathElement", "color", {"#f8971d", "#F8971D", "#fff8971d", "garbage"}, "#f8971e");
    }

    void onlyWhatDiffersByMoreThanNoiseIsRepainted()
    {
        QFETCH(QByteArray, className);
        QFETCH(QByteArray, property);
        QFETCH(QByteArrayList, same);
        QFETCH(QByteArray, other);
        PaintedOutline outline(className);
        const QImage before = outline.picture();
        for (const QByteArray& value : same)
            QVERIFY2(!outline.repaints(property, value), value);
        QCOMPARE(outline.picture(), before);
        QVERIFY(outline.repaints(property, other));
        QVERIFY(!outline.repaints(property, other));
    }

    void everyGradientTakesASpread()
    {
        // Only the radial one has the property; what an item does with it is the same for all.
        for (const char* name : {"LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"}) {
            PaintedOutline outline(name);
            OutlineElement other("RadialGradientElement");
            outline.element.set("start", "30,0");
            outline.element.set("finalStop", "50,0");
            outline.element.set("radius", "10");
            const QImage padded = outline.picture();
            other.set("spread", "RepeatSpread");
            outline.item->updateGraphicsItem(other.property("spread"));
            QCOMPARE(outline.picture() != padded, QByteArray(name) != "ConicalGradientElement");
            other.set("spread", "PadSpread");
            outline.item->updateGraphicsItem(other.property("spread"));
            QCOMPARE(outline.picture(), padded);
        }
    }

    void stopsOutsideOfTheGradientAreNotDrawn()
    {
        // QGradient would complain of each, which fails a test that expects no message.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        for (const char* name : {"LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"}) {
            PaintedOutline outline(name);
            QVERIFY(outline.element.set("gradientStops", "0.2 #ff0000, 0.8 #0000ff"));
            const QImage within = outline.picture();
            QVERIFY(!outline.repaints("gradientStops", "-0.5 #00ff00, 0.2 #ff0000, 0.8 #0000ff, 1.01 #ffff00"));
            QCOMPARE(outline.picture(), within);
        }
    }

    void aTransparentGradientDrawsNothing()
    {
        for (const char* name : {"LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"}) {
            PaintedOutline outline(name);
            outline.element.property("gradientStops")->fill(QStringLiteral("0 #00ff0000, 1 #0000ff00"));
            outline.item->updateGraphicsItem(outline.element.property("gradientStops"));
            QCOMPARE(outline.picture(), blank());
        }
    }

    void absurdValuesAreDrawnWithoutHarm_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("value");
        const auto row = [](const char* name, const char* property, const char* value) {
            QTest::addRow("%s %s %s", name, property, value)
                << QByteArray(name) << QByteArray(property) << QByteArray(value);
        };
        for (const char* value : {"0", "-5", "1e-300", "1e300"})
            row("RadialGradientElement", "radius", value);
        for (const char* value : {"1e300,-1e300", "1e9,0", "-1e30,50"}) {
            row("RadialGradientElement", "center", value);
            row("RadialGradientElement", "focalPoint", value);
            row("ConicalGradientElement", "center", value);
        }
        for (const QByteArray& name : Test::outlineElements()) {
            row(name, "points", "0,0 1e300,0 1e300,1e300 0,1e300");
            row(name, "points", "-1e9,-1e9 1e9,0 30,1e9");
            row(name, "points", "0,0 1e-300,0 0,1e-300");
            row(name, "points", "5,5 5,5 5,5");
        }
    }

    void absurdValuesAreDrawnWithoutHarm()
    {
        QFETCH(QByteArray, className);
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, value);
        PaintedOutline outline(className);
        const QImage before = outline.picture();
        QVERIFY(outline.element.set(property, value.constData()));
        QCOMPARE(outline.picture().size(), before.size());
        QVERIFY(outline.element.set(property, outline.element.property(property)->defaultValueString()));
        QCOMPARE(outline.picture(), before);
    }
};

QTEST_MAIN(tst_GraphicsGradients)
#include "tst_GraphicsGradients.moc"
