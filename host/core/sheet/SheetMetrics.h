#pragma once

class QWidget;

namespace Korvex::Meridane::Designer {

/// The measures, in pixels, that all parts of the property sheet share, so that its columns line up.
struct SheetMetrics {
    static constexpr int Margin = 12; ///< between the sheet's edge and its content
    static constexpr int RowGap = 8; ///< between two rows
    static constexpr int LabelGap = 8; ///< between a label and its editor

    /// The height of a one-line field in the style of \a widget; labels are centred on it.
    [[nodiscard]] static int fieldHeight(const QWidget* widget);
    /// The width of the labels in a sheet of that width: always the same, so that the columns stay where they are when
    /// the selection changes. Longer labels break into lines.
    [[nodiscard]] static int labelWidth(int sheetWidth) { return sheetWidth * 34 / 100; }
};

} // namespace Korvex::Meridane::Designer
