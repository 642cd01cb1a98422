#include "tests/display/sheets/Sheets.h"

namespace {

constexpr int Directions = 52; // one every 7 degrees
constexpr int DegreesApart = 7;
constexpr int Thickest = 100;

/// Every direction twice and every thickness once.
QJsonArray straight()
{
    SheetValues values(41);
    return addElements("Line", 2 * Directions, [&values](int i) {
        return QJsonObject{{QStringLiteral("position"), values.pair(-20, 340, -20, 260)},
                           {QStringLiteral("angle"), QString::number(DegreesApart * i % 360)},
                           {QStringLiteral("length"), values.real(1, 160)},
                           {QStringLiteral("width"), QString::number(1 + i % Thickest)},
                           {QStringLiteral("color"), values.color()}};
    });
}

/// About every fixed point: the start of the line all the same.
QJsonArray rotated()
{
    SheetValues values(42);
    return addElements("Line", 60, [&values](int) {
        return QJsonObject{{QStringLiteral("position"), values.pair(40, 280, 40, 200)},
                           {QStringLiteral("angle"), values.real(0, 359)},
                           {QStringLiteral("length"), values.real(20, 60)},
                           {QStringLiteral("width"), QString::number(values.whole(1, 20))},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("rotation"), values.rotation()}};
    });
}

} // namespace

QList<Sheet> lineSheets()
{
    return {{QStringLiteral("lines"), straight()}, {QStringLiteral("rotated lines"), rotated()}};
}
