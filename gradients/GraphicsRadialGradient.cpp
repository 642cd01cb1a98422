#include "gradients/GraphicsRadialGradient.h"

#include "gradients/GradientStopsProperty.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

GraphicsRadialGradient::GraphicsRadialGradient(DesignerObject* dataObject)
    : GraphicsGradient(dataObject, &m_gradient)
    , m_gradient(QPointF(50, 37.5), 50, QPointF(50, 37.5))
{
    m_gradient.setStops(GradientStopsProperty::defaultStops());
}

GraphicsRadialGradient::~GraphicsRadialGradient() = default;

QString GraphicsRadialGradient::className() const
{
    return QStringLiteral("GraphicsRadialGradient");
}

QStringList GraphicsRadialGradient::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsRadialGradient");
}

void GraphicsRadialGradient::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsGradient::updateGraphicsItem(property);
    if (!property)
        return;
    if (property->id() == QLatin1String("center")) {
        takePoint(*property, m_gradient, &QRadialGradient::center, &QRadialGradient::setCenter);
    } else if (property->id() == QLatin1String("focalPoint")) {
        takePoint(*property, m_gradient, &QRadialGradient::focalPoint, &QRadialGradient::setFocalPoint);
    } else if (property->id() == QLatin1String("radius")) {
        bool ok = false;
        const double radius = ValueConversion::toReal(property->valueString(), &ok);
        if (ok && radius != m_gradient.radius()) {
            m_gradient.setRadius(radius);
            update();
        }
    }
}

void GraphicsRadialGradient::paintOutline(QPainter* painter)
{
    Common::PaintHelper::paintGradientItem(polygon(), m_gradient, painter);
}

} // namespace Korvex::Meridane::Designer
