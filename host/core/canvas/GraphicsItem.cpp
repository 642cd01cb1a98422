#include "host/core/canvas/GraphicsItem.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/LocalizationHelper.h"
#include "host/common/RealComparison.h"

#include <QGraphicsItem>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using namespace Common;

namespace {

/// How near the mouse has to be to a handle, in screen pixels.
constexpr double HitWidthOnScreen = 5;
constexpr int OuterSizeDecimals = 6;

QString boundingSizeId()
{
    return QStringLiteral("boundingSize");
}

/// \a length as "boundingSize" holds it.
double roundedOuterLength(double length)
{
    constexpr double Factor = 1e6; // ten to the power of OuterSizeDecimals
    constexpr double Largest = 1e9; // from here on a double has hardly that many decimals
    return std::abs(length) < Largest ? roundedToWhole(length * Factor) / Factor : length;
}

} // namespace

GraphicsItem::GraphicsItem(DesignerObject* dataObject, QGraphicsItem* graphic)
    : m_dataObject(dataObject)
    , m_graphic(graphic)
{}

GraphicsItem::~GraphicsItem()
{
    if (m_dataObject && m_dataObject->graphicsItem() == this)
        m_dataObject->setGraphicsItem(nullptr);
}

QString GraphicsItem::className() const
{
    return QStringLiteral("GraphicsItem");
}

QStringList GraphicsItem::classNames() const
{
    return {QStringLiteral("GraphicsItem")};
}

bool GraphicsItem::initialize()
{
    return true;
}

QPainterPath GraphicsItem::getShape() const
{
    return rotatedShape(m_graphic->shape());
}

void GraphicsItem::addGraphicsItemChild(const QSharedPointer<DesignerProperty>& property, DesignerObject* object)
{
    auto* scene = qobject_cast<CanvasScene*>(m_graphic->scene());
    if (!scene || !property || !object)
        return;
    scene->placeObject(object, m_graphic);
    scene->restack(object);
    childOutlineChanged();
}

void GraphicsItem::removeGraphicsItemChild(const QSharedPointer<DesignerProperty>& property, DesignerObject* object)
{
    auto* scene = qobject_cast<CanvasScene*>(m_graphic->scene());
    if (!scene || !property || !object)
        return;
    scene->displaceObject(object);
    childOutlineChanged();
}

void GraphicsItem::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    if (!property)
        return;
    bool ok = false;
    if (property->id() == QLatin1String("position")) {
        const QPointF position = ValueConversion::toPoint(property->valueString(), &ok);
        if (ok)
            setItemPosition(position);
    } else if (property->id() == QLatin1String("rotation")) {
        const RotationInfo rotation = ValueConversion::toRotationInfo(property->valueString(), &ok);
        if (!ok)
            return;
        m_fixedPoint = transformOriginFromName(rotation.fixedPoint());
        setItemRotation(rotation.angle());
    } else if (property->id() == boundingSizeId() && property->isConverted() && !m_changingSize) {
        // The element has reacted by now; what it did not follow snaps back.
        reportOuterSize();
    }
}

UndoCommand* GraphicsItem::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (!property)
        return nullptr;
    if (property->id() == QLatin1String("position"))
        return writeBack(property, ValueConversion::toString(m_graphic->pos()), parent);
    if (property->id() == QLatin1String("rotation")) {
        RotationInfo rotation = ValueConversion::toRotationInfo(property->valueString());
        if (property->isConverted() && rotation.angle() == m_graphic->rotation())
            return nullptr;
        rotation.setAngle(m_graphic->rotation());
        return writeBack(property, ValueConversion::toString(rotation), parent);
    }
    return nullptr;
}

int GraphicsItem::getResizePointHandle(const QPointF&, bool* handled)
{
    if (handled)
        *handled = false;
    return -1;
}

