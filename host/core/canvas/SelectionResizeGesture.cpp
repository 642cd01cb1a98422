#include "host/core/canvas/SelectionResizeGesture.h"

#include "host/core/arrange/ElementPlaces.h"
#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QtMath>

#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double SmallestSide = 1; // of the frame, in pixels
constexpr double Noise = 1e-9;

SnapEdges edgesAt(int handle)
{
    SnapEdges edges;
    if (Common::handleChangesWidth(handle))
        edges |= handle % 3 == 0 ? SnapEdge::Left : SnapEdge::Right;
    if (Common::handleChangesHeight(handle))
        edges |= handle < 3 ? SnapEdge::Top : SnapEdge::Bottom;
    return edges;
}

/// What part of the room beside a span of \a length in a frame of \a room lies before it: 0 for one at the frame's
/// begin, 1 for one at its end.
double share(double before, double length, double room)
{
    const double rest = room - length;
    return rest > Noise ? before / rest : 0.5;
}

/// \a side moved to where the sides of a span from \a begin of \a length stood between the pixels, when that was the same
/// for both of them.
double inPlace(double side, double begin, double length)
{
    if (std::abs(length - std::round(length)) > Noise)
        return side;
    const double rest = withoutNoise(begin - std::floor(begin));
    return std::round(side - rest) + rest;
}

/// A span from \a begin of \a length that a frame from \a from of \a room takes along when it becomes one from \a to of
/// \a newRoom.
void scaleSpan(double& begin, double& length, double from, double room, double to, double newRoom)
{
    if (from == to && room == newRoom)
        return;
    const double factor = room > 0 ? newRoom / room : 1;
    const double first = withoutNoise(to + (begin - from) * factor);
    const double second = withoutNoise(to + (begin + length - from) * factor);
    const double newBegin = inPlace(first, begin, length);
    length = inPlace(second, begin, length) - newBegin;
    begin = newBegin;
}

} // namespace

SelectionResizeGesture::SelectionResizeGesture(CanvasView* view, const CanvasPointer& press,
                                               const QList<DesignerObject*>& objects, int handle)
    : EditGesture(view, press)
    , m_grabbed(objects)
    , m_handle(handle)
{
    for (const DesignerObject* object : objects) {
        const GraphicsItem* item = object->graphicsItem();
        const ElementPlace place = ElementPlaces::placeOf(object);
        const QSizeF size = item->outerRect().size();
        m_starts.append(
            {item->graphic()->pos(), size, size, ElementPlaces::outerBounds(object, place.toScene), place.angle});
        m_frame |= m_starts.constLast().bounds;
    }
    m_frameNow = m_frame;
    snapping().setMoving(objects);
}

SelectionResizeGesture::~SelectionResizeGesture() = default;

void SelectionResizeGesture::move(const CanvasPointer& pointer)
{
    // Along its side a handle changes nothing.
    QPointF way = wayTo(pointer);
    if (!Common::handleChangesWidth(m_handle))
        way.setX(0);
    if (!Common::handleChangesHeight(m_handle))
        way.setY(0);
    if (!hasBegun() && way.isNull())
        return;
    begin(m_grabbed);
    for (const auto& object : objects()) {
        if (object && object->graphicsItem())
            object->graphicsItem()->setChangingSize(true);
    }
    snapping().hide();
    m_frameNow = wantedFrame(pointer, way);
    // Back where it was grabbed everything is exactly as it was, whatever the arithmetic of the way there.
    if (m_frameNow == m_frame) {
        restore();
        for (Start& start : m_starts)
            start.wantedSize = start.outerSize;
    } else {
        resizeTo(m_frameNow);
    }
}

/// The frame with the handle moved by \a way, in place where it snaps, and with its ratio kept where Shift is held down.
QRectF SelectionResizeGesture::wantedFrame(const CanvasPointer& pointer, const QPointF& way)
{
    const auto origin = static_cast<Common::TransformOrigin>(m_handle);
    const QPointF there = Common::fixedPointPosition(origin, m_frame) + way;
    const QSizeF smallest(SmallestSide, SmallestSide);
    const QRectF wanted = Common::draggedFrame(m_frame, m_handle, there, smallest);
    if (pointer.modifiers.testFlag(Qt::ShiftModifier) && m_frame.width() > 0 && m_frame.height() > 0) {
        const QSizeF size =
            Common::sizeKeepingRatio(m_handle, wanted.size(), m_frame.width() / m_frame.height(), SmallestSide);
        return Common::resizedFrame(Common::cornerKeptBy(m_handle), m_frame, size);
    }
    if (way.isNull() || !snapping().isActive(pointer))
        return wanted;
    const SnapEdges edges = edgesAt(m_handle);
    const SnapResult found = snapping().snap(wanted, edges, isWhole(m_frame.topLeft()) && isWhole(m_frame.size()));
    const QRectF snapped = Common::draggedFrame(m_frame, m_handle, there + found.correction, smallest);
    snapping().show(snapped, edges, found);
    return snapped;
}

void SelectionResizeGesture::resizeTo(const QRectF& frame)
{
    for (qsizetype i = 0; i < objects().size(); ++i) {
        if (objects().at(i) && objects().at(i)->graphicsItem())
            resize(i, frame);
    }
}

