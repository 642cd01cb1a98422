#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/// `<prefix>X` and `<prefix>Y` of a point property, rounded to whole numbers, halves away from zero. A value that does not
/// convert writes nothing.
[[nodiscard]] QString wholePointQml(const DesignerProperty* property, int indent, const char* prefix);

} // namespace Korvex::Meridane::Designer
