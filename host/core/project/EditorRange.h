#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/// What to say of a stored number or size that lies outside of what its editor takes ("minimum", "maximum",
/// "minimumValue" of the editor parameters); empty where nothing is to say. Such a value is accepted everywhere, but is
/// rarely meant: a length of 0 is invisible.
[[nodiscard]] QString editorRangeAdvice(const DesignerProperty& property);

} // namespace Korvex::Meridane::Designer
