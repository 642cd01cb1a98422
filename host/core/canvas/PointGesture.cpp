#include "host/core/canvas/PointGesture.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/LocalizationHelper.h"

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
    begin({m_object});
    m_object->graphicsItem()->setChangingSize(true);
    // Back where it was pressed, which need not be the very point, everything is as it was.
    if (!moved) {
        restore();
        return;
    }
    const QPointF there = view()->zoom() == 1
                              ? pointer.scenePos
                              : QPointF(std::round(pointer.scenePos.x()), std::round(pointer.scenePos.y()));
    m_object->graphicsItem()->resizeByMouse(m_handle, there);
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
