#include "examples/element-plugin/GraphicsBadge.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

#include <QPen>

namespace Example {

using Korvex::Meridane::Common::PaintHelper;

GraphicsBadge::GraphicsBadge(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{}

QRectF GraphicsBadge::boundingRect() const
{
    return {0, 0, m_diameter, m_diameter};
}

void GraphicsBadge::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    PaintHelper::paintRectangle(boundingRect().size(), int(m_diameter / 2), QPen(Qt::NoPen), m_color, painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(boundingRect(), painter, option);
}

QString GraphicsBadge::className() const
{
    return QStringLiteral("GraphicsBadge");
}

QStringList GraphicsBadge::classNames() const
{
    return GraphicsItem::classNames() << className();
}

void GraphicsBadge::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    bool ok = false;
    if (property->id() == QLatin1String("diameter")) {
        const int diameter = ValueConversion::toInt(property->valueString(), &ok);
        if (ok && diameter != m_diameter) {
            prepareGeometryChange();
            m_diameter = diameter;
            reportOuterSize();
        }
    } else if (property->id() == QLatin1String("color")) {
        const QColor color = ValueConversion::toColor(property->valueString(), &ok);
        if (ok)
            m_color = color;
    }
    update();
}

} // namespace Example
