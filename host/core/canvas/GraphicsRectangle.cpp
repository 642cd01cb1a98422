#include "host/core/canvas/GraphicsRectangle.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

GraphicsRectangle::GraphicsRectangle(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{}

GraphicsRectangle::~GraphicsRectangle() = default;

QRectF GraphicsRectangle::boundingRect() const
{
    return m_framed.outerRect();
}

QPainterPath GraphicsRectangle::shape() const
{
    const QRectF outer = outerRect();
    QPainterPath path;
    if (outer.isEmpty())
        return path;
    // The radius is that of the content's outline; the border's outer edge runs half its width further out.
    const QSizeF& size = m_framed.size();
    const double radius = std::min<double>(m_cornerRadius, 0.5 * std::min(size.width(), size.height()));
    if (radius > 0) {
        const double outerRadius = radius + 0.5 * m_framed.penWidth();
        path.addRoundedRect(outer, outerRadius, outerRadius);
    } else {
        path.addRect(outer);
    }
    return path;
}

void GraphicsRectangle::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    PaintHelper::paintRectangle(m_framed.size(), m_cornerRadius, m_framed.pen(), m_framed.brush(), painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QString GraphicsRectangle::className() const
{
    return QStringLiteral("GraphicsRectangle");
}

QStringList GraphicsRectangle::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsRectangle");
}

QPainterPath GraphicsRectangle::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsRectangle::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property)
        return;
    FramedShape framed = m_framed;
    if (framed.takeValue(property->id(), property->valueString())) {
        setFramedShape(framed);
    } else if (property->id() == QLatin1String("cornerRadius")) {
        bool ok = false;
        const int radius = ValueConversion::toInt(property->valueString(), &ok);
        if (ok && radius != m_cornerRadius) {
            m_cornerRadius = radius;
            update();
        }
    }
}

UndoCommand* GraphicsRectangle::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("size"))
        return writeBack(property, ValueConversion::toString(m_framed.size()), parent);
    return nullptr;
}

void GraphicsRectangle::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const FrameChange change = frameChange(handle, outerSize);
    setItemPosition(change.position);
    FramedShape framed = m_framed;
    framed.setSize(framed.contentSize(change.outerSize));
    setFramedShape(framed);
}

double GraphicsRectangle::minSize() const
{
    return GraphicsItem::minSize() + m_framed.penWidth();
}

QRectF GraphicsRectangle::outerRect() const
{
    return m_framed.outerRect();
}

QRectF GraphicsRectangle::contentRect() const
{
    return m_framed.contentRect();
}

void GraphicsRectangle::setFramedShape(const FramedShape& framed)
{
    if (framed == m_framed)
        return;
    if (framed.outerRect() != m_framed.outerRect())
        prepareGeometryChange();
    m_framed = framed;
    update();
    reportOuterSize();
}

} // namespace Korvex::Meridane::Designer
