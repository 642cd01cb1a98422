#pragma once

#include <QtCore/QList>
#include <QtGui/QColor>

namespace Korvex::Meridane::Designer {
/**
 * A widget that knows which colours are in use around it. A ColorWidget asks the nearest one among its parents when its
 * popup opens, and offers those colours there.
 */
class ColorSource
{
public:
    virtual ~ColorSource() = default;

    /** The colours in use, the most used first. */
    [[nodiscard]] virtual QList<QColor> colorsInUse() const = 0;

protected:
    ColorSource() = default;
    Q_DISABLE_COPY_MOVE(ColorSource)
};
} // namespace Korvex::Meridane::Designer
