#pragma once

#include <QPalette>

namespace Korvex::Meridane::Designer {

/// The colours of the window: the desktop's own, or a calm light or dark set for desktops that offer none.
class Appearance
{
public:
    enum class Scheme
    {
        Desktop,
        Light,
        Dark
    };

    /// The scheme that the user chose last; Desktop at the start.
    [[nodiscard]] static Scheme stored();
    /// Sets the colours of the whole application.
    static void apply(Scheme scheme);
    /// The desktop has changed its colours: what does not follow by itself takes those of the application.
    static void follow();
    /// Sets them as apply() does, and remembers that in the settings.
    static void choose(Scheme scheme);

    [[nodiscard]] static QPalette lightPalette();
    [[nodiscard]] static QPalette darkPalette();
    /// Whether \a palette shows light text on dark ground.
    [[nodiscard]] static bool isDark(const QPalette& palette);
};

} // namespace Korvex::Meridane::Designer
