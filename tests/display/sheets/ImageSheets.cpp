#include "tests/display/sheets/Sheets.h"

#include <iterator>

namespace {

const char* const Files[] = {"lake.jpg", "balloon.png", "planet.webp", "tile.bmp", "lighthouse.gif", "gauge.svg"};

QString someFile(SheetValues& values)
{
    return QString::fromLatin1(Files[values.whole(0, int(std::size(Files)) - 1)]);
}

/// A picture of each kind, taken from the example.
QJsonArray imports()
{
    QJsonArray edits;
    for (const char* file : Files) {
        edits.append(QJsonObject{{QStringLiteral("op"), QStringLiteral("import-image")},
                                 {QStringLiteral("file"),
                                  QStringLiteral(MERIDANE_EXAMPLES "/sheets/images/images/") + QLatin1String(file)}});
    }
    return edits;
}

QJsonArray withImports(const QJsonArray& elements)
{
    QJsonArray edits = imports();
    for (const QJsonValue element : elements)
        edits.append(element);
    return edits;
}

/// Reduced and enlarged, in and out of proportion, between pixels and beyond the screen.
QJsonArray straight()
{
    SheetValues values(91);
    return withImports(addElements("Image", 60, [&values](int) {
        return QJsonObject{{QStringLiteral("position"), values.pair(-20, 310, -20, 230)},
                           {QStringLiteral("size"), values.pair(1, values.whole(2, 200), 1, values.whole(2, 160))},
                           {QStringLiteral("source"), someFile(values)}};
    }));
}

QJsonArray rotated()
{
    SheetValues values(92);
    return withImports(addElements("Image", 40, [&values](int) {
        return QJsonObject{{QStringLiteral("position"), values.pair(0, 280, 0, 200)},
                           {QStringLiteral("size"), values.pair(16, 70, 12, 60)},
                           {QStringLiteral("source"), someFile(values)},
                           {QStringLiteral("rotation"), values.rotation()}};
    }));
}

} // namespace

QList<Sheet> imageSheets()
{
    return {{QStringLiteral("images"), straight()}, {QStringLiteral("rotated images"), rotated()}};
}
