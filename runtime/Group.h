#pragma once

#include "runtime/DisplayElement.h"

namespace Korvex::Meridane::Display {
/** Elements that are placed, turned, shown and hidden together. Its children's coordinates are relative to it. */
class Group : public Korvex::Meridane::Display::DisplayElement
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit Group(QQuickItem* parent = nullptr);
};
} // namespace Korvex::Meridane::Display
