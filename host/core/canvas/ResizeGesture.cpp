#include "host/core/canvas/ResizeGesture.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/FrameResize.h"
#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// The sides of a frame that \a handle moves.
SnapEdges edgesAt(int handle)
{
    SnapEdges edges;
    if (Common::handleChangesWidth(handle))
        edges |= handle % 3 == 0 ? SnapEdge::Left : SnapEdge::Right;
    if (Common::handleChangesHeight(handle))
        edges |= handle < 3 ? SnapEdge::Top : SnapEdge::Bottom;
    return edges;
}

constexpr SnapEdges HorizontalEdges = SnapEdge::Left | SnapEdge::Right;
constexpr SnapEdges VerticalEdges = SnapEdge::Top | SnapEdge::Bottom;

} // namespace

ResizeGesture::ResizeGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object, int handle)
    : EditGesture(view, press)
    , m_object(object)
    , m_handle(handle)
{
    const GraphicsItem* grabbed = object->graphicsItem();
    const auto origin = static_cast<Common::TransformOrigin>(handle);
    m_handlePos = grabbed->graphic()->mapToScene(Common::fixedPointPosition(origin, grabbed->outerRect()));
    m_frame = frame();
    m_wholePixels = isWhole(grabbed->graphic()->scenePos()) && isWhole(m_frame.size());
    if (grabbed->graphic()->sceneTransform().type() <= QTransform::TxTranslate)
        m_edges = edgesAt(handle);
    snapping().setMoving({object});
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
    m_object->graphicsItem()->setChangingSize(true);
    snapping().hide();
    // Back where it was grabbed the element is exactly as it was, whatever the arithmetic of the way there.
    if (way.isNull()) {
        restore();
        return;
    }
    const QPointF there = m_handlePos + way;
    // An element that keeps a ratio of its own follows one side alone.
    const bool snapped = snapping().isActive(pointer)
                         && (resizeSnapped(there, m_edges) || resizeSnapped(there, m_edges & HorizontalEdges)
                             || resizeSnapped(there, m_edges & VerticalEdges));
    if (!snapped)
        resizeTo(there);
}

void ResizeGesture::resizeTo(const QPointF& handlePos)
{
    // An item's own resizeByMouse() may be about its point handles: frame handles are the host's.
    m_object->graphicsItem()->GraphicsItem::resizeByMouse(m_handle, handlePos);
}

/// Resizes with \a edges in place if there is a place for them within reach and the element takes the size on; the element
/// may have a size of its own mind otherwise.
bool ResizeGesture::resizeSnapped(const QPointF& handlePos, SnapEdges edges)
{
    const QRectF wanted = Common::draggedFrame(m_frame, m_handle, handlePos, QSizeF(0, 0));
    SnapResult found = snapping().snap(wanted, edges, m_wholePixels);
    if (!found.snapsX && !found.snapsY)
        return false;
    const QPointF snapped = handlePos + found.correction;
    resizeTo(snapped);
    const QRectF made = frame();
    const auto isAt = [](double side, double place) { return std::abs(side - place) < 1e-6; };
    const bool inPlaceX = isAt(m_handle % 3 == 0 ? made.left() : made.right(), snapped.x());
    const bool inPlaceY = isAt(m_handle < 3 ? made.top() : made.bottom(), snapped.y());
    if ((found.snapsX && !inPlaceX) || (found.snapsY && !inPlaceY))
        return false;
    snapping().show(made, edges, found);
    return true;
}

/// The outer rectangle as it is now, in scene coordinates.
QRectF ResizeGesture::frame() const
{
    const GraphicsItem* resized = m_object->graphicsItem();
    return resized->graphic()->sceneTransform().mapRect(resized->outerRect());
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
