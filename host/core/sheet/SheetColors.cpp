#include "host/core/sheet/SheetColors.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// Relative luminance, 0 (black) to 1 (white), of sRGB colours as the accessibility guidelines (WCAG 2) define it.
double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of the same guidelines, 1 to 21.
double contrast(const QColor& first, const QColor& second)
{
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

QColor blended(const QColor& from, const QColor& to, double share)
{
    const auto channel = [share](double first, double second) { return first + (second - first) * share; };
    return QColor::fromRgbF(static_cast<float>(channel(from.redF(), to.redF())),
                            static_cast<float>(channel(from.greenF(), to.greenF())),
                            static_cast<float>(channel(from.blueF(), to.blueF())));
}

/// \a color moved towards \a text until it can be read on \a window.
QColor legible(QColor color, const QColor& text, const QColor& window)
{
    constexpr double Wanted = 4.6;
    const QColor start = color;
    for (double share = 0.1; share <= 1 && contrast(color, window) < Wanted; share += 0.1)
        color = blended(start, text, share);
    return color;
}

} // namespace

bool isDark(const QPalette& palette)
{
    return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

QColor errorColor(const QPalette& palette)
{
    const QColor red = isDark(palette) ? QColor(0xff, 0x9a, 0x8f) : QColor(0xb3, 0x26, 0x1e);
    return legible(red, palette.color(QPalette::WindowText), palette.color(QPalette::Window));
}

QColor markColor(const QPalette& palette)
{
    return legible(palette.color(QPalette::Highlight), palette.color(QPalette::WindowText),
                   palette.color(QPalette::Window));
}

QColor quietColor(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    return legible(blended(text, window, 0.4), text, window);
}

} // namespace Korvex::Meridane::Designer
