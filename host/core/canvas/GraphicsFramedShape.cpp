#include "host/core/canvas/GraphicsFramedShape.h"

#include "host/core/properties/DesignerProperty.h"

namespace Korvex::Meridane::Designer {

GraphicsFramedShape::GraphicsFramedShape(DesignerObject* dataObject)
    : GraphicsFrameItem(dataObject, QSizeF(100, 75))
{}

GraphicsFramedShape::~GraphicsFramedShape() = default;

void GraphicsFramedShape::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsFrameItem::updateGraphicsItem(property);
    if (!property)
        return;
    FillAndBorder style = m_style;
    if (style.takeValue(property->id(), property->valueString()))
        setStyle(style);
}

QRectF GraphicsFramedShape::outerRect() const
{
    return m_style.isVisible() ? GraphicsFrameItem::outerRect() : QRectF();
}

int GraphicsFramedShape::borderWidth() const
{
    return m_style.penWidth();
}

void GraphicsFramedShape::setStyle(const FillAndBorder& style)
{
    if (style == m_style)
        return;
    if (style.penWidth() != m_style.penWidth() || style.isVisible() != m_style.isVisible())
        prepareGeometryChange();
    m_style = style;
    update();
    reportOuterSize();
}

} // namespace Korvex::Meridane::Designer
