#include "tests/display/sheets/Sheets.h"

#include <algorithm>

namespace {

/// Whole and broken positions and sizes, borders, radii, alpha, overlaps, parts outside of the screen.
QJsonArray straight()
{
    SheetValues values(7);
    return addElements("Rectangle", 150, [&values](int) {
        const int width = values.whole(3, 92);
        const int height = values.whole(3, 62);
        return QJsonObject{
            {QStringLiteral("position"), values.pair(-20, 310, -20, 230)},
            {QStringLiteral("size"), values.pair(width, width + 1, height, height + 1)},
            {QStringLiteral("color"), values.color()},
            {QStringLiteral("border"), values.border(6)},
            {QStringLiteral("cornerRadius"), QString::number(values.whole(0, std::min({width, height, 100}) / 2))}};
    });
}

QJsonArray rotated()
{
    SheetValues values(8);
    return addElements("Rectangle", 60, [&values](int i) {
        return QJsonObject{{QStringLiteral("position"), values.pair(0, 290, 0, 210)},
                           {QStringLiteral("size"), values.pair(24, 36, 18, 26)},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("border"), values.border(5)},
                           {QStringLiteral("cornerRadius"), QString::number(i % 4 * 3)},
                           {QStringLiteral("rotation"), values.rotation()}};
    });
}

} // namespace

QList<Sheet> rectangleSheets()
{
    return {{QStringLiteral("rectangles"), straight()}, {QStringLiteral("rotated rectangles"), rotated()}};
}
