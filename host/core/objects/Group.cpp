#include "host/core/objects/Group.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

Group::Group(QObject* parent)
    : VisualElement(parent)
{
    setContainer(this);
}

Group::~Group() = default;

QString Group::className() const
{
    return QStringLiteral("Group");
}

QStringList Group::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("Group");
}

QString Group::displayName() const
{
    return LocalizationHelper::coreString(QStringLiteral("Group"));
}

bool Group::initializeProperties()
{
    if (!VisualElement::initializeProperties())
        return false;
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Screen"));
    info.setFilterType(QStringLiteral("Group"));
    info.setBase(QStringLiteral("group"));
    info.setName(QStringLiteral("group"));
    if (!setIdInfo(info))
        return false;
    m_elements = QSharedPointer<ObjectListProperty>::create(this, QStringLiteral("elements"),
                                                            LocalizationHelper::coreString(QStringLiteral("Elements")));
    m_elements->setRank(100);
    m_elements->setFlags(Stored | Exported);
    addProperty(m_elements);
    return true;
}

GraphicsItem* Group::createGraphicsItem()
{
    GraphicsItem* item = DesignerFactory::instance()->createGraphicsItem(QStringLiteral("GraphicsGroup"), this);
    if (!item)
        return nullptr;
    item->graphic()->setFlag(QGraphicsItem::ItemIsSelectable);
    item->graphic()->setFlag(QGraphicsItem::ItemIsMovable);
    item->setRotatable(true);
    return item;
}

ObjectListProperty* Group::containedObjects() const
{
    return m_elements.data();
}

QString Group::onCompletedQml(int indent) const
{
    const QRectF content = contentRect();
    return QStringLiteral("%1width: %2\n%1height: %3")
        .arg(getTabs(indent), ValueConversion::toQmlString(content.width(), 4),
             ValueConversion::toQmlString(content.height(), 4));
}

QRectF Group::contentRect() const
{
    const QRectF bounds = getBoundingRect();
    return {0, 0, std::max(bounds.right(), 0.0), std::max(bounds.bottom(), 0.0)};
}

QRectF Group::getBoundingRect() const
{
    QRectF bounds;
    for (const DesignerObject* child : m_elements->items()) {
        const auto* element = qobject_cast<const VisualElement*>(child);
        if (!element)
            continue;
        const QPointF position = ValueConversion::toPoint(element->position()->valueString());
        bounds |= element->getBoundingRect().translated(position);
    }
    return bounds;
}

} // namespace Korvex::Meridane::Designer
