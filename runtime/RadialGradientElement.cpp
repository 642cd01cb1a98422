#include "runtime/RadialGradientElement.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Display {
RadialGradientElement::RadialGradientElement(QQuickItem* parent)
    : GradientItem(parent)
{}

void RadialGradientElement::paintContent(QPainter* painter) const
{
    QRadialGradient gradient(QPointF(m_centerX, m_centerY), m_radius, QPointF(m_focalX, m_focalY));
    gradient.setSpread(
        static_cast<QGradient::Spread>(qBound<int>(QGradient::PadSpread, m_spread, QGradient::RepeatSpread)));
    gradient.setStops(stops());
    Common::PaintHelper::paintGradientItem(polygon(), gradient, painter);
}
} // namespace Korvex::Meridane::Display
