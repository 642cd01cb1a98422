#include "gradients/GraphicsConicalGradient.h"

#include "gradients/GradientStopsProperty.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

GraphicsConicalGradient::GraphicsConicalGradient(DesignerObject* dataObject)
    : GraphicsGradient(dataObject, &m_gradient)
    , m_gradient(QPointF(50, 50), 0)
{
    m_gradient.setStops(GradientStopsProperty::defaultStops());
}

GraphicsConicalGradient::~GraphicsConicalGradient() = default;

QString GraphicsConicalGradient::className() const
{
    return QStringLiteral("GraphicsConicalGradient");
}

QStringList GraphicsConicalGradient::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsConicalGradient");
}

void GraphicsConicalGradient::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsGradient::updateGraphicsItem(property);
    if (!property)
        return;
    if (property->id() == QLatin1String("center")) {
        takePoint(*property, m_gradient, &QConicalGradient::center, &QConicalGradient::setCenter);
    } else if (property->id() == QLatin1String("startAngle")) {
        constexpr double LastAngle = 359.99;
        bool ok = false;
        const double angle = ValueConversion::toReal(property->valueString(), &ok);
        if (ok && angle != m_gradient.angle() && angle >= 0 && angle <= LastAngle) {
            m_gradient.setAngle(angle);
            update();
        }
    }
}

void GraphicsConicalGradient::paintOutline(QPainter* painter)
{
    Common::PaintHelper::paintGradientItem(polygon(), m_gradient, painter);
}

} // namespace Korvex::Meridane::Designer
