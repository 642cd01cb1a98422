#include "host/core/canvas/GestureSnapping.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/Gesture.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/SnapMarksPainter.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QGraphicsItem>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// How far something may jump, in screen pixels.
constexpr double ReachOnScreen = 6;

bool isFinite(const QRectF& rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
           && std::isfinite(rect.height());
}

bool standsIn(const DesignerObject* object, const DesignerObject* owner)
{
    for (const DesignerObject* above = object->parentObject(); above; above = above->parentObject()) {
        if (above == owner)
            return true;
    }
    return false;
}

} // namespace

GestureSnapping::GestureSnapping(const CanvasView* view)
    : m_view(view)
{}

GestureSnapping::~GestureSnapping() = default;

void GestureSnapping::setMoving(const QList<DesignerObject*>& moving)
{
    m_moving = moving;
    m_targets.reset();
}

bool GestureSnapping::isActive(const CanvasPointer& pointer) const
{
    return m_view->aids().snapping && m_view->canvasScene() && !pointer.modifiers.testFlag(Qt::ControlModifier);
}

SnapResult GestureSnapping::snap(const QRectF& rect, SnapEdges edges, bool wholePixels)
{
    return targets().snap({rect, edges, ReachOnScreen / m_view->zoom(), wholePixels});
}

QPointF GestureSnapping::snapPoint(const QPointF& point, bool wholePixels, SnapResult* result)
{
    const SnapEdges edges = SnapEdge::Left | SnapEdge::Top;
    const SnapResult found = snap(QRectF(point, QSizeF(0, 0)), edges, wholePixels);
    if (result)
        *result = found;
    show(QRectF(point + found.correction, QSizeF(0, 0)), edges, found);
    return point + found.correction;
}

void GestureSnapping::show(const QRectF& placed, SnapEdges edges, const SnapResult& result)
{
    m_marks = targets().marks(placed, edges, result);
}

void GestureSnapping::hide()
{
    m_marks = {};
}

void GestureSnapping::paint(QPainter* painter) const
{
    SnapMarksPainter(m_view).paint(m_marks, painter);
}

QRegion GestureSnapping::region() const
{
    return SnapMarksPainter(m_view).region(m_marks);
}

const SnapTargets& GestureSnapping::targets()
{
    if (m_targets)
        return *m_targets;
    m_targets.emplace();
    const CanvasScene* scene = m_view->canvasScene();
    m_targets->addScreen(scene->sceneRect());
    addElements(*m_targets, scene->screen(),
                m_view->viewportTransform().inverted().mapRect(QRectF(m_view->viewport()->rect())));
    if (m_guides) {
        const QList<Guide> guides = m_view->guides()->list();
        for (const Guide& guide : guides)
            m_targets->addGuide(guide.orientation, guide.position);
    }
    if (m_view->isGridDrawn())
        m_targets->setGrid(m_view->aids().gridSpacing);
    m_targets->prepare();
    return *m_targets;
}

void GestureSnapping::addElements(SnapTargets& targets, const DesignerObject* owner, const QRectF& visible) const
{
    const ObjectListProperty* list = owner->childList();
    if (!list)
        return;
    for (DesignerObject* object : list->items()) {
        const GraphicsItem* item = object->graphicsItem();
        if (!item || !item->graphic()->isVisible() || m_moving.contains(object))
            continue;
        const QRectF rect = item->graphic()->sceneTransform().mapRect(item->outerRect());
        const bool holdsMoving =
            object->childList()
            && std::any_of(m_moving.cbegin(), m_moving.cend(),
                           [object](const DesignerObject* moving) { return standsIn(moving, object); });
        if (!holdsMoving && isFinite(rect) && rect.intersects(visible))
            targets.addElement(rect);
        addElements(targets, object, visible);
    }
}

bool isWhole(const QPointF& point)
{
    return point.x() == std::round(point.x()) && point.y() == std::round(point.y());
}

bool isWhole(const QSizeF& size)
{
    return isWhole(QPointF(size.width(), size.height()));
}

} // namespace Korvex::Meridane::Designer
