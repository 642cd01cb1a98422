#pragma once

#include <QStringView>

namespace Korvex::Meridane::Designer {

/// How well a few typed letters fit a text that holds them in this order, as people abbreviate names.
class FuzzyMatch
{
public:
    FuzzyMatch() = delete;

    /// Whether \a text has the letters of \a pattern in their order; case does not matter. An empty pattern fits all.
    [[nodiscard]] static bool contains(QStringView pattern, QStringView text);
    /**
     * How well \a pattern fits \a text: 0 for not at all, more for a better fit. Letters at the start of words and letters
     * side by side count most; where more than half of the letters are strewn about, nothing fits. Short texts win over
     * long ones, and a text that is the pattern over all others. Only the first 200 letters of a text are looked at.
     */
    [[nodiscard]] static int score(QStringView pattern, QStringView text);
};

} // namespace Korvex::Meridane::Designer
