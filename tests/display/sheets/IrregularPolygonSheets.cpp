#include "tests/display/sheets/Sheets.h"

#include <QStringList>

namespace {

/// \a count points in a square of \a side pixels that begins up to half of that beside the element's position; convex by
/// chance, most of them concave or crossing themselves.
QString points(SheetValues& values, int count, int side)
{
    const int x = values.whole(-side / 2, side / 2);
    const int y = values.whole(-side / 2, side / 2);
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(values.pair(x, x + side, y, y + side));
    return list.join(QLatin1Char(' '));
}

QJsonArray straight()
{
    SheetValues values(51);
    return addElements("IrregularPolygon", 90, [&values](int i) {
        return QJsonObject{{QStringLiteral("position"), values.pair(-20, 310, -20, 230)},
                           {QStringLiteral("pointList"), points(values, 3 + i % 18, values.whole(2, 90))},
                           {QStringLiteral("color"), values.color()}};
    });
}

QJsonArray rotated()
{
    SheetValues values(52);
    return addElements("IrregularPolygon", 54, [&values](int i) {
        return QJsonObject{{QStringLiteral("position"), values.pair(20, 280, 20, 200)},
                           {QStringLiteral("pointList"), points(values, 3 + i % 6, values.whole(20, 40))},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("rotation"), values.rotation()}};
    });
}

} // namespace

QList<Sheet> irregularPolygonSheets()
{
    return {{QStringLiteral("irregular polygons"), straight()},
            {QStringLiteral("rotated irregular polygons"), rotated()}};
}
