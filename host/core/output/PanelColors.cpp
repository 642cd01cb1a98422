#include "host/core/output/PanelColors.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace Korvex::Meridane::Designer {

namespace {

using Levels = std::array<quint8, 256>; // what is shown, by what is wanted

/// Bayer's matrix: the order in which the pixels of a square take the higher level.
constexpr int PatternSide = 4;
constexpr int Pattern[PatternSide][PatternSide] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
constexpr int PatternSteps = PatternSide * PatternSide;

constexpr int highestLevel(int bits)
{
    return (1 << bits) - 1;
}

/// The highest level that is not above \a value.
constexpr int levelBelow(int value, int bits)
{
    int level = highestLevel(bits);
    while (PanelColors::widened(level, bits) > value)
        --level;
    return level;
}

constexpr Levels nearestLevels(int bits)
{
    Levels levels{};
    for (int value = 0; value < 256; ++value) {
        const int below = levelBelow(value, bits);
        const int above = std::min(below + 1, highestLevel(bits));
        const int low = PanelColors::widened(below, bits);
        const int high = PanelColors::widened(above, bits);
        levels[std::size_t(value)] = quint8(value - low <= high - value ? low : high);
    }
    return levels;
}

/// The levels of a pixel whose turn in the pattern is \a step: the higher level from its share of the way on.
constexpr Levels ditheredLevels(int bits, int step)
{
    Levels levels{};
    for (int value = 0; value < 256; ++value) {
        const int below = levelBelow(value, bits);
        const int above = std::min(below + 1, highestLevel(bits));
        const int low = PanelColors::widened(below, bits);
        const int high = PanelColors::widened(above, bits);
        const bool takesHigh = (value - low) * 2 * PatternSteps > (high - low) * (2 * step + 1);
        levels[std::size_t(value)] = quint8(takesHigh ? high : low);
    }
    return levels;
}

struct ChannelLevels
{
    Levels red;
    Levels green;
    Levels blue;

    [[nodiscard]] QRgb operator()(QRgb pixel) const
    {
        return qRgb(red[std::size_t(qRed(pixel))], green[std::size_t(qGreen(pixel))], blue[std::size_t(qBlue(pixel))]);
    }
};

ChannelLevels nearest(int redBits, int greenBits, int blueBits)
{
    return {nearestLevels(redBits), nearestLevels(greenBits), nearestLevels(blueBits)};
}

const std::array<ChannelLevels, PatternSteps>& ditheredByStep()
{
    static const std::array<ChannelLevels, PatternSteps> tables = [] {
        std::array<ChannelLevels, PatternSteps> made{};
        for (int step = 0; step < PatternSteps; ++step)
            made[std::size_t(step)] = {ditheredLevels(5, step), ditheredLevels(6, step), ditheredLevels(5, step)};
        return made;
    }();
    return tables;
}

template <typename Shown>
void mapPixels(QImage* image, const Shown& shown)
{
    for (int y = 0; y < image->height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image->scanLine(y));
        for (int x = 0; x < image->width(); ++x)
            line[x] = shown(line[x], x, y);
    }
}

QImage onBlack(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return picture.convertToFormat(QImage::Format_RGB32);
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::black);
    QPainter painter(&opaque);
    painter.drawImage(QRect(QPoint(0, 0), picture.size()), picture);
    return opaque;
}

} // namespace

QString PanelColors::name(PanelFormat format)
{
    switch (format) {
    case PanelFormat::Full:
        break;
    case PanelFormat::Rgb565:
        return QStringLiteral("rgb565");
    case PanelFormat::Rgb565Dithered:
        return QStringLiteral("rgb565-dithered");
    case PanelFormat::Rgb332:
        return QStringLiteral("rgb332");
    case PanelFormat::Grey:
        return QStringLiteral("grey");
    }
    return QStringLiteral("full");
}

QList<PanelFormat> PanelColors::formats()
{
    return {PanelFormat::Full, PanelFormat::Rgb565, PanelFormat::Rgb565Dithered, PanelFormat::Rgb332,
            PanelFormat::Grey};
}

std::optional<PanelFormat> PanelColors::named(const QString& name)
{
    const QList<PanelFormat> all = formats();
    for (const PanelFormat format : all) {
        if (PanelColors::name(format) == name)
            return format;
    }
    return std::nullopt;
}

QImage PanelColors::shown(const QImage& picture, PanelFormat format)
{
    if (picture.isNull())
        return {};
    QImage image = onBlack(picture);
    switch (format) {
    case PanelFormat::Full:
        break;
    case PanelFormat::Rgb565: {
        static const ChannelLevels levels = nearest(5, 6, 5);
        mapPixels(&image, [](QRgb pixel, int, int) { return levels(pixel); });
        break;
    }
    case PanelFormat::Rgb332: {
        static const ChannelLevels levels = nearest(3, 3, 2);
        mapPixels(&image, [](QRgb pixel, int, int) { return levels(pixel); });
        break;
    }
    case PanelFormat::Rgb565Dithered:
        mapPixels(&image, [&tables = ditheredByStep()](QRgb pixel, int x, int y) {
            return tables[std::size_t(Pattern[y % PatternSide][x % PatternSide])](pixel);
        });
        break;
    case PanelFormat::Grey:
        mapPixels(&image, [](QRgb pixel, int, int) {
            const int grey = qGray(pixel);
            return qRgb(grey, grey, grey);
        });
        break;
    }
    return image;
}

int PanelColors::largestError(int bits)
{
    const Levels levels = nearestLevels(bits);
    int error = 0;
    for (int value = 0; value < 256; ++value)
        error = std::max(error, std::abs(value - int(levels[std::size_t(value)])));
    return error;
}

} // namespace Korvex::Meridane::Designer
