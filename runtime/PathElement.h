#pragma once

#include "runtime/FilledPolygon.h"

namespace Korvex::Meridane::Display {
/** A free outline, filled with one colour. */
class PathElement : public Korvex::Meridane::Display::FilledPolygon
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit PathElement(QQuickItem* parent = nullptr);
};
} // namespace Korvex::Meridane::Display
