#include "host/core/canvas/GraphicsRectangle.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

GraphicsRectangle::GraphicsRectangle(DesignerObject* dataObject)
    : GraphicsFramedShape(dataObject)
{}

GraphicsRectangle::~GraphicsRectangle() = default;

QPainterPath GraphicsRectangle::shape() const
{
    const QRectF outer = outerRect();
    QPainterPath path;
    if (outer.isEmpty())
        return path;
    // The radius is that of the content's outline; the border's outer edge runs half its width further out.
    const double radius = std::min<double>(m_cornerRadius, 0.5 * std::min(size().width(), size().height()));
    if (radius > 0) {
        const double outerRadius = radius + 0.5 * style().penWidth();
        path.addRoundedRect(outer, outerRadius, outerRadius);
    } else {
        path.addRect(outer);
    }
    return path;
}

QString GraphicsRectangle::className() const
{
    return QStringLiteral("GraphicsRectangle");
}

QStringList GraphicsRectangle::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsRectangle");
}

void GraphicsRectangle::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsFramedShape::updateGraphicsItem(property);
    if (!property || property->id() != QLatin1String("cornerRadius"))
        return;
    bool ok = false;
    const int radius = ValueConversion::toInt(property->valueString(), &ok);
    if (ok && radius != m_cornerRadius) {
        m_cornerRadius = radius;
        update();
    }
}

void GraphicsRectangle::paintContent(QPainter* painter)
{
    Common::PaintHelper::paintRectangle(size(), m_cornerRadius, style().pen(), style().brush(), painter);
}

} // namespace Korvex::Meridane::Designer
