#include "runtime/Group.h"

namespace Korvex::Meridane::Display {
Group::Group(QQuickItem* parent)
    : DisplayElement(parent)
{}
} // namespace Korvex::Meridane::Display
