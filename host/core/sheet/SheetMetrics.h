#pragma once

#include <algorithm>

class QWidget;

namespace Korvex::Meridane::Designer {

/// The measures, in pixels, that all parts of the property sheet share, so that its columns line up.
struct SheetMetrics
{
    static constexpr int Margin = 12; ///< between the sheet's edge and its content
    static constexpr int RowGap = 8; ///< between two rows
    static constexpr int LabelGap = 8; ///< between a label and its editor
    static constexpr int WidestLabel = 128; ///< what a wide sheet gives to its labels

    /// The height of a one-line field in the style of \a widget; labels are centred on it.
    [[nodiscard]] static int fieldHeight(const QWidget* widget);
    /// The width of the labels in a sheet of that width: always the same, so that the columns stay where they are when
    /// the selection changes. Longer labels break into lines.
    [[nodiscard]] static int labelWidth(int sheetWidth) { return std::min(sheetWidth * 34 / 100, WidestLabel); }
};

} // namespace Korvex::Meridane::Designer
