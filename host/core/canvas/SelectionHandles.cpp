#include "host/core/canvas/SelectionHandles.h"

#include "host/core/arrange/ElementPlaces.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/EditorMarks.h"

#include "host/common/FrameResize.h"
#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Korvex::Meridane::Designer {

using namespace Common;

namespace {

// All in screen pixels.
constexpr double SquareSide = 7;
constexpr double SquareHitDistance = 6; // from the middle of a square of the selection's frame
constexpr double DotDiameter = 8;
constexpr double KnobDiameter = 9;
constexpr double KnobDistance = 22; // from the frame's upper side
constexpr double KnobHitRadius = 7;

/// More elements than these are only framed: their handles would cover everything.
constexpr int MostWithHandles = 100;

/// Up to this many points of an element all have their dots, however close they lie.
constexpr int MostDotsTogether = 200;
/// More dots than these would take too long to draw.
constexpr int MostDots = 1000;

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

/// False also for what is no number, unlike QRectF::contains().
bool isWithin(const QRectF& area, const QPointF& point)
{
    return point.x() >= area.left() && point.x() <= area.right() && point.y() >= area.top()
           && point.y() <= area.bottom();
}

/// What the knob and its stem cover.
QRectF knobRect(const QPointF& foot, const QPointF& knob)
{
    return QRectF(foot, knob).normalized().adjusted(-KnobDiameter, -KnobDiameter, KnobDiameter, KnobDiameter);
}

/// The points of \a points of which each is further than \a spacing from those before it. All lie in \a area.
QList<QPointF> thinnedOut(const QList<QPointF>& points, const QRectF& area, double spacing)
{
    // Whatever is too near stands in the same cell of this size or in one beside it.
    const int columns = int(area.width() / spacing) + 1;
    const int rows = int(area.height() / spacing) + 1;
    std::vector<QList<QPointF>> cells(std::size_t(columns) * std::size_t(rows));
    const auto cell = [&](int column, int row) -> QList<QPointF>& {
        return cells[std::size_t(row) * std::size_t(columns) + std::size_t(column)];
    };
    const auto isTaken = [&](const QPointF& point, int column, int row) {
        for (int y = std::max(row - 1, 0); y <= std::min(row + 1, rows - 1); ++y) {
            for (int x = std::max(column - 1, 0); x <= std::min(column + 1, columns - 1); ++x) {
                for (const QPointF& other : std::as_const(cell(x, y))) {
                    if (distance(point, other) <= spacing)
                        return true;
                }
            }
        }
        return false;
    };
    QList<QPointF> kept;
    for (const QPointF& point : points) {
        const int column = int((point.x() - area.x()) / spacing);
        const int row = int((point.y() - area.y()) / spacing);
        if (isTaken(point, column, row))
            continue;
        cell(column, row).append(point);
        kept.append(point);
    }
    return kept;
}

/// \a point moved to the middle of a screen pixel, so that handles are drawn sharp.
QPointF onPixel(const QPointF& point)
{
    return {std::floor(point.x()) + 0.5, std::floor(point.y()) + 0.5};
}

/// A square handle, sharp at every zoom.
void paintSquare(const QPointF& center, QPainter* painter)
{
    painter->fillRect(around(center, SquareSide + 4), Light);
    painter->fillRect(around(center, SquareSide + 2), Dark);
    painter->fillRect(around(center, SquareSide), Light);
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
    const Together all = together();
    if (all.objects.size() > 1) {
        const QPointF mouse = m_view->viewportTransform().map(scenePos);
        const QList<std::pair<int, QPointF>> handles = handlesOf(all);
        for (const auto& [number, center] : handles) {
            if (around(center, 2 * SquareHitDistance).contains(mouse))
                return {HandleHit::Kind::Selection, nullptr, number, all.objects};
        }
        return {};
    }
    // Only what lies about the mouse is asked. Bounding rectangles, because handles stand at a frame's empty corners.
    const double reach = 3 * 5 / scene->viewScale();
    const QRectF about(scenePos.x() - reach, scenePos.y() - reach, 2 * reach, 2 * reach);
    QList<GraphicsItem*> candidates;
    const QList<QGraphicsItem*> near = scene->items(about, Qt::IntersectsItemBoundingRect);
    for (QGraphicsItem* graphic : near) {
        GraphicsItem* item = graphic->isSelected() ? GraphicsItem::fromGraphic(graphic) : nullptr;
        if (item && item->isResizable() && !EditorMarks::isLocked(item->dataObject()))
            candidates.append(item);
    }
    for (GraphicsItem* item : std::as_const(candidates)) {
        bool handled = false;
        const int point = item->getResizePointHandle(scenePos, &handled);
        if (point >= 0)
            return {HandleHit::Kind::Point, item->dataObject(), point, {}};
    }
    for (GraphicsItem* item : std::as_const(candidates)) {
        bool handled = false;
        const int handle = item->getResizeHandle(scenePos, &handled);
        if (isFrameHandle(handle))
            return {HandleHit::Kind::Frame, item->dataObject(), handle, {}};
    }
    const QList<GraphicsItem*> shown = shownItems();
    if (shown.size() == 1) {
        const Marks shownMarks = marks(shown.first(), true);
        if (shownMarks.hasKnob
            && distance(m_view->viewportTransform().map(scenePos), shownMarks.knob) <= KnobHitRadius) {
            shown.first()->setHandleToolTip(
                LocalizationHelper::coreString(QStringLiteral("Drag this point to rotate")));
            return {HandleHit::Kind::Rotation, shown.first()->dataObject(), -1, {}};
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
    case HandleHit::Kind::Selection:
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

/// The selected elements that one frame is drawn around, and where.
SelectionHandles::Together SelectionHandles::together() const
{
    Together together;
    const CanvasScene* scene = m_view->canvasScene();
    const QList<QGraphicsItem*> selected =
        scene && m_view->hasSelectionFrame() ? scene->selectedItems() : QList<QGraphicsItem*>();
    if (selected.size() < 2)
        return together;
    together.objects = scene->movableRoots();
    if (together.objects.size() < 2)
        return together;
    for (const DesignerObject* object : std::as_const(together.objects))
        together.frame |= ElementPlaces::outerBounds(object, object->graphicsItem()->graphic()->sceneTransform());
    return together;
}

/// The handles of a frame around several elements, with their numbers, in viewport pixels. A side that is too short has
/// none at its ends.
QList<std::pair<int, QPointF>> SelectionHandles::handlesOf(const Together& together) const
{
    constexpr double ShortestSide = 10; // screen pixels
    const QRectF frame = m_view->viewportTransform().mapRect(together.frame);
    QList<std::pair<int, QPointF>> handles;
    for (const TransformOrigin handle : {TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight}) {
        const bool isWide = !handleChangesWidth(handle) || frame.width() > ShortestSide;
        const bool isHigh = !handleChangesHeight(handle) || frame.height() > ShortestSide;
        if (isWide && isHigh)
            handles.append({int(handle), onPixel(fixedPointPosition(handle, frame))});
    }
    return handles;
}

void SelectionHandles::paintTogether(const Together& together, QPainter* painter) const
{
    const QRectF frame = m_view->viewportTransform().mapRect(together.frame);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    // What lies far outside would only cost time.
    const QRectF seen = frame & area().adjusted(-2, -2, 2, 2);
    painter->setPen(QPen(Light, 1));
    painter->drawRect(seen);
    painter->setPen(QPen(Dark, 1, Qt::DashLine));
    painter->drawRect(seen);
    const QList<std::pair<int, QPointF>> handles = handlesOf(together);
    for (const auto& [number, center] : handles) {
        if (isWithin(area(), center))
            paintSquare(center, painter);
    }
}

void SelectionHandles::paint(QPainter* painter) const
{
    const Together all = together();
    if (all.objects.size() > 1) {
        paintTogether(all, painter);
        return;
    }
    const QList<GraphicsItem*> shown = shownItems();
    const QColor accent = m_view->palette().color(QPalette::Highlight);
    for (const GraphicsItem* item : shown) {
        const Marks shownMarks = marks(item, shown.size() == 1);
        painter->setRenderHint(QPainter::Antialiasing);
        // A scripted drag also reaches a knob that is out of view; it need not be drawn.
        const bool knobIsSeen = shownMarks.hasKnob && knobRect(shownMarks.knobFoot, shownMarks.knob).intersects(area());
        if (knobIsSeen) {
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
        if (knobIsSeen)
            drawDot(shownMarks.knob, KnobDiameter, Light);
        // Whole pixels without antialiasing: sharp at every zoom.
        painter->setRenderHint(QPainter::Antialiasing, false);
        for (const QPointF& center : shownMarks.squares)
            paintSquare(center, painter);
        painter->setRenderHint(QPainter::Antialiasing);
        const QList<QPointF> centers = dots(item);
        for (const QPointF& center : centers)
            drawDot(center, DotDiameter, accent);
    }
}

QRegion SelectionHandles::region() const
{
    QRegion region;
    const QRectF viewport = m_view->viewport()->rect();
    // What lies outside may lie further away than whole numbers reach.
    const auto add = [&](const QRectF& rect) { region += (rect & viewport).toAlignedRect(); };
    const Together all = together();
    if (all.objects.size() > 1) {
        const QRectF frame = m_view->viewportTransform().mapRect(all.frame);
        constexpr double Width = 2;
        add(QRectF(frame.left() - Width, frame.top() - Width, frame.width() + 2 * Width, 2 * Width));
        add(QRectF(frame.left() - Width, frame.bottom() - Width, frame.width() + 2 * Width, 2 * Width));
        add(QRectF(frame.left() - Width, frame.top() - Width, 2 * Width, frame.height() + 2 * Width));
        add(QRectF(frame.right() - Width, frame.top() - Width, 2 * Width, frame.height() + 2 * Width));
        const QList<std::pair<int, QPointF>> handles = handlesOf(all);
        for (const auto& [number, center] : handles)
            add(around(center, SquareSide + 6));
        return region;
    }
    const QList<GraphicsItem*> shown = shownItems();
    for (const GraphicsItem* item : shown) {
        const Marks shownMarks = marks(item, shown.size() == 1);
        for (const QPointF& center : shownMarks.squares)
            add(around(center, SquareSide + 6));
        const QList<QPointF> centers = dots(item);
        if (centers.size() <= MostDotsTogether) {
            for (const QPointF& center : centers)
                add(around(center, DotDiameter + 6));
        } else {
            // One rectangle is sooner repainted than a region of many is made.
            const double reach = 0.5 * DotDiameter + 3;
            add(QPolygonF(centers).boundingRect().adjusted(-reach, -reach, reach, reach));
        }
        if (shownMarks.hasKnob)
            add(knobRect(shownMarks.knobFoot, shownMarks.knob));
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
        GraphicsItem* item = GraphicsItem::fromGraphic(graphic);
        if (item && !EditorMarks::isLocked(item->dataObject()))
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
        const QRectF visible = area();
        for (const TransformOrigin handle : {TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight}) {
            const QPointF center = toView.map(fixedPointPosition(handle, frame));
            if (isWithin(visible, center) && item->showsFrameHandle(handle))
                marks.squares.append(onPixel(center));
        }
    }
    if (alone && item->isRotatable()) {
        marks.knobFoot = toView.map(fixedPointPosition(Top, frame));
        // Straight up from the frame, as it is turned.
        const QPointF up = toView.map(frame.topLeft()) - toView.map(frame.topLeft() + QPointF(0, 1));
        const double length = std::hypot(up.x(), up.y());
        marks.knob = marks.knobFoot + up * (length > 0 ? KnobDistance / length : 0);
        marks.hasKnob = std::isfinite(marks.knob.x()) && std::isfinite(marks.knob.y());
    }
    return marks;
}

/// Where the dots of an element's points are drawn, in viewport pixels.
QList<QPointF> SelectionHandles::dots(const GraphicsItem* item) const
{
    QList<QPointF> centers;
    if (!item->isResizable())
        return centers;
    const QRectF visible = area();
    const QTransform toView = item->graphic()->sceneTransform() * m_view->viewportTransform();
    const QVector<QPointF> points = item->pointHandles();
    for (const QPointF& point : points) {
        const QPointF center = toView.map(point);
        if (isWithin(visible, center))
            centers.append(center);
    }
    if (centers.size() <= MostDotsTogether)
        return centers;
    double spacing = DotDiameter + 4;
    QList<QPointF> kept = thinnedOut(centers, visible, spacing);
    while (kept.size() > MostDots) {
        spacing *= 1.5;
        kept = thinnedOut(centers, visible, spacing);
    }
    return kept;
}

/// Where a handle's centre lies of which something is seen, in viewport pixels.
QRectF SelectionHandles::area() const
{
    constexpr double Reach = 0.5 * std::max(SquareSide, DotDiameter) + 3;
    return QRectF(m_view->viewport()->rect()).adjusted(-Reach, -Reach, Reach, Reach);
}

} // namespace Korvex::Meridane::Designer
