#include "gradients/GraphicsGradient.h"

#include "gradients/GradientStopsProperty.h"
#include "gradients/OutlineProperty.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/GradientStops.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

QGradient::Spread spreadOf(const QString& name)
{
    if (name == QLatin1String("ReflectSpread"))
        return QGradient::ReflectSpread;
    return name == QLatin1String("RepeatSpread") ? QGradient::RepeatSpread : QGradient::PadSpread;
}

} // namespace

GraphicsGradient::GraphicsGradient(DesignerObject* dataObject, QGradient* gradient)
    : GraphicsOutline(dataObject, QStringLiteral("points"), QPolygonF(QRectF(QPointF(0, 0), DefaultOutlineSize)))
    , m_gradient(gradient)
{}

GraphicsGradient::~GraphicsGradient() = default;

void GraphicsGradient::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsOutline::updateGraphicsItem(property);
    if (!property)
        return;
    if (property->id() == QLatin1String("spread")) {
        const QGradient::Spread spread = spreadOf(property->valueString());
        if (property->isConverted() && spread != m_gradient->spread()) {
            m_gradient->setSpread(spread);
            update();
        }
    } else if (property->id() == QLatin1String("gradientStops")) {
        bool ok = false;
        const QGradientStops stops =
            Common::drawableStops(ValueConversion::toGradientStops(property->valueString(), &ok));
        if (ok && stops != m_gradient->stops()) {
            m_gradient->setStops(stops);
            update();
        }
    }
}

bool GraphicsGradient::readPoint(const DesignerProperty& property, const QPointF& present, QPointF* point)
{
    constexpr double Noise = 1e-12;
    bool ok = false;
    *point = ValueConversion::toPoint(property.valueString(), &ok);
    return ok && (std::abs(point->x() - present.x()) > Noise || std::abs(point->y() - present.y()) > Noise);
}

} // namespace Korvex::Meridane::Designer
