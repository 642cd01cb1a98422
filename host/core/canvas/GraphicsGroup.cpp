#include "host/core/canvas/GraphicsGroup.h"

#include "host/common/PaintHelper.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

GraphicsGroup::GraphicsGroup(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{}

GraphicsGroup::~GraphicsGroup() = default;

QRectF GraphicsGroup::boundingRect() const
{
    return outerRect();
}

QPainterPath GraphicsGroup::shape() const
{
    return {};
}

void GraphicsGroup::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    refreshToolTip();
    Common::PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QString GraphicsGroup::className() const
{
    return QStringLiteral("GraphicsGroup");
}

QStringList GraphicsGroup::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsGroup");
}

QPainterPath GraphicsGroup::getShape() const
{
    QPainterPath shapes;
    const QList<QGraphicsItem*> children = childItems();
    for (QGraphicsItem* child : children) {
        if (const GraphicsItem* item = fromGraphic(child))
            shapes.addPath(item->getShape().translated(child->pos()));
    }
    return rotatedShape(shapes);
}

void GraphicsGroup::selectedChanged(bool selected)
{
    const QList<QGraphicsItem*> children = childItems();
    for (QGraphicsItem* child : children) {
        GraphicsItem* item = fromGraphic(child);
        if (item && !child->isSelected())
            item->selectedChanged(selected);
    }
}

QRectF GraphicsGroup::outerRect() const
{
    measure();
    return m_outer;
}

QRectF GraphicsGroup::contentRect() const
{
    measure();
    return {0, 0, std::max(m_unturned.right(), 0.0), std::max(m_unturned.bottom(), 0.0)};
}

void GraphicsGroup::childOutlineChanged()
{
    if (m_measured) {
        prepareGeometryChange();
        m_measured = false;
    }
    updateTransformOrigin();
    if (GraphicsItem* parent = fromGraphic(parentItem()))
        parent->childOutlineChanged();
}

void GraphicsGroup::measure() const
{
    if (m_measured)
        return;
    m_outer = {};
    m_unturned = {};
    const QList<QGraphicsItem*> children = childItems();
    for (QGraphicsItem* child : children) {
        const GraphicsItem* item = fromGraphic(child);
        if (!item)
            continue;
        const QRectF outline = item->outerRect();
        m_outer |= child->mapRectToParent(outline);
        const auto* group = dynamic_cast<const GraphicsGroup*>(item);
        m_unturned |= (group ? group->m_unturned : outline).translated(child->pos());
    }
    m_measured = true;
}

} // namespace Korvex::Meridane::Designer
