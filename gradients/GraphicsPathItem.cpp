#include "gradients/GraphicsPathItem.h"

#include "gradients/OutlineProperty.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

GraphicsPathItem::GraphicsPathItem(DesignerObject* dataObject)
    : GraphicsOutline(dataObject, QStringLiteral("points"), QPolygonF(QRectF(QPointF(0, 0), DefaultOutlineSize)))
    , m_brush(QColor(248, 151, 29, 255))
{}

GraphicsPathItem::~GraphicsPathItem() = default;

QString GraphicsPathItem::className() const
{
    return QStringLiteral("GraphicsPathItem");
}

QStringList GraphicsPathItem::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsPathItem");
}

void GraphicsPathItem::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsOutline::updateGraphicsItem(property);
    if (!property || property->id() != QLatin1String("color"))
        return;
    bool ok = false;
    const QColor color = ValueConversion::toColor(property->valueString(), &ok);
    if (ok && color != m_brush.color()) {
        m_brush.setColor(color);
        update();
    }
}

void GraphicsPathItem::paintOutline(QPainter* painter)
{
    Common::PaintHelper::paintIrregularPolygon(polygon(), m_brush, painter);
}

} // namespace Korvex::Meridane::Designer
