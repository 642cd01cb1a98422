#include "host/core/canvas/RotateGesture.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>
#include <QtMath>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

double direction(const QPointF& way)
{
    return qRadiansToDegrees(std::atan2(way.y(), way.x()));
}

/// \a angle turned into the range from 0 to 360, without 360 itself.
double withinOneTurn(double angle)
{
    const double rest = std::fmod(angle, 360);
    return rest < 0 ? rest + 360 : rest + 0.0;
}

} // namespace

RotateGesture::RotateGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* object)
    : EditGesture(view, press)
    , m_object(object)
    , m_center(object->graphicsItem()->graphic()->mapToScene(object->graphicsItem()->fixedPoint()))
    , m_startAngle(object->graphicsItem()->graphic()->rotation())
{}

RotateGesture::~RotateGesture() = default;

void RotateGesture::move(const CanvasPointer& pointer)
{
    const QPointF from = press().scenePos - m_center;
    const QPointF to = pointer.scenePos - m_center;
    const bool turned = press().scenePos.x() != pointer.scenePos.x() || press().scenePos.y() != pointer.scenePos.y();
    if (!m_object || !m_object->graphicsItem() || to.isNull() || (!hasBegun() && !turned))
        return;
    begin({m_object});
    const double step = pointer.modifiers.testFlag(Qt::ShiftModifier) ? 15 : 1;
    const double wanted = m_startAngle + direction(to) - direction(from);
    m_object->graphicsItem()->rotateByMouse(turned ? withinOneTurn(step * std::round(wanted / step)) : m_startAngle);
}

QString RotateGesture::readout() const
{
    if (!hasBegun())
        return {};
    const RotationInfo rotation = ValueConversion::toRotationInfo(pendingValue(QStringLiteral("rotation")));
    return Common::LocalizationHelper::coreString(QStringLiteral("%1°"))
        .arg(ValueConversion::toQmlString(rotation.angle(), 2));
}

QString RotateGesture::stepName() const
{
    return Common::LocalizationHelper::coreString(QStringLiteral("Rotate %1"));
}

} // namespace Korvex::Meridane::Designer
