#include "host/core/canvas/SelectionHandles.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/FrameResize.h"
#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using namespace Common;

namespace {

// All in screen pixels.
constexpr double SquareSide = 7;
constexpr double DotDiameter = 8;
constexpr double KnobDiameter = 9;
constexpr double KnobDistance = 22; // from the frame's upper side
constexpr double KnobHitRadius = 7;

/// More elements than these are only framed: their handles would cover everything.
constexpr int MostWithHandles = 100;

const QColor Light(255, 255, 255);
const QColor Dark(24, 24, 24);

double distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

QRectF around(const QPointF& center, double side)
{
    return {center.x() - 0.5 * side, center.y() - 0.5 * side, side, side};
}

/// \a point moved to the middle of a screen pixel, so that handles are drawn sharp.
QPointF onPixel(const QPointF& point)
{
    return {std::floor(point.x()) + 0.5, std::floor(point.y()) + 0.5};
}

} // namespace

SelectionHandles::SelectionHandles(const CanvasView* view)
    : m_view(view)
{}

HandleHit SelectionHandles::hit(const QPointF& scenePos) const
{
    const CanvasScene* scene = m_view->canvasScene();
    if (!scene)
        return {};
    // Only what lies about the mouse is asked. Bounding rectangles, because handles stand at a frame's empty corners.
    const double reach = 3 * 5 / scene->viewScale();
    const QRectF about(scenePos.x() - reach, scenePos.y() - reach, 2 * reach, 2 * reach);
    QList<GraphicsItem*> candidates;
    const QList<QGraphicsItem*> near = scene->items(about, Qt::IntersectsItemBoundingRect);
    for (QGraphicsItem* graphic : near) {
        GraphicsItem* item = graphic->isSelected() ? GraphicsItem::fromGraphic(graphic) : nullptr;
        if (item && item->isResizable())
            candidates.append(item);
    }
    for (GraphicsItem* item : std::as_const(candidates)) {
        bool handled = false;
        const int point = item->getResizePointHandle(scenePos, &handled);
        if (point >= 0)
            return {HandleHit::Kind::Point, item->dataObject(), point};
    }
    for (GraphicsItem* item : std::as_const(candidates)) {
        bool handled = false;
        const int handle = item->getResizeHandle(scenePos, &handled);
        if (isFrameHandle(handle))
            return {HandleHit::Kind::Frame, item->dataObject(), handle};
    }
    const QList<GraphicsItem*> shown = shownItems();
    if (shown.size() == 1) {
        const Marks shownMarks = marks(shown.first(), true);
        if (shownMarks.hasKnob
            && distance(m_view->viewportTransform().map(scenePos), shownMarks.knob) <= KnobHitRadius) {
            shown.first()->setHandleToolTip(
                LocalizationHelper::coreString(QStringLiteral("Drag this point to rotate")));
            return {HandleHit::Kind::Rotation, shown.first()->dataObject(), -1};
        }
    }
    return {};
}

QCursor SelectionHandles::cursor(const HandleHit& hit)
{
    switch (hit.kind) {
    case HandleHit::Kind::None:
        return Qt::ArrowCursor;
    case HandleHit::Kind::Point:
        return Qt::CrossCursor;
    case HandleHit::Kind::Rotation:
        return Qt::PointingHandCursor;
    case HandleHit::Kind::Frame:
        break;
    }
    switch (hit.number) {
    case TopLeft:
    case BottomRight:
        return Qt::SizeFDiagCursor;
    case TopRight:
    case BottomLeft:
        return Qt::SizeBDiagCursor;
    case Left:
    case Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::SizeVerCursor;
    }
}

