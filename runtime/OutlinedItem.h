#pragma once

#include "runtime/DisplayItem.h"

namespace Korvex::Meridane::Display {
class FixedPointShift;

/**
 * Base of the elements that have no width and height but an outline of their own, which may lie anywhere about the item's
 * position: they turn about a point of a rectangle that the type names.
 */
class OutlinedItem : public Korvex::Meridane::Display::DisplayItem
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit OutlinedItem(QQuickItem* parent = nullptr);

protected:
    /** The rectangle, in item coordinates, on which the fixed point of the rotation lies. */
    [[nodiscard]] virtual QRectF contentRect() const = 0;
    /** To be called instead of contentChanged() when the outline has changed. */
    void outlineChanged();
    void applyFixedPoint() override;

private:
    FixedPointShift* m_shift;
};
} // namespace Korvex::Meridane::Display
