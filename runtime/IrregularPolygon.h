#pragma once

#include "runtime/FilledPolygon.h"

namespace Korvex::Meridane::Display {
/** A filled polygon of any points. */
class IrregularPolygon : public Korvex::Meridane::Display::FilledPolygon
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit IrregularPolygon(QQuickItem* parent = nullptr);
};
} // namespace Korvex::Meridane::Display
