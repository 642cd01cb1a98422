#include "gradients/GraphicsLinearGradient.h"

#include "gradients/GradientStopsProperty.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

GraphicsLinearGradient::GraphicsLinearGradient(DesignerObject* dataObject)
    : GraphicsGradient(dataObject, &m_gradient)
    , m_gradient(QPointF(0, 0), QPointF(100, 100))
{
    m_gradient.setStops(GradientStopsProperty::defaultStops());
}

GraphicsLinearGradient::~GraphicsLinearGradient() = default;

QString GraphicsLinearGradient::className() const
{
    return QStringLiteral("GraphicsLinearGradient");
}

QStringList GraphicsLinearGradient::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsLinearGradient");
}

void GraphicsLinearGradient::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsGradient::updateGraphicsItem(property);
    if (!property)
        return;
    if (property->id() == QLatin1String("start"))
        takePoint(*property, m_gradient, &QLinearGradient::start, &QLinearGradient::setStart);
    else if (property->id() == QLatin1String("finalStop"))
        takePoint(*property, m_gradient, &QLinearGradient::finalStop, &QLinearGradient::setFinalStop);
}

void GraphicsLinearGradient::paintOutline(QPainter* painter)
{
    Common::PaintHelper::paintGradientItem(polygon(), m_gradient, painter);
}

} // namespace Korvex::Meridane::Designer
