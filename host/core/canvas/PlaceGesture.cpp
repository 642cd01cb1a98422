#include "host/core/canvas/PlaceGesture.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/MoveGesture.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

QPointF wholePixels(const QPointF& point)
{
    return {std::round(point.x()), std::round(point.y())};
}

} // namespace

PlaceGesture::PlaceGesture(CanvasView* view, const CanvasPointer& press, const QString& className)
    : Gesture(view)
    , m_press(press)
    , m_now(press)
    , m_className(className)
    , m_snapping(view)
{
    move(press);
}

PlaceGesture::~PlaceGesture() = default;

void PlaceGesture::move(const CanvasPointer& pointer)
{
    m_now = pointer;
    const bool snaps = m_snapping.isActive(pointer);
    m_from = wholePixels(m_press.scenePos);
    if (snaps)
        m_from = m_snapping.snapPoint(m_from, true);
    m_to = m_from;
    if (isClick())
        return;
    m_snapping.hide();
    m_to = wholePixels(pointer.scenePos);
    SnapEdges edges = SnapEdge::Left | SnapEdge::Top;
    const bool isSquare = pointer.modifiers.testFlag(Qt::ShiftModifier);
    if (isSquare) // the longer side leads, the other follows
        edges = std::abs(m_to.x() - m_from.x()) >= std::abs(m_to.y() - m_from.y()) ? SnapEdge::Left : SnapEdge::Top;
    SnapResult snapped;
    if (snaps)
        snapped = m_snapping.snap(QRectF(m_to, QSizeF(0, 0)), edges, true);
    m_to += snapped.correction;
    if (isSquare) {
        const QPointF way = m_to - m_from;
        const double side = edges == SnapEdge::Left ? std::abs(way.x()) : std::abs(way.y());
        m_to = m_from + QPointF(std::copysign(side, way.x()), std::copysign(side, way.y()));
    }
    if (snaps)
        m_snapping.show(QRectF(m_to, QSizeF(0, 0)), edges, snapped);
}

bool PlaceGesture::isClick() const
{
    return (m_now.viewPos - m_press.viewPos).manhattanLength() < MoveGesture::threshold();
}

void PlaceGesture::finish(const CanvasPointer& pointer)
{
    move(pointer);
    const QRectF dragged = sceneRect();
    CanvasView* canvas = view();
    const QString className = m_className;
    // Placing is over before the element is there: what hears of the new element finds the canvas at rest.
    canvas->setPlacementClass({});
    if (dragged.isEmpty())
        place(canvas, className, m_from, {});
    else
        place(canvas, className, dragged.topLeft(), dragged.size());
    Q_EMIT canvas->placementFinished();
}

void PlaceGesture::cancel() {}

QString PlaceGesture::readout() const
{
    const QRectF rect = sceneRect();
    if (rect.isEmpty())
        return {};
    const auto number = [](double value) { return ValueConversion::toQmlString(value, 2); };
    return Common::LocalizationHelper::coreString(QStringLiteral("x %1, y %2, %3 × %4"))
        .arg(number(rect.x()), number(rect.y()), number(rect.width()), number(rect.height()));
}

void PlaceGesture::paint(QPainter* painter) const
{
    m_snapping.paint(painter);
    const QRectF rect = sceneRect();
    if (rect.isEmpty())
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(view()->palette().color(QPalette::Highlight), 1));
    painter->drawRect(view()->viewportTransform().mapRect(rect).toRect());
}

QRegion PlaceGesture::paintedRegion() const
{
    const QRect rect = view()->viewportTransform().mapRect(sceneRect()).toAlignedRect();
    return m_snapping.region() + rect.adjusted(-1, -1, 2, 2);
}

/// The dragged rectangle in whole pixels; empty for a click.
QRectF PlaceGesture::sceneRect() const
{
    return isClick() ? QRectF() : QRectF(m_from, m_to).normalized();
}

void PlaceGesture::place(CanvasView* view, const QString& className, const QPointF& position, const QSizeF& size)
{
    const CanvasScene* scene = view->canvasScene();
    if (!scene)
        return;
    const QString boundingSize = QStringLiteral("boundingSize");
    QMap<QString, QString> properties = {{QStringLiteral("position"), ValueConversion::toString(position)}};
    if (!size.isEmpty()) {
        const std::unique_ptr<DesignerObject> sample(DesignerFactory::instance()->createDataObject(className, nullptr));
        if (sample && sample->getProperty(boundingSize))
            properties.insert(boundingSize, ValueConversion::toString(size));
    }
    view->session()->addElement(className, scene->screen(), {}, properties);
}

} // namespace Korvex::Meridane::Designer
