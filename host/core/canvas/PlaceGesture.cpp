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
{}

PlaceGesture::~PlaceGesture() = default;

void PlaceGesture::move(const CanvasPointer& pointer)
{
    m_now = pointer;
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
        place(canvas, className, wholePixels(m_press.scenePos), {});
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
    const QRectF rect = sceneRect();
    if (rect.isEmpty())
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(view()->palette().color(QPalette::Highlight), 1));
    painter->drawRect(view()->viewportTransform().mapRect(rect).toRect());
}

QRect PlaceGesture::paintedRect() const
{
    return view()->viewportTransform().mapRect(sceneRect()).toAlignedRect().adjusted(-1, -1, 2, 2);
}

/// The dragged rectangle in whole pixels; empty for a click.
QRectF PlaceGesture::sceneRect() const
{
    if ((m_now.viewPos - m_press.viewPos).manhattanLength() < MoveGesture::threshold())
        return {};
    const QPointF from = wholePixels(m_press.scenePos);
    QPointF to = wholePixels(m_now.scenePos);
    if (m_now.modifiers.testFlag(Qt::ShiftModifier)) {
        const double side = std::max(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
        to = from + QPointF(std::copysign(side, to.x() - from.x()), std::copysign(side, to.y() - from.y()));
    }
    return QRectF(from, to).normalized();
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
