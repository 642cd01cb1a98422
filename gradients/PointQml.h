#pragma once

#include <QPointF>
#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/// \a point with both coordinates rounded to whole numbers, halves away from zero.
[[nodiscard]] QPointF wholePoint(const QPointF& point);

/// `<prefix>X` and `<prefix>Y` of a point property, as whole numbers. A value that does not convert writes nothing.
[[nodiscard]] QString wholePointQml(const DesignerProperty* property, int indent, const char* prefix);

} // namespace Korvex::Meridane::Designer
