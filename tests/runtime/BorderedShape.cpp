#include "tests/runtime/BorderedShape.h"

#include <QtQuick/QQuickItem>

#include <limits>

#include <rapidcheck.h>

namespace {
constexpr int LargestInt = std::numeric_limits<int>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();

QColor someColor()
{
    const int alpha = *rc::gen::element(255, 255, 0, 128, 40);
    return QColor(*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), alpha);
}

double someLength(int to)
{
    return *rc::gen::inRange(100, to * 100) / 100.0;
}
} // namespace

DisplayType BorderedShape::type(const QString& name)
{
    DisplayType type;
    type.name = name;
    type.defaults = {{QStringLiteral("color"), QColor(248, 151, 29)},
                     {QStringLiteral("borderWidth"), 0},
                     {QStringLiteral("borderColor"), QColor(Qt::black)}};
    type.sample = {{QStringLiteral("borderWidth"), 4}};
    type.changes = {{QStringLiteral("color"), QColor(0, 80, 160, 200)},
                    {QStringLiteral("borderWidth"), 9},
                    {QStringLiteral("borderColor"), QColor(Qt::red)}};
    for (int width : {0, -1, 1000, -LargestInt, LargestInt}) {
        type.extremes.append({QStringLiteral("borderWidth"), width});
    }
    type.extremes.append({QStringLiteral("color"), QColor()});
    type.extremes.append({QStringLiteral("borderColor"), QColor()});
    return type;
}

QVariantMap BorderedShape::someValues()
{
    return {{QStringLiteral("color"), someColor()},
            {QStringLiteral("borderWidth"), *rc::gen::inRange(0, 30)},
            {QStringLiteral("borderColor"), someColor()}};
}

QPen BorderedShape::pen(const QQuickItem& item)
{
    const int width = item.property("borderWidth").toInt();
    return width > 0 ? QPen(item.property("borderColor").value<QColor>(), width) : QPen(Qt::NoPen);
}

QColor BorderedShape::color(const QQuickItem& item)
{
    return item.property("color").value<QColor>();
}

void BorderedShape::addSize(DisplayType* type)
{
    type->sample.insert(QStringLiteral("width"), 100.0);
    type->sample.insert(QStringLiteral("height"), 75.0);
    type->changes.insert(QStringLiteral("width"), 63.5);
    type->changes.insert(QStringLiteral("height"), 41.25);
    type->huge = {{QStringLiteral("width"), 9000.0}, {QStringLiteral("height"), 7000.0}};
    for (const char* side : {"width", "height"}) {
        for (double length : {0.001, 1e5, 1e9}) {
            type->extremes.append({QString::fromLatin1(side), length});
        }
        for (double length : {0.0, -5.0, Infinity, -Infinity}) {
            type->invisible.append({QString::fromLatin1(side), length});
        }
    }
}

QVariantMap BorderedShape::someSize()
{
    return {{QStringLiteral("width"), someLength(160)}, {QStringLiteral("height"), someLength(120)}};
}
