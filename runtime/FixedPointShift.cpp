#include "runtime/FixedPointShift.h"

#include <QtGui/QMatrix4x4>

namespace Korvex::Meridane::Display {
FixedPointShift::FixedPointShift(QQuickItem* item)
    : QQuickTransform(item)
    , m_item(item)
{
    item->setTransformOrigin(QQuickItem::TopLeft);
    appendToItem(item);
    connect(item, &QQuickItem::rotationChanged, this, &FixedPointShift::update);
}

void FixedPointShift::setFixedPoint(Common::TransformOrigin origin, const QRectF& content)
{
    const QPointF fixedPoint = Common::fixedPointPosition(origin, content);
    if (fixedPoint == m_fixedPoint) {
        return;
    }
    m_fixedPoint = fixedPoint;
    update();
}

void FixedPointShift::applyTo(QMatrix4x4* matrix) const
{
    const double angle = m_item->rotation();
    if (angle == 0 || m_fixedPoint.isNull()) {
        return;
    }
    const QPointF shift = m_fixedPoint - Common::rotationAbout(QPointF(0, 0), angle).map(m_fixedPoint);
    matrix->translate(float(shift.x()), float(shift.y()));
}
} // namespace Korvex::Meridane::Display
