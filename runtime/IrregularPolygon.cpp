#include "runtime/IrregularPolygon.h"

namespace Korvex::Meridane::Display {
IrregularPolygon::IrregularPolygon(QQuickItem* parent)
    : FilledPolygon(parent)
{}
} // namespace Korvex::Meridane::Display