/// The part of \a frame that belongs to an element as it was.
QRectF SelectionResizeGesture::wantedBounds(const Start& start, const QRectF& frame) const
{
    QRectF bounds = start.bounds;
    double x = bounds.x();
    double y = bounds.y();
    double width = bounds.width();
    double height = bounds.height();
    scaleSpan(x, width, m_frame.x(), m_frame.width(), frame.x(), frame.width());
    scaleSpan(y, height, m_frame.y(), m_frame.height(), frame.y(), frame.height());
    return {x, y, width, height};
}

void SelectionResizeGesture::resize(qsizetype index, const QRectF& frame)
{
    const Start& start = m_starts.at(index);
    DesignerObject* object = objects().at(index);
    GraphicsItem* item = object->graphicsItem();
    const QRectF wanted = wantedBounds(start, frame);
    const bool upright = std::fmod(start.angle, 360) == 0;
    if (item->isResizable()) {
        QSizeF size = wanted.size();
        if (!upright) {
            const double across = m_frame.width() > 0 ? frame.width() / m_frame.width() : 1;
            const double down = m_frame.height() > 0 ? frame.height() / m_frame.height() : 1;
            const double cosine = std::cos(qDegreesToRadians(start.angle));
            const double sine = std::sin(qDegreesToRadians(start.angle));
            size = {start.outerSize.width() * std::hypot(across * cosine, down * sine),
                    start.outerSize.height() * std::hypot(across * sine, down * cosine)};
        } else {
            // A side that does not change keeps its very value.
            if (wanted.width() == start.bounds.width())
                size.setWidth(start.outerSize.width());
            if (wanted.height() == start.bounds.height())
                size.setHeight(start.outerSize.height());
        }
        resizeItem(index, withoutNoise(size));
    }

    // Where it has taken on another size than the one wanted it keeps its share of the room beside it.
    const QRectF made = ElementPlaces::outerBounds(object, item->graphic()->sceneTransform());
    QPointF corner = wanted.topLeft();
    if (std::abs(made.width() - wanted.width()) > Noise) {
        const double part = share(start.bounds.x() - m_frame.x(), start.bounds.width(), m_frame.width());
        corner.setX(inPlace(frame.x() + part * (frame.width() - made.width()), start.bounds.x(), start.bounds.width()));
    }
    if (std::abs(made.height() - wanted.height()) > Noise) {
        const double part = share(start.bounds.y() - m_frame.y(), start.bounds.height(), m_frame.height());
        corner.setY(
            inPlace(frame.y() + part * (frame.height() - made.height()), start.bounds.y(), start.bounds.height()));
    }
    const QPointF way = corner - made.topLeft();
    const QGraphicsItem* parent = item->graphic()->parentItem();
    const QPointF wayInParent = parent ? parent->mapFromScene(way) - parent->mapFromScene(QPointF()) : way;
    const QPointF position = withoutNoise(item->graphic()->pos() + wayInParent);
    const auto isNear = [](double a, double b) { return std::abs(a - b) < Noise; };
    item->setItemPosition({isNear(position.x(), start.position.x()) ? start.position.x() : position.x(),
                           isNear(position.y(), start.position.y()) ? start.position.y() : position.y()});
}

/// Gives an element's item the outer size \a size, as far as it takes it.
void SelectionResizeGesture::resizeItem(qsizetype index, const QSizeF& size)
{
    Start& start = m_starts[index];
    if (start.wantedSize == size)
        return;
    start.wantedSize = size;
    GraphicsItem* item = objects().at(index)->graphicsItem();
    const QSizeF before = item->outerRect().size();
    item->resizeGraphicsItem(m_handle, size, item->graphic()->pos());
    const QSizeF after = item->outerRect().size();
    const bool follows = after.width() != before.width() || after.height() != before.height();
    const auto ratio = objects().at(index)->getProperty(QStringLiteral("keepRatio"));
    if (follows || (ratio && ValueConversion::toReal(ratio->valueString()) > 0))
        return;
    // What cannot follow along both axes (a line that would be thinner than it is) may along its longer side.
    if (start.outerSize.width() >= start.outerSize.height())
        item->resizeGraphicsItem(Common::Right, {size.width(), start.outerSize.height()}, item->graphic()->pos());
    else
        item->resizeGraphicsItem(Common::Bottom, {start.outerSize.width(), size.height()}, item->graphic()->pos());
}

QString SelectionResizeGesture::readout() const
{
    if (!hasBegun())
        return {};
    const auto number = [](double value) { return ValueConversion::toQmlString(value, 2); };
    return LocalizationHelper::coreString(QStringLiteral("x %1, y %2, %3 × %4"))
        .arg(number(m_frameNow.x()), number(m_frameNow.y()), number(m_frameNow.width()), number(m_frameNow.height()));
}

QString SelectionResizeGesture::stepName() const
{
    return LocalizationHelper::coreString(QStringLiteral("Resize %1"));
}

QString SelectionResizeGesture::stepNameOfSeveral(int count) const
{
    return LocalizationHelper::coreString(QStringLiteral("Resize %n Element"), QStringLiteral("Resize %n Elements"),
                                          count);
}

void SelectionResizeGesture::end()
{
    for (const auto& object : objects()) {
        if (object && object->graphicsItem())
            object->graphicsItem()->setChangingSize(false);
    }
}

} // namespace Korvex::Meridane::Designer
