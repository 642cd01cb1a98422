#include "host/core/canvas/PointGesture.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QLineF>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

PointGesture::PointGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object, int handle)
    : EditGesture(view, press)
    , m_object(object)
    , m_handle(handle)
{}

PointGesture::~PointGesture() = default;

void PointGesture::move(const CanvasPointer& pointer)
{
    const bool moved = pointer.scenePos.x() != press().scenePos.x() || pointer.scenePos.y() != press().scenePos.y();
    if (!m_object || !m_object->graphicsItem() || (!hasBegun() && !moved))
        return;
    if (!hasBegun())
        snapping().setMoving({m_object});
    begin({m_object});
    m_object->graphicsItem()->setChangingSize(true);
    snapping().hide();
    // Back where it was pressed, which need not be the very point, everything is as it was.
    if (!moved) {
        restore();
        return;
    }
    const bool exact = view()->zoom() == 1 && !view()->aids().snapping;
    const QPointF there =
        exact ? pointer.scenePos : QPointF(std::round(pointer.scenePos.x()), std::round(pointer.scenePos.y()));
    GraphicsItem* item = m_object->graphicsItem();
    if (snapping().isActive(pointer)) {
        const QPointF place = snapping().snapPoint(there, true);
        item->resizeByMouse(m_handle, place);
        if (hasPointAt(place))
            return;
        // The element has put the point elsewhere by its own rules; it follows the mouse then.
        snapping().hide();
    }
    item->resizeByMouse(m_handle, there);
}

/// Whether a point handle of the element stands at \a scenePos, as far as the element tells where they are.
bool PointGesture::hasPointAt(const QPointF& scenePos) const
{
    const GraphicsItem* item = m_object->graphicsItem();
    const QVector<QPointF> points = item->pointHandles();
    const auto isThere = [&](const QPointF& point) {
        return QLineF(item->graphic()->mapToScene(point), scenePos).length() < 1e-6;
    };
    return points.isEmpty() || std::any_of(points.cbegin(), points.cend(), isThere);
}

QString PointGesture::stepName() const
{
    return Common::LocalizationHelper::coreString(QStringLiteral("Reshape %1"));
}

void PointGesture::fill(UndoCommand* parent) const
{
    if (m_object && m_object->graphicsItem())
        m_object->graphicsItem()->updateResizedDataObjects(m_handle, parent);
}

void PointGesture::end()
{
    if (m_object && m_object->graphicsItem())
        m_object->graphicsItem()->setChangingSize(false);
}

} // namespace Korvex::Meridane::Designer
