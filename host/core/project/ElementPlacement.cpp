#include "host/core/project/ElementPlacement.h"

#include "host/core/objects/Group.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/TransformOrigin.h"

#include <QTransform>

#include <cmath>
#include <optional>

namespace Korvex::Meridane::Designer {

namespace {

/// The rectangle on which the fixed point of the element's rotation is found; nothing where only its item knows it.
std::optional<QRectF> contentRect(const VisualElement* element)
{
    if (const auto* group = qobject_cast<const Group*>(element))
        return group->contentRect();
    const auto size = element->getProperty(QStringLiteral("size"));
    if (size && size->isConverted())
        return QRectF(QPointF(0, 0), ValueConversion::toSize(size->valueString()));
    return std::nullopt;
}

/// \a bounds, in the coordinates of \a element, as they lie in those of its parent.
QRectF inParent(const VisualElement* element, const QRectF& bounds)
{
    const QPointF position = ValueConversion::toPoint(element->position()->valueString());
    const RotationInfo rotation = ValueConversion::toRotationInfo(element->rotation()->valueString());
    if (rotation.angle() == 0)
        return bounds.translated(position);
    if (const std::optional<QRectF> content = contentRect(element)) {
        const auto origin = Common::transformOriginFromName(rotation.fixedPoint());
        return Common::rotationAbout(origin, *content, rotation.angle()).mapRect(bounds).translated(position);
    }
    // Only the item knows the fixed point of other elements; wherever on the element it is, they stay in this circle.
    const double reach = std::hypot(bounds.width(), bounds.height());
    return bounds.adjusted(-reach, -reach, reach, reach).translated(position);
}

} // namespace

QRectF ElementPlacement::boundsOnScreen(const VisualElement* element)
{
    QRectF bounds = element->getBoundingRect();
    if (bounds.isNull())
        return {};
    for (; element; element = qobject_cast<const VisualElement*>(element->parentObject()))
        bounds = inParent(element, bounds);
    return bounds;
}

} // namespace Korvex::Meridane::Designer