int GraphicsItem::getResizeHandle(const QPointF& scenePos, bool* handled)
{
    if (handled)
        *handled = true;
    if (!isLargeEnoughForHandles() || isRotated()) {
        showNameToolTip();
        return Center;
    }

    const double width = detectionWidth();
    const QRectF frame = outerRect();
    const QPointF mouse = m_graphic->mapToParent(m_graphic->mapFromScene(scenePos));
    // The way from a corner or the middle of a side to the mouse, in the parent's coordinates.
    const auto way = [&](TransformOrigin handle) {
        const QPointF there = m_graphic->mapToParent(fixedPointPosition(handle, frame));
        return QPointF(std::abs(mouse.x() - there.x()), std::abs(mouse.y() - there.y()));
    };
    const auto found = [this](TransformOrigin handle, const QString& text) {
        if (m_graphic->isSelected())
            setHandleToolTip(text);
        return int(handle);
    };

    for (const TransformOrigin corner : {TopLeft, TopRight, BottomLeft, BottomRight}) {
        if (way(corner).manhattanLength() <= width)
            return found(corner, LocalizationHelper::visualDesignerString(QStringLiteral("Drag this point to resize")));
    }
    const double alongVertical = std::abs(0.5 * frame.height() - width);
    const double alongHorizontal = std::abs(0.5 * frame.width() - width);
    for (const TransformOrigin side : {Left, Right, Top, Bottom}) {
        const QPointF distance = way(side);
        const bool vertical = side == Left || side == Right;
        const double across = vertical ? distance.x() : distance.y();
        const double along = vertical ? distance.y() : distance.x();
        if (across <= width && along <= (vertical ? alongVertical : alongHorizontal))
            return found(side, LocalizationHelper::visualDesignerString(QStringLiteral("Drag this line to resize")));
    }
    showNameToolTip();
    return Center;
}

void GraphicsItem::resizeByMouse(int handle, const QPointF& scenePos)
{
    if (!isFrameHandle(handle))
        return;
    const QPointF position = m_graphic->pos();
    const QRectF frame = outerRect().translated(position);
    const QPointF mouse = m_graphic->mapToParent(m_graphic->mapFromScene(scenePos));
    const double smallest = minSize();
    const QRectF dragged = draggedFrame(frame, handle, mouse, QSizeF(smallest, smallest));
    // A dimension that the handle does not change keeps its very value.
    const QSizeF size(handleChangesWidth(handle) ? withoutNoise(dragged.width()) : frame.width(),
                      handleChangesHeight(handle) ? withoutNoise(dragged.height()) : frame.height());
    if (size.width() == frame.width() && size.height() == frame.height())
        return;
    const QRectF kept = resizedFrame(cornerKeptBy(handle), frame, size);
    resizeGraphicsItem(handle, size, withoutNoise(position + kept.topLeft() - frame.topLeft()));
}

void GraphicsItem::resizeGraphicsItem(int, const QSizeF&, const QPointF&) {}

void GraphicsItem::updateResizedDataObjects(int, UndoCommand* parent)
{
    if (!m_dataObject)
        return;
    for (const auto& property : m_dataObject->properties())
        updateDataObject(property, parent);
}

void GraphicsItem::rotateByMouse(double angle)
{
    setItemRotation(angle);
}

void GraphicsItem::selectedChanged(bool) {}

double GraphicsItem::minSize() const
{
    return 1;
}

QRectF GraphicsItem::outerRect() const
{
    return m_graphic->boundingRect();
}

QRectF GraphicsItem::contentRect() const
{
    const auto size =
        m_dataObject ? m_dataObject->getProperty(QStringLiteral("size")) : QSharedPointer<DesignerProperty>();
    bool ok = false;
    const QSizeF content = size ? ValueConversion::toSize(size->valueString(), &ok) : QSizeF();
    return ok ? QRectF(QPointF(0, 0), content) : outerRect();
}

bool GraphicsItem::hasFrameHandles() const
{
    return m_resizable && !isRotated() && isLargeEnoughForHandles();
}

