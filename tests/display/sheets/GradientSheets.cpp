#include "tests/display/sheets/Sheets.h"

#include <QStringList>

#include <array>
#include <functional>

namespace {

using Properties = std::function<void(SheetValues&, QJsonObject*)>;

/// \a count points in a square of \a side pixels that begins up to half of that beside the element's position; most of
/// them cross themselves.
QString points(SheetValues& values, int count, int side)
{
    const int x = values.whole(-side / 2, side / 2);
    const int y = values.whole(-side / 2, side / 2);
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(values.pair(x, x + side, y, y + side));
    return list.join(QLatin1Char(' '));
}

/// 2 to 8 colours at whole percents that are a tenth apart or more; one list in eight has all 101 stops.
QString stops(SheetValues& values)
{
    QStringList list;
    if (values.whole(0, 7) == 0) {
        for (int percent = 0; percent <= 100; ++percent)
            list.append(QStringLiteral("%1 #%2ff%3")
                            .arg(percent / 100.0)
                            .arg(2 * percent, 2, 16, QLatin1Char('0'))
                            .arg(255 - 2 * percent, 2, 16, QLatin1Char('0')));
        return list.join(QLatin1String(", "));
    }
    const int count = values.whole(2, 8);
    for (int i = 0; i < count; ++i) {
        const int percent = 100 * i / count + values.whole(0, 100 / count - 10);
        list.append(QString::number(percent / 100.0) + QLatin1Char(' ') + values.color());
    }
    return list.join(QLatin1String(", "));
}

QString wholePair(SheetValues& values, int low, int high)
{
    return QStringLiteral("%1,%2").arg(values.whole(low, high)).arg(values.whole(low, high));
}

void line(SheetValues& values, QJsonObject* properties)
{
    properties->insert(QStringLiteral("start"), wholePair(values, 0, 40));
    properties->insert(QStringLiteral("finalStop"), wholePair(values, 60, 100));
}

/// A focal point in two lies outside the circle, where the colours go no further than that.
void circle(SheetValues& values, QJsonObject* properties)
{
    constexpr std::array<const char*, 3> Spreads{"PadSpread", "ReflectSpread", "RepeatSpread"};
    const int x = values.whole(-20, 60);
    const int y = values.whole(-20, 60);
    const int radius = values.whole(20, 70);
    const bool outside = values.whole(0, 1) == 0;
    const int distance = outside ? 2 * radius : radius / 4;
    properties->insert(QStringLiteral("center"), QStringLiteral("%1,%2").arg(x).arg(y));
    properties->insert(QStringLiteral("radius"), QString::number(radius));
    properties->insert(QStringLiteral("focalPoint"), QStringLiteral("%1,%2").arg(x + distance).arg(y - distance));
    properties->insert(QStringLiteral("spread"),
                       QLatin1String(Spreads.at(outside ? 0 : std::size_t(values.whole(0, 2)))));
}

void sweep(SheetValues& values, QJsonObject* properties)
{
    properties->insert(QStringLiteral("center"), wholePair(values, -100, 200));
    properties->insert(QStringLiteral("startAngle"), values.real(0, 359));
}

void color(SheetValues& values, QJsonObject* properties)
{
    properties->insert(QStringLiteral("color"), values.color());
}

QJsonArray straight(quint32 seed, const char* className, const Properties& more)
{
    SheetValues values(seed);
    return addElements(className, 60, [&values, &more](int i) {
        QJsonObject properties{{QStringLiteral("position"), values.pair(-20, 310, -20, 230)},
                               {QStringLiteral("points"), points(values, 3 + i % 18, values.whole(2, 90))}};
        more(values, &properties);
        return properties;
    });
}

QJsonArray rotated(quint32 seed, const char* className, const Properties& more)
{
    SheetValues values(seed);
    return addElements(className, 36, [&values, &more](int i) {
        QJsonObject properties{{QStringLiteral("position"), values.pair(20, 280, 20, 200)},
                               {QStringLiteral("points"), points(values, 3 + i % 6, values.whole(20, 50))},
                               {QStringLiteral("rotation"), values.rotation()}};
        more(values, &properties);
        return properties;
    });
}

Properties gradient(const Properties& geometry)
{
    return [geometry](SheetValues& values, QJsonObject* properties) {
        properties->insert(QStringLiteral("gradientStops"), stops(values));
        geometry(values, properties);
    };
}

} // namespace

QList<Sheet> gradientSheets()
{
    return {{QStringLiteral("paths"), straight(61, "PathElement", color)},
            {QStringLiteral("rotated paths"), rotated(62, "PathElement", color)},
            {QStringLiteral("linear gradients"), straight(63, "LinearGradientElement", gradient(line))},
            {QStringLiteral("rotated linear gradients"), rotated(64, "LinearGradientElement", gradient(line))},
            {QStringLiteral("radial gradients"), straight(65, "RadialGradientElement", gradient(circle))},
            {QStringLiteral("rotated radial gradients"), rotated(66, "RadialGradientElement", gradient(circle))},
            {QStringLiteral("conical gradients"), straight(67, "ConicalGradientElement", gradient(sweep))},
            {QStringLiteral("rotated conical gradients"), rotated(68, "ConicalGradientElement", gradient(sweep))}};
}
