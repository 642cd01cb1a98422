#include "tests/runtime/OutlineShape.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlExpression>
#include <QtQuick/QQuickItem>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

namespace {
constexpr double Infinity = std::numeric_limits<double>::infinity();

const QString Points = QStringLiteral("points");
const QString Stops = QStringLiteral("gradientStops");

double someCoordinate(int from, int to)
{
    return *rc::gen::inRange(from * 100, to * 100) / 100.0;
}

QColor someColor()
{
    const int alpha = *rc::gen::element(255, 255, 0, 128, 40);
    return QColor(*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), alpha);
}

QGradientStops someStops()
{
    QGradientStops stops;
    const int count = *rc::gen::inRange(2, 9);
    for (int i = 0; i < count; ++i) {
        stops.append({(i * 100 / count + *rc::gen::inRange(0, 100 / count)) / 100.0, someColor()});
    }
    return stops;
}
} // namespace

DisplayType OutlineShape::type(const QString& name)
{
    DisplayType type;
    type.name = name;
    type.defaults.insert(Points, QVariantList());
    type.sample.insert(Points, toList(QPolygonF({{20, 0}, {95, 5}, {110, 50.5}, {60, 75}, {70, 40}, {-10, 33.25}})));
    type.changes.insert(Points, toList(QPolygonF({{0, 0}, {90, 10}, {30, 66.6}})));
    type.huge.insert(Points, toList(QPolygonF({{-500, 700}, {9000, 700}, {9000, 9000}, {-500, 9000}})));
    for (const QPolygonF& polygon :
         {QPolygonF({{0, 0}, {0.001, 0}, {0, 0.001}}), QPolygonF({{0, 0}, {1e5, 10}, {30, 60}}),
          QPolygonF({{-1e9, -1e9}, {1e9, 10}, {30, 1e9}}),
          QPolygonF({{0, 0}, {100, 0}, {100, 0}, {100, 80}, {0, 0}})}) {
        type.extremes.append({Points, toList(polygon)});
    }
    for (const QPolygonF& polygon :
         {QPolygonF(), QPolygonF({{10, 10}}), QPolygonF({{0, 0}, {100, 75}}), QPolygonF({{10, 10}, {10, 10}, {10, 10}}),
          QPolygonF({{0, 40}, {100, 40}, {50, 40}})}) {
        type.invisible.append({Points, toList(polygon)});
    }
    type.content = [](const QQuickItem& item) { return points(item).boundingRect(); };
    return type;
}

DisplayType OutlineShape::gradientType(const QString& name)
{
    DisplayType type = OutlineShape::type(name);
    // Where colours follow each other within a pixel, rounding decides which of them it shows: between two near points of a
    // linear gradient, and between a focal point on the circle and the circle itself.
    type.strayPixels = 40;
    type.strayPixelsWhenTurned = 40;
    const QVariantList stops = toList(QGradientStops({{0.33, QColor(248, 151, 29)}, {0.67, QColor(Qt::white)}}));
    type.defaults.insert(Stops, stops);
    type.changes.insert(Stops, toList(QGradientStops({{0, Qt::red}, {0.5, QColor(0, 0, 255, 90)}, {1, Qt::green}})));
    QGradientStops all;
    for (int percent = 0; percent <= 100; ++percent) {
        all.append({percent / 100.0, QColor::fromHsv(3 * percent, 255, 255)});
    }
    for (const QGradientStops& extreme :
         {all, QGradientStops({{0.5, Qt::red}}), QGradientStops({{1, Qt::red}, {0, Qt::blue}}),
          QGradientStops({{0.5, Qt::red}, {0.5, Qt::blue}}),
          QGradientStops({{-3, Qt::green}, {0.2, Qt::red}, {0.8, Qt::blue}, {1e300, Qt::green}})}) {
        type.extremes.append({Stops, toList(extreme)});
    }
    for (const QGradientStops& none :
         {QGradientStops(), QGradientStops({{0, QColor(255, 0, 0, 0)}, {1, QColor(0, 0, 255, 0)}}),
          QGradientStops({{-0.01, Qt::red}, {1.01, Qt::blue}})}) {
        type.invisible.append({Stops, toList(none)});
    }
    return type;
}

void OutlineShape::addNumber(DisplayType* type, const char* property, double value, double change)
{
    const QString name = QString::fromLatin1(property);
    type->defaults.insert(name, value);
    type->changes.insert(name, change);
    for (double extreme : {-1.0, 0.0, 250.0, 1e9, -1e9, 1e300, -1e300}) {
        type->extremes.append({name, extreme});
    }
    for (double none : {std::nan(""), Infinity, -Infinity}) {
        type->invisible.append({name, none});
    }
}

QVariantMap OutlineShape::somePoints()
{
    QPolygonF polygon;
    for (int count = *rc::gen::element(3, 4, 5, *rc::gen::inRange(6, 21), 200); count > 0; --count) {
        polygon.append(QPointF(someCoordinate(-60, 140), someCoordinate(-40, 100)));
    }
    return {{Points, toList(polygon)}};
}

QVariantMap OutlineShape::somePointsAndStops()
{
    QVariantMap values = somePoints();
    values.insert(Stops, toList(someStops()));
    return values;
}

QPolygonF OutlineShape::points(const QQuickItem& item)
{
    QPolygonF polygon;
    const QVariantList points = item.property("points").toList();
    for (const QVariant& point : points) {
        polygon.append(QPointF(point.toList().at(0).toDouble(), point.toList().at(1).toDouble()));
    }
    return polygon;
}

QGradientStops OutlineShape::stops(const QQuickItem& item)
{
    QGradientStops stops;
    const QVariantList list = item.property("gradientStops").toList();
    for (const QVariant& stop : list) {
        const double position = stop.toList().at(0).toDouble();
        if (position >= 0 && position <= 1) {
            stops.append({position, stop.toList().at(1).value<QColor>()});
        }
    }
    return stops.isEmpty() ? QGradientStops({{0, Qt::transparent}}) : stops;
}

QVariantList OutlineShape::toList(const QPolygonF& polygon)
{
    QVariantList list;
    for (const QPointF& point : polygon) {
        list.append(QVariant(QVariantList{point.x(), point.y()}));
    }
    return list;
}

QVariantList OutlineShape::toList(const QGradientStops& stops)
{
    QVariantList list;
    for (const QGradientStop& stop : stops) {
        list.append(QVariant(QVariantList{stop.first, stop.second}));
    }
    return list;
}

bool OutlineShape::run(QQuickItem* item, const QString& script)
{
    QQmlExpression expression(qmlContext(item), item, script);
    expression.evaluate();
    if (expression.hasError()) {
        qWarning("%s", qPrintable(expression.error().toString()));
    }
    return !expression.hasError();
}
