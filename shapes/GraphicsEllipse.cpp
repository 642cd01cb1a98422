#include "shapes/GraphicsEllipse.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

GraphicsEllipse::GraphicsEllipse(DesignerObject* dataObject)
    : GraphicsFramedShape(dataObject)
{}

GraphicsEllipse::~GraphicsEllipse() = default;

QPainterPath GraphicsEllipse::shape() const
{
    QPainterPath path;
    if (const QRectF outer = outerRect(); !outer.isEmpty())
        path.addEllipse(outer);
    return path;
}

QString GraphicsEllipse::className() const
{
    return QStringLiteral("GraphicsEllipse");
}

QStringList GraphicsEllipse::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsEllipse");
}

void GraphicsEllipse::paintContent(QPainter* painter)
{
    Common::PaintHelper::paintEllipse(size(), style().pen(), style().brush(), painter);
}

} // namespace Korvex::Meridane::Designer
