#include "runtime/OutlinedItem.h"

#include "runtime/FixedPointShift.h"

namespace Korvex::Meridane::Display {
OutlinedItem::OutlinedItem(QQuickItem* parent)
    : DisplayItem(parent)
    , m_shift(new FixedPointShift(this))
{}

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
