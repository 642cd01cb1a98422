#include "host/core/canvas/GraphicsOutline.h"

#include "host/core/objects/OutlineReaction.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

GraphicsOutline::GraphicsOutline(DesignerObject* dataObject, const QPolygonF& polygon)
    : GraphicsItem(dataObject, this)
    , m_polygon(polygon)
    , m_bounds(polygon.boundingRect())
{}

GraphicsOutline::~GraphicsOutline() = default;

QRectF GraphicsOutline::boundingRect() const
{
    return m_bounds;
}

QPainterPath GraphicsOutline::shape() const
{
    QPainterPath path;
    path.addPolygon(m_polygon);
    path.closeSubpath();
    return path;
}

void GraphicsOutline::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    paintOutline(painter);
    refreshToolTip();
    Common::PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QPainterPath GraphicsOutline::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsOutline::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    // An outer size that was set is not reported back, see setKeepsOuterSize().
    if (!property || property->id() == QLatin1String("boundingSize"))
        return;
    GraphicsItem::updateGraphicsItem(property);
    if (property->id() != QLatin1String("points"))
        return;
    bool ok = false;
    const QPolygonF polygon = ValueConversion::toPolygon(property->valueString(), &ok);
    if (ok)
        setPolygon(polygon);
}

UndoCommand* GraphicsOutline::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("points"))
        return writeBack(property, ValueConversion::toString(m_polygon), parent);
    return nullptr;
}

void GraphicsOutline::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const QSizeF before = m_bounds.size();
    const QSizeF wanted(Common::handleChangesWidth(handle) ? outerSize.width() : before.width(),
                        Common::handleChangesHeight(handle) ? outerSize.height() : before.height());
    const auto factors = outlineFactors(before, wanted, keptRatio());
    if (!factors)
        return;
    const QPolygonF polygon = scaledOutline(m_polygon, *factors);
    setItemPosition(positionKeepingOpposite(handle, polygon.boundingRect()));
    setPolygon(polygon);
}

QRectF GraphicsOutline::outerRect() const
{
    return m_bounds;
}

QRectF GraphicsOutline::contentRect() const
{
    return m_bounds;
}

void GraphicsOutline::setPolygon(const QPolygonF& polygon)
{
    if (polygon == m_polygon)
        return;
    prepareGeometryChange();
    m_polygon = polygon;
    m_bounds = polygon.boundingRect();
    update();
    if (m_keepsOuterSize)
        updateTransformOrigin();
    else
        reportOuterSize();
}

} // namespace Korvex::Meridane::Designer
