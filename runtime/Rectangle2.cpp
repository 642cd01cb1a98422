#include "runtime/Rectangle2.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Display {
Rectangle2::Rectangle2(QQuickItem* parent)
    : BorderedItem(parent)
{}

int Rectangle2::cornerRadius() const
{
    return m_cornerRadius;
}

void Rectangle2::setCornerRadius(int radius)
{
    if (radius == m_cornerRadius) {
        return;
    }
    m_cornerRadius = radius;
    contentChanged();
    Q_EMIT cornerRadiusChanged();
}

void Rectangle2::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintRectangle(size(), m_cornerRadius, pen(), color(), painter);
}
} // namespace Korvex::Meridane::Display
