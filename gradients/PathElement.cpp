#include "gradients/PathElement.h"

#include "gradients/OutlineProperty.h"

#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/objects/OutlineReaction.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/RuntimeProperty.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

PathElement::PathElement(QObject* parent)
    : VisualElement(parent)
{}

PathElement::~PathElement() = default;

QString PathElement::className() const
{
    return QStringLiteral("PathElement");
}

QStringList PathElement::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("PathElement");
}

QString PathElement::displayName() const
{
    return elementText("Path Element");
}

QString PathElement::qmlName() const
{
    return QStringLiteral("PathElement");
}

GraphicsItem* PathElement::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsPathItem"));
}

bool PathElement::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("PathElement"), QStringLiteral("pathElement")))
        return false;
    m_boundingSize = ElementProperties::declareBoundingSize(this, 10, DefaultOutlineSize);
    m_keepRatio = ElementProperties::declareKeepRatio(this, 11);
    m_points = declareOutline(this, 12);
    m_color = ElementProperties::declareFillColor(this, 13);
    return true;
}

void PathElement::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() == QLatin1String("boundingSize"))
        followBoundingSizeWithPoints(this, property, oldValue);
}

QList<RuntimeProperty> PathElement::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), elementText("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("points"), elementText("Points"), EnumHelper::List, true);
}

QRectF PathElement::getBoundingRect() const
{
    return outlineBounds(*m_points);
}

} // namespace Korvex::Meridane::Designer
