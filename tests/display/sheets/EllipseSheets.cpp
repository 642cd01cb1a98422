#include "tests/display/sheets/Sheets.h"

namespace {

/// From dots and needles to ellipses larger than a cell, borders thicker than their ellipses among them.
QJsonArray straight()
{
    SheetValues values(21);
    return addElements("Ellipse", 120, [&values](int) {
        return QJsonObject{{QStringLiteral("position"), values.pair(-20, 310, -20, 230)},
                           {QStringLiteral("size"), values.pair(1, values.whole(2, 100), 1, values.whole(2, 80))},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("border"), values.border(20)}};
    });
}

QJsonArray rotated()
{
    SheetValues values(22);
    return addElements("Ellipse", 60, [&values](int) {
        return QJsonObject{{QStringLiteral("position"), values.pair(0, 290, 0, 210)},
                           {QStringLiteral("size"), values.pair(20, 44, 10, 34)},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("border"), values.border(8)},
                           {QStringLiteral("rotation"), values.rotation()}};
    });
}

} // namespace

QList<Sheet> ellipseSheets()
{
    return {{QStringLiteral("ellipses"), straight()}, {QStringLiteral("rotated ellipses"), rotated()}};
}