bool GraphicsItem::showsFrameHandle(int handle) const
{
    const QVector<QPointF> points = pointHandles();
    return std::none_of(points.cbegin(), points.cend(),
                        [this, handle](const QPointF& point) { return liesOnFrameHandle(point, handle); });
}

bool GraphicsItem::liesOnFrameHandle(const QPointF& point, int handle) const
{
    constexpr double RoomOnScreen = 9; // pixels: half a square and half a dot
    const QPointF way = point - fixedPointPosition(static_cast<TransformOrigin>(handle), outerRect());
    return std::hypot(way.x(), way.y()) <= RoomOnScreen / HitWidthOnScreen * detectionWidth();
}

QVector<QPointF> GraphicsItem::pointHandles() const
{
    return {};
}

void GraphicsItem::childOutlineChanged() {}

DesignerObject* GraphicsItem::dataObject() const
{
    return m_dataObject;
}

QPointF GraphicsItem::fixedPoint() const
{
    return fixedPointPosition(m_fixedPoint, contentRect());
}

double GraphicsItem::detectionWidth() const
{
    const auto* scene = qobject_cast<CanvasScene*>(m_graphic->scene());
    return HitWidthOnScreen / (scene ? scene->viewScale() : 1);
}

bool GraphicsItem::isRotated() const
{
    const double angle = m_graphic->rotation();
    return angle != 0 && angle != 360 && angle != -360;
}

bool GraphicsItem::isLargeEnoughForHandles() const
{
    constexpr double SmallestOnScreen = 10;
    const QRectF frame = outerRect();
    const double scale = HitWidthOnScreen / detectionWidth();
    return frame.width() * scale > SmallestOnScreen && frame.height() * scale > SmallestOnScreen;
}

void GraphicsItem::reportOuterSize()
{
    outlineChanged();
    const auto property =
        m_dataObject ? m_dataObject->getProperty(boundingSizeId()) : QSharedPointer<DesignerProperty>();
    const QString text = outerSizeText(property);
    if (text.isNull())
        return;
    const bool before = std::exchange(m_changingSize, true);
    m_dataObject->changePropertyValue(property, text);
    m_changingSize = before;
}

void GraphicsItem::fillOuterSize()
{
    outlineChanged();
    const auto property =
        m_dataObject ? m_dataObject->getProperty(boundingSizeId()) : QSharedPointer<DesignerProperty>();
    const QString text = outerSizeText(property);
    if (!text.isNull())
        property->fill(text);
}

/// The value string of the outer size, or a null string where "boundingSize" says the same already.
QString GraphicsItem::outerSizeText(const QSharedPointer<DesignerProperty>& boundingSize) const
{
    if (!boundingSize)
        return {};
    const QSizeF outer = outerRect().size();
    if (!std::isfinite(outer.width()) || !std::isfinite(outer.height()))
        return {};
    bool ok = false;
    const QSizeF stored = ValueConversion::toSize(boundingSize->valueString(), &ok);
    if (ok && equalToDecimals(outer.width(), stored.width(), OuterSizeDecimals)
        && equalToDecimals(outer.height(), stored.height(), OuterSizeDecimals))
        return {};
    return ValueConversion::toString(QSizeF(roundedOuterLength(outer.width()), roundedOuterLength(outer.height())));
}

void GraphicsItem::updateFromDataObject()
{
    if (!m_dataObject)
        return;
    for (const auto& property : m_dataObject->properties()) {
        if (property->isConverted())
            updateGraphicsItem(property);
    }
}

void GraphicsItem::setItemPosition(const QPointF& position)
{
    // Compared exactly: Qt takes points for equal that differ in the last digits.
    const QPointF present = m_graphic->pos();
    if (present.x() == position.x() && present.y() == position.y())
        return;
    m_graphic->setPos(position);
    tellParent();
}

QString GraphicsItem::nameToolTip() const
{
    if (m_nameToolTip.isEmpty() && m_dataObject) {
        m_nameToolTip = LocalizationHelper::visualDesignerString(QStringLiteral("%1: %2"))
                            .arg(m_dataObject->displayName(), m_dataObject->getIdName());
    }
    return m_nameToolTip;
}