void SelectionHandles::paint(QPainter* painter) const
{
    const QList<GraphicsItem*> shown = shownItems();
    const QColor accent = m_view->palette().color(QPalette::Highlight);
    for (const GraphicsItem* item : shown) {
        const Marks shownMarks = marks(item, shown.size() == 1);
        painter->setRenderHint(QPainter::Antialiasing);
        if (shownMarks.hasKnob) {
            painter->setPen(QPen(Light, 3));
            painter->drawLine(shownMarks.knobFoot, shownMarks.knob);
            painter->setPen(QPen(Dark, 1));
            painter->drawLine(shownMarks.knobFoot, shownMarks.knob);
        }
        const auto drawDot = [painter](const QPointF& center, double diameter, const QColor& color) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(Light);
            painter->drawEllipse(around(center, diameter + 4));
            painter->setBrush(Dark);
            painter->drawEllipse(around(center, diameter + 2));
            painter->setBrush(color);
            painter->drawEllipse(around(center, diameter));
        };
        if (shownMarks.hasKnob)
            drawDot(shownMarks.knob, KnobDiameter, Light);
        // Whole pixels without antialiasing: sharp at every zoom.
        painter->setRenderHint(QPainter::Antialiasing, false);
        for (const QPointF& center : shownMarks.squares) {
            painter->fillRect(around(center, SquareSide + 4), Light);
            painter->fillRect(around(center, SquareSide + 2), Dark);
            painter->fillRect(around(center, SquareSide), Light);
        }
        painter->setRenderHint(QPainter::Antialiasing);
        for (const QPointF& center : shownMarks.dots)
            drawDot(center, DotDiameter, accent);
    }
}

QRegion SelectionHandles::region() const
{
    QRegion region;
    const QList<GraphicsItem*> shown = shownItems();
    for (const GraphicsItem* item : shown) {
        const Marks shownMarks = marks(item, shown.size() == 1);
        for (const QPointF& center : shownMarks.squares)
            region += around(center, SquareSide + 6).toAlignedRect();
        for (const QPointF& center : shownMarks.dots)
            region += around(center, DotDiameter + 6).toAlignedRect();
        if (shownMarks.hasKnob) {
            region += QRectF(shownMarks.knobFoot, shownMarks.knob)
                          .normalized()
                          .adjusted(-KnobDiameter, -KnobDiameter, KnobDiameter, KnobDiameter)
                          .toAlignedRect();
        }
    }
    return region;
}

/// The selected items that get handles.
QList<GraphicsItem*> SelectionHandles::shownItems() const
{
    const CanvasScene* scene = m_view->canvasScene();
    const QList<QGraphicsItem*> selected = scene ? scene->selectedItems() : QList<QGraphicsItem*>();
    QList<GraphicsItem*> items;
    if (selected.size() > MostWithHandles)
        return items;
    for (QGraphicsItem* graphic : selected) {
        if (GraphicsItem* item = GraphicsItem::fromGraphic(graphic))
            items.append(item);
    }
    return items;
}

SelectionHandles::Marks SelectionHandles::marks(const GraphicsItem* item, bool alone) const
{
    Marks marks;
    const QTransform toView = item->graphic()->sceneTransform() * m_view->viewportTransform();
    const QRectF frame = item->outerRect();
    if (item->hasFrameHandles()) {
        for (const TransformOrigin handle : {TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight})
            marks.squares.append(onPixel(toView.map(fixedPointPosition(handle, frame))));
    }
    if (item->isResizable()) {
        const QVector<QPointF> points = item->pointHandles();
        for (const QPointF& point : points)
            marks.dots.append(toView.map(point));
    }
    if (alone && item->isRotatable()) {
        marks.hasKnob = true;
        marks.knobFoot = toView.map(fixedPointPosition(Top, frame));
        // Straight up from the frame, as it is turned.
        const QPointF up = toView.map(frame.topLeft()) - toView.map(frame.topLeft() + QPointF(0, 1));
        const double length = std::hypot(up.x(), up.y());
        marks.knob = marks.knobFoot + up * (length > 0 ? KnobDistance / length : 0);
    }
    return marks;
}

} // namespace Korvex::Meridane::Designer
