#include "tests/display/sheets/Sheet.h"

#include <array>

SheetValues::SheetValues(quint32 seed)
    : m_random(seed)
{}

int SheetValues::whole(int low, int high)
{
    return low + int(m_random.bounded(high - low + 1));
}

QString SheetValues::real(double low, double high)
{
    const double value = low + m_random.bounded(high - low);
    return QString::number(value, 'f', whole(0, 2));
}

QString SheetValues::pair(double lowX, double highX, double lowY, double highY)
{
    const QString x = real(lowX, highX);
    return x + QLatin1Char(',') + real(lowY, highY);
}

QString SheetValues::color()
{
    const quint32 opaque = whole(0, 1) == 0 ? 0xff000000 : 0;
    return QStringLiteral("#%1").arg(m_random.generate() | opaque, 8, 16, QLatin1Char('0'));
}

QString SheetValues::border(int widest)
{
    const int width = whole(0, 2) == 0 ? 0 : whole(1, widest);
    return QStringLiteral("width: %1; color: %2;").arg(width).arg(color());
}

QString SheetValues::rotation()
{
    constexpr std::array<const char*, 9> Points{"TopLeft", "Top",        "TopRight", "Left",       "Center",
                                                "Right",   "BottomLeft", "Bottom",   "BottomRight"};
    const std::size_t count = m_rotations++;
    // Each round starts at the next point: elements that repeat meet another one.
    const char* point = Points[(count + count / Points.size()) % Points.size()];
    const QString angle = count % 3 == 0 ? QString::number(90 * whole(-3, 4)) : real(-360, 360);
    return QStringLiteral("angle: %1; fixedPoint: %2;").arg(angle, QLatin1String(point));
}

QJsonArray addElements(const char* className, int count, const std::function<QJsonObject(int)>& properties)
{
    QJsonArray edits;
    for (int i = 0; i < count; ++i)
        edits.append(QJsonObject{{QStringLiteral("op"), QStringLiteral("add")},
                                 {QStringLiteral("class"), QLatin1String(className)},
                                 {QStringLiteral("properties"), properties(i)}});
    return edits;
}