void GraphicsItem::setHandleToolTip(const QString& text)
{
    m_handleToolTip = true;
    if (m_graphic->toolTip() != text)
        m_graphic->setToolTip(text);
}

void GraphicsItem::showNameToolTip()
{
    m_handleToolTip = false;
    refreshToolTip();
}

void GraphicsItem::refreshToolTip()
{
    if (m_handleToolTip)
        return;
    const QString name = nameToolTip();
    if (m_graphic->toolTip() != name)
        m_graphic->setToolTip(name);
}

void GraphicsItem::nameChanged()
{
    m_nameToolTip.clear();
    refreshToolTip();
}

GraphicsItem* GraphicsItem::fromGraphic(QGraphicsItem* graphic)
{
    return dynamic_cast<GraphicsItem*>(graphic);
}

GraphicsItem::FrameChange GraphicsItem::frameChange(int handle, const QSizeF& outerSize) const
{
    const double ratio = keptRatio();
    QSizeF size = sizeKeepingRatio(handle, outerSize, ratio, minSize());
    if (ratio > 0)
        size = withoutNoise(size);
    return {size, positionKeepingOpposite(handle, {outerRect().topLeft(), size})};
}

QPointF GraphicsItem::positionKeepingOpposite(int handle, const QRectF& outerRect) const
{
    const TransformOrigin kept = cornerKeptBy(handle);
    const QPointF position = m_graphic->pos();
    const QPointF before = fixedPointPosition(kept, this->outerRect());
    const QPointF after = fixedPointPosition(kept, outerRect);
    // Where nothing moves the position keeps its very value. Else the kept corner loses its noise before the position
    // does: rounding the position alone would let the corner creep a little with every move of the mouse.
    const auto moved = [](double coordinate, double from, double to) {
        return from == to ? coordinate : withoutNoise(withoutNoise(coordinate + from) - to);
    };
    return {moved(position.x(), before.x(), after.x()), moved(position.y(), before.y(), after.y())};
}

void GraphicsItem::updateTransformOrigin()
{
    // An item without a rotation carries no transformation at all, which keeps it cheap to draw and to hit.
    if (m_graphic->rotation() != 0)
        m_graphic->setTransformOriginPoint(fixedPoint());
}

void GraphicsItem::outlineChanged()
{
    updateTransformOrigin();
    tellParent();
}

double GraphicsItem::keptRatio() const
{
    const auto property =
        m_dataObject ? m_dataObject->getProperty(QStringLiteral("keepRatio")) : QSharedPointer<DesignerProperty>();
    bool ok = false;
    const double ratio = property ? ValueConversion::toReal(property->valueString(), &ok) : 0;
    return ok && ratio > 0 ? ratio : 0;
}

UndoCommand* GraphicsItem::writeBack(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) const
{
    if (!property || property->equalsValue(value))
        return nullptr;
    return new ChangeProperty(property, value, m_graphic->isSelected(), parent);
}

QPainterPath GraphicsItem::rotatedShape(const QPainterPath& outline) const
{
    const auto property =
        m_dataObject ? m_dataObject->getProperty(QStringLiteral("rotation")) : QSharedPointer<DesignerProperty>();
    bool ok = false;
    const RotationInfo rotation =
        property ? ValueConversion::toRotationInfo(property->valueString(), &ok) : RotationInfo();
    if (!ok)
        return outline;
    return rotatedPath(outline, transformOriginFromName(rotation.fixedPoint()), contentRect(), rotation.angle());
}

void GraphicsItem::setItemRotation(double angle)
{
    if (m_graphic->rotation() != angle)
        m_graphic->setRotation(angle);
    updateTransformOrigin();
    tellParent();
}

void GraphicsItem::tellParent()
{
    if (GraphicsItem* parent = fromGraphic(m_graphic->parentItem()))
        parent->childOutlineChanged();
}

} // namespace Korvex::Meridane::Designer
