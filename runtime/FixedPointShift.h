#pragma once

#include "host/common/TransformOrigin.h"

#include <QtCore/QRectF>
#include <QtQuick/QQuickItem>

namespace Korvex::Meridane::Display {
/**
 * Lets an item turn about a point of a content rectangle that need not be the item's own rectangle: Qt Quick turns the
 * item about its top left corner, and this transform moves the turned picture so that the fixed point stays in place.
 */
class FixedPointShift : public QQuickTransform
{
    Q_OBJECT

public:
    /** Makes \p item, its parent, turn about its top left corner and moves it on from there. */
    explicit FixedPointShift(QQuickItem* item);

    /** The point \p origin of \p content, in item coordinates, stays in place. */
    void setFixedPoint(Common::TransformOrigin origin, const QRectF& content);

    void applyTo(QMatrix4x4* matrix) const override;

private:
    QQuickItem* m_item;
    QPointF m_fixedPoint;
};
} // namespace Korvex::Meridane::Display
