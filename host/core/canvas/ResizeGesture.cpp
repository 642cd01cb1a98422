#include "host/core/canvas/ResizeGesture.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/FrameResize.h"
#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

ResizeGesture::ResizeGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object, int handle)
    : EditGesture(view, press)
    , m_object(object)
    , m_handle(handle)
{
    const GraphicsItem* grabbed = object->graphicsItem();
    const auto origin = static_cast<Common::TransformOrigin>(handle);
    m_handlePos = grabbed->graphic()->mapToScene(Common::fixedPointPosition(origin, grabbed->outerRect()));
}

ResizeGesture::~ResizeGesture() = default;

void ResizeGesture::move(const CanvasPointer& pointer)
{
    // Along its side a handle changes nothing.
    QPointF way = wayTo(pointer);
    if (!Common::handleChangesWidth(m_handle))
        way.setX(0);
    if (!Common::handleChangesHeight(m_handle))
        way.setY(0);
    if (!m_object || !m_object->graphicsItem() || (!hasBegun() && way.isNull()))
        return;
    begin({m_object});
    GraphicsItem* resized = m_object->graphicsItem();
    resized->setChangingSize(true);
    // Back where it was grabbed the element is exactly as it was, whatever the arithmetic of the way there.
    if (way.isNull())
        restore();
    else
        // An item's own resizeByMouse() may be about its point handles: frame handles are the host's.
        resized->GraphicsItem::resizeByMouse(m_handle, m_handlePos + way);
}

QString ResizeGesture::stepName() const
{
    return Common::LocalizationHelper::coreString(QStringLiteral("Resize %1"));
}

void ResizeGesture::end()
{
    if (m_object && m_object->graphicsItem())
        m_object->graphicsItem()->setChangingSize(false);
}

} // namespace Korvex::Meridane::Designer
