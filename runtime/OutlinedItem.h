#pragma once

#include "runtime/DisplayItem.h"

#include <QtGui/QColor>

namespace Korvex::Meridane::Display {
class FixedPointShift;

/**
 * Base of the elements that have no width and height but an outline of their own, which may lie anywhere about the item's
 * position: filled with one colour, turned about a point of a rectangle that the type names.
 */
class OutlinedItem : public Korvex::Meridane::Display::DisplayItem
{
    Q_OBJECT
    /** The colour of the filling; it may be translucent. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ANONYMOUS

public:
    explicit OutlinedItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QColor color() const;
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

protected:
    /** The rectangle, in item coordinates, on which the fixed point of the rotation lies. */
    [[nodiscard]] virtual QRectF contentRect() const = 0;
    /** To be called instead of contentChanged() when the outline has changed. */
    void outlineChanged();
    void applyFixedPoint() override;

private:
    FixedPointShift* m_shift;
    QColor m_color = QColor(248, 151, 29);
};
} // namespace Korvex::Meridane::Display
