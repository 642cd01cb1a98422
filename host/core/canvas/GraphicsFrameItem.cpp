#include "host/core/canvas/GraphicsFrameItem.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

GraphicsFrameItem::GraphicsFrameItem(DesignerObject* dataObject, const QSizeF& size)
    : GraphicsItem(dataObject, this)
    , m_size(size)
{}

GraphicsFrameItem::~GraphicsFrameItem() = default;

QRectF GraphicsFrameItem::boundingRect() const
{
    return outerRect();
}

void GraphicsFrameItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    paintContent(painter);
    refreshToolTip();
    PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QPainterPath GraphicsFrameItem::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsFrameItem::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property || property->id() != QLatin1String("size"))
        return;
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(property->valueString(), &ok);
    if (ok && acceptsSize(size))
        setSize(size);
}

UndoCommand* GraphicsFrameItem::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("size"))
        return writeBack(property, ValueConversion::toString(m_size), parent);
    return nullptr;
}

void GraphicsFrameItem::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const QSizeF outer = resizedTo(frameChange(handle, outerSize).outerSize);
    const int border = borderWidth();
    const QSizeF size = border == 0 ? outer : withoutNoise(outer - QSizeF(border, border));
    if (!acceptsSize(size))
        return;
    setItemPosition(positionKeepingOpposite(handle, {outerRect().topLeft(), outer}));
    setSize(size);
}

double GraphicsFrameItem::minSize() const
{
    return GraphicsItem::minSize() + borderWidth();
}

QRectF GraphicsFrameItem::outerRect() const
{
    if (!(m_size.width() > 0 && m_size.height() > 0))
        return {};
    return PaintHelper::getBoundingRect(m_size.width(), m_size.height(), borderWidth());
}

QRectF GraphicsFrameItem::contentRect() const
{
    return {QPointF(0, 0), m_size};
}

int GraphicsFrameItem::borderWidth() const
{
    return 0;
}

bool GraphicsFrameItem::acceptsSize(const QSizeF&) const
{
    return true;
}

QSizeF GraphicsFrameItem::resizedTo(const QSizeF& outerSize) const
{
    return outerSize;
}

void GraphicsFrameItem::setSize(const QSizeF& size)
{
    // Compared exactly: what is drawn is what the property says.
    if (size.width() == m_size.width() && size.height() == m_size.height())
        return;
    prepareGeometryChange();
    m_size = size;
    update();
    reportOuterSize();
}

} // namespace Korvex::Meridane::Designer
