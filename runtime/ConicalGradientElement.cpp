#include "runtime/ConicalGradientElement.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Display {
ConicalGradientElement::ConicalGradientElement(QQuickItem* parent)
    : GradientItem(parent)
{}

void ConicalGradientElement::paintContent(QPainter* painter) const
{
    QConicalGradient gradient(QPointF(m_centerX, m_centerY), m_startAngle);
    gradient.setStops(stops());
    Common::PaintHelper::paintGradientItem(polygon(), gradient, painter);
}
} // namespace Korvex::Meridane::Display
