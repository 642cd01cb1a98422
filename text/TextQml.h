#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

// The QML lines of a text box's properties that have a form of their own, indented by \a indent tabs.

/// `text: "..."`, escaped; also for the empty text.
[[nodiscard]] QString textQml(const DesignerProperty* property, int indent);

/// `verticalAlignment` (0 top, 1 centre, 2 bottom) and `horizontalAlignment` (0 left, 1 centre, 2 right). Any number that
/// is none of the nine alignments is top left; what is no number writes nothing.
[[nodiscard]] QString alignmentQml(const DesignerProperty* property, int indent);

/// `textStyle` (0 normal, 1 outlined, 2 raised, 3 sunken) and `styleColor`, red for a normal style and where no colour is
/// given. Nothing when the value is no group or names no style.
[[nodiscard]] QString textStyleQml(const DesignerProperty* property, int indent);

} // namespace Korvex::Meridane::Designer
