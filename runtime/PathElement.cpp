#include "runtime/PathElement.h"

namespace Korvex::Meridane::Display {
PathElement::PathElement(QQuickItem* parent)
    : FilledPolygon(parent)
{}
} // namespace Korvex::Meridane::Display
