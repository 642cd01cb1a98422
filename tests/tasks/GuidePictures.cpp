#include "tests/tasks/GuidePictures.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Korvex::Meridane::Designer::Test {

namespace {

constexpr std::size_t MostColors = 256;

struct CountedColor
{
    QRgb color;
    int count;
};

/// A part of the colors of a picture, cut where it is widest.
struct ColorBox
{
    std::vector<CountedColor> colors;

    static int channel(QRgb color, int which) { return int(color >> (8 * which)) & 0xff; }

    /// The channel in which the colors differ most, and by how much.
    [[nodiscard]] std::pair<int, int> widest() const
    {
        std::pair<int, int> found(0, 0);
        for (int which = 0; which < 3; ++which) {
            const auto [least, most] =
                std::minmax_element(colors.begin(), colors.end(), [which](const auto& a, const auto& b) {
                    return channel(a.color, which) < channel(b.color, which);
                });
            const int width = channel(most->color, which) - channel(least->color, which);
            if (width > found.second)
                found = {which, width};
        }
        return found;
    }

    /// How much it would help to split this one.
    [[nodiscard]] double spread() const
    {
        double all = 0;
        for (const CountedColor& each : colors)
            all += each.count;
        return colors.size() < 2 ? 0 : widest().second * std::sqrt(all);
    }

    /// Takes the upper half of the pixels out.
    ColorBox split()
    {
        const int which = widest().first;
        std::sort(colors.begin(), colors.end(),
                  [which](const auto& a, const auto& b) { return channel(a.color, which) < channel(b.color, which); });
        qint64 all = 0;
        for (const CountedColor& each : colors)
            all += each.count;
        qint64 below = 0;
        auto middle = colors.begin();
        while (middle + 1 != colors.end() - 1 && below + middle->count < all / 2)
            below += (middle++)->count;
        ColorBox upper{{middle + 1, colors.end()}};
        colors.erase(middle + 1, colors.end());
        return upper;
    }

    /// The color that most pixels have: large areas stay as they are.
    [[nodiscard]] QRgb representative() const
    {
        return std::max_element(colors.begin(), colors.end(),
                                [](const auto& a, const auto& b) { return a.count < b.count; })
            ->color;
    }
};

} // namespace

QStringList GuidePictures::names()
{
    return {QStringLiteral("designer-light"),  QStringLiteral("designer-dark"),
            QStringLiteral("start-page"),      QStringLiteral("first-screen"),
            QStringLiteral("snapping"),        QStringLiteral("guides"),
            QStringLiteral("several-frame"),   QStringLiteral("property-sheet"),
            QStringLiteral("refused-value"),   QStringLiteral("mixed-values"),
            QStringLiteral("color-popup"),     QStringLiteral("image-panel"),
            QStringLiteral("screens-panel"),   QStringLiteral("project-tree"),
            QStringLiteral("problems"),        QStringLiteral("find"),
            QStringLiteral("qml-panel"),       QStringLiteral("as-on-panel"),
            QStringLiteral("command-palette"), QStringLiteral("shortcuts-dialog")};
}

QImage GuidePictures::reduced(const QImage& picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < source.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < source.width(); ++x)
            ++counts[line[x]];
    }
    std::vector<ColorBox> boxes(1);
    for (auto color = counts.cbegin(); color != counts.cend(); ++color)
        boxes.front().colors.push_back({color.key(), color.value()});
    // A hash has an order of its own in every run.
    std::sort(boxes.front().colors.begin(), boxes.front().colors.end(),
              [](const auto& a, const auto& b) { return a.color < b.color; });
    while (boxes.size() < MostColors) {
        double most = 0;
        ColorBox* chosen = nullptr;
        for (ColorBox& box : boxes) {
            if (const double spread = box.spread(); spread > most) {
                most = spread;
                chosen = &box;
            }
        }
        if (!chosen)
            break;
        ColorBox upper = chosen->split();
        boxes.push_back(std::move(upper));
    }
    QList<QRgb> table;
    QHash<QRgb, uchar> places;
    for (const ColorBox& box : boxes) {
        for (const CountedColor& each : box.colors)
            places.insert(each.color, uchar(table.size()));
        table.append(box.representative());
    }
    QImage result(source.size(), QImage::Format_Indexed8);
    result.setColorTable(table);
    for (int y = 0; y < source.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        uchar* target = result.scanLine(y);
        for (int x = 0; x < source.width(); ++x)
            target[x] = places.value(line[x]);
    }
    return result;
}

} // namespace Korvex::Meridane::Designer::Test
