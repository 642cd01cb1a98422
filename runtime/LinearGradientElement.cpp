#include "runtime/LinearGradientElement.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Display {
LinearGradientElement::LinearGradientElement(QQuickItem* parent)
    : GradientItem(parent)
{}

void LinearGradientElement::paintContent(QPainter* painter) const
{
    QLinearGradient gradient(m_startX, m_startY, m_stopX, m_stopY);
    gradient.setStops(stops());
    Common::PaintHelper::paintGradientItem(polygon(), gradient, painter);
}
} // namespace Korvex::Meridane::Display
