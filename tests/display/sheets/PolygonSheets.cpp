#include "tests/display/sheets/Sheets.h"

namespace {

constexpr int FewestEdges = 3;
constexpr int MostEdges = 20;
constexpr int EdgeCounts = MostEdges - FewestEdges + 1;

/// Every number of edges several times, in many sizes.
QJsonArray straight()
{
    SheetValues values(31);
    return addElements("Polygon", 6 * EdgeCounts, [&values](int i) {
        const int edges = FewestEdges + i % EdgeCounts;
        return QJsonObject{{QStringLiteral("position"), values.pair(-20, 300, -20, 220)},
                           {QStringLiteral("edges"), QString::number(edges)},
                           {QStringLiteral("edgeLength"), values.real(1, 220.0 / edges)},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("border"), values.border(20)}};
    });
}

QJsonArray rotated()
{
    SheetValues values(32);
    return addElements("Polygon", 3 * EdgeCounts, [&values](int i) {
        const int edges = FewestEdges + i % EdgeCounts;
        return QJsonObject{{QStringLiteral("position"), values.pair(0, 290, 0, 210)},
                           {QStringLiteral("edges"), QString::number(edges)},
                           {QStringLiteral("edgeLength"), values.real(80.0 / edges, 110.0 / edges)},
                           {QStringLiteral("color"), values.color()},
                           {QStringLiteral("border"), values.border(8)},
                           {QStringLiteral("rotation"), values.rotation()}};
    });
}

} // namespace

QList<Sheet> polygonSheets()
{
    return {{QStringLiteral("polygons"), straight()}, {QStringLiteral("rotated polygons"), rotated()}};
}
