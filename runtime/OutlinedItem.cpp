#include "runtime/OutlinedItem.h"

#include "runtime/FixedPointShift.h"

namespace Korvex::Meridane::Display {
OutlinedItem::OutlinedItem(QQuickItem* parent)
    : DisplayItem(parent)
    , m_shift(new FixedPointShift(this))
{}

QColor OutlinedItem::color() const
{
    return m_color;
}

void OutlinedItem::setColor(const QColor& color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    contentChanged();
    Q_EMIT colorChanged();
}

void OutlinedItem::outlineChanged()
{
    applyFixedPoint();
    contentChanged();
}

void OutlinedItem::applyFixedPoint()
{
    m_shift->setFixedPoint(fixedOrigin(), contentRect());
}
} // namespace Korvex::Meridane::Display
