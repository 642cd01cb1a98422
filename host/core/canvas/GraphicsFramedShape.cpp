#include "host/core/canvas/GraphicsFramedShape.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

GraphicsFramedShape::GraphicsFramedShape(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{}

GraphicsFramedShape::~GraphicsFramedShape() = default;

QRectF GraphicsFramedShape::boundingRect() const
{
    return outerRect();
}

void GraphicsFramedShape::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    paintShape(painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QPainterPath GraphicsFramedShape::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsFramedShape::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property)
        return;
    FillAndBorder style = m_style;
    if (style.takeValue(property->id(), property->valueString())) {
        setStyle(style);
    } else if (property->id() == QLatin1String("size")) {
        bool ok = false;
        const QSizeF size = ValueConversion::toSize(property->valueString(), &ok);
        if (ok)
            setSize(size);
    }
}

UndoCommand* GraphicsFramedShape::updateDataObject(const QSharedPointer<DesignerProperty>& property,
                                                   UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("size"))
        return writeBack(property, ValueConversion::toString(m_size), parent);
    return nullptr;
}

void GraphicsFramedShape::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const FrameChange change = frameChange(handle, outerSize);
    setItemPosition(change.position);
    const int border = m_style.penWidth();
    setSize(border == 0 ? change.outerSize : withoutNoise(change.outerSize - QSizeF(border, border)));
}

double GraphicsFramedShape::minSize() const
{
    return GraphicsItem::minSize() + m_style.penWidth();
}

QRectF GraphicsFramedShape::outerRect() const
{
    if (!(m_size.width() > 0 && m_size.height() > 0) || !m_style.isVisible())
        return {};
    return PaintHelper::getBoundingRect(m_size.width(), m_size.height(), m_style.penWidth());
}

QRectF GraphicsFramedShape::contentRect() const
{
    return {QPointF(0, 0), m_size};
}

void GraphicsFramedShape::setSize(const QSizeF& size)
{
    // Compared exactly: what is drawn is what the property says.
    if (size.width() == m_size.width() && size.height() == m_size.height())
        return;
    prepareGeometryChange();
    m_size = size;
    update();
    reportOuterSize();
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
