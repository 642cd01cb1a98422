#include "host/core/arrange/ElementPlaces.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QGraphicsItem>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// Differences below this are noise of the arithmetic, in pixels and degrees.
constexpr double Noise = 1e-9;

QGraphicsItem* graphicOf(const DesignerObject* object)
{
    const GraphicsItem* item = object ? object->graphicsItem() : nullptr;
    return item ? item->graphic() : nullptr;
}

/// The upright rectangle around what \a rectOf says of \a object and of all that it holds.
template <typename RectOf>
QRectF bounds(const DesignerObject* object, const QTransform& transform, const RectOf& rectOf)
{
    const GraphicsItem* item = object->graphicsItem();
    if (!item)
        return {};
    const ObjectListProperty* list = object->childList();
    if (!list)
        return transform.mapRect(rectOf(item));
    QRectF all;
    for (const DesignerObject* child : list->items()) {
        if (child->graphicsItem())
            all |= bounds(child, ElementPlaces::toParent(child) * transform, rectOf);
    }
    return all;
}

int depthOf(const DesignerObject* object)
{
    int depth = 0;
    for (; object; object = object->parentObject())
        ++depth;
    return depth;
}

bool isNoise(const QPointF& difference)
{
    return std::abs(difference.x()) < Noise && std::abs(difference.y()) < Noise;
}

/// \a angle in the range from 0 to 360, without 360 itself.
double withinOneTurn(double angle)
{
    const double rest = withoutNoise(std::fmod(angle, 360));
    const double turned = rest < 0 ? rest + 360 : rest;
    return turned >= 360 ? 0 : turned + 0.0;
}

void collect(DesignerObject* object, const QSet<const DesignerObject*>& wanted, QList<DesignerObject*>& found)
{
    if (wanted.contains(object) && object->graphicsItem() && !qobject_cast<Screen*>(object)) {
        found.append(object);
        return;
    }
    if (const ObjectListProperty* list = object->childList()) {
        for (DesignerObject* child : list->items())
            collect(child, wanted, found);
    }
}

} // namespace

ElementPlace ElementPlaces::placeOf(const DesignerObject* object)
{
    const QGraphicsItem* graphic = qobject_cast<const Screen*>(object) ? nullptr : graphicOf(object);
    if (!graphic)
        return {};
    ElementPlace place{graphic->sceneTransform(), 0};
    for (; graphic; graphic = graphic->parentItem())
        place.angle += graphic->rotation();
    return place;
}

QTransform ElementPlaces::toParent(const DesignerObject* object)
{
    const QGraphicsItem* graphic = graphicOf(object);
    if (!graphic)
        return {};
    const QGraphicsItem* parent = graphic->parentItem();
    return parent ? graphic->itemTransform(parent) : graphic->sceneTransform();
}

QRectF ElementPlaces::outerBounds(const DesignerObject* object, const QTransform& transform)
{
    return bounds(object, transform, [](const GraphicsItem* item) { return item->outerRect(); });
}

QRectF ElementPlaces::contentBounds(const DesignerObject* object, const QTransform& transform)
{
    return bounds(object, transform, [](const GraphicsItem* item) { return item->contentRect(); });
}

QList<DesignerObject*> ElementPlaces::roots(const QList<DesignerObject*>& objects)
{
    DesignerObject* top = objects.isEmpty() ? nullptr : objects.constFirst();
    while (top && !qobject_cast<Screen*>(top))
        top = top->parentObject();
    QList<DesignerObject*> found;
    if (top)
        collect(top, QSet<const DesignerObject*>(objects.cbegin(), objects.cend()), found);
    return found;
}

QList<DesignerObject*> ElementPlaces::movable(QList<DesignerObject*> objects)
{
    objects.removeIf([](const DesignerObject* object) {
        const auto* element = qobject_cast<const VisualElement*>(object);
        const QGraphicsItem* graphic = graphicOf(object);
        return !element || !element->position()->isConverted() || !graphic
               || !graphic->flags().testFlag(QGraphicsItem::ItemIsMovable) || EditorMarks::isLocked(object);
    });
    return objects;
}

PlaceElements::PlaceElements(UndoCommand* parent)
    : UndoCommand(parent)
{}

PlaceElements::~PlaceElements() = default;

void PlaceElements::put(DesignerObject* object, const ElementPlace& place)
{
    m_targets.append({object, place});
}

void PlaceElements::keep(DesignerObject* container)
{
    for (; container && !qobject_cast<Screen*>(container); container = container->parentObject()) {
        const bool known = std::any_of(m_targets.cbegin(), m_targets.cend(),
                                       [container](const Target& target) { return target.object == container; });
        if (known)
            return;
        m_targets.append({container, ElementPlaces::placeOf(container)});
    }
}

bool PlaceElements::isValid() const
{
    return !m_targets.isEmpty();
}

/// Where \a object is to be in the end.
ElementPlace PlaceElements::wantedPlace(const DesignerObject* object) const
{
    for (const Target& target : m_targets) {
        if (target.object == object)
            return target.place;
    }
    return ElementPlaces::placeOf(object);
}

void PlaceElements::execute()
{
    // What a group holds tells where its fixed point is: from the inside to the outside.
    QList<Target> ordered = m_targets;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const Target& a, const Target& b) { return depthOf(a.object) > depthOf(b.object); });
    for (const Target& target : std::as_const(ordered)) {
        auto* element = qobject_cast<VisualElement*>(target.object.data());
        const GraphicsItem* item = element ? element->graphicsItem() : nullptr;
        if (!item || !element->parentObject())
            continue;
        const ElementPlace owner = wantedPlace(element->parentObject());
        const double present = item->graphic()->rotation();
        const double turn = target.place.angle - owner.angle - present;
        if (std::abs(std::remainder(turn, 360)) > Noise) {
            RotationInfo rotation = ValueConversion::toRotationInfo(element->rotation()->valueString());
            rotation.setAngle(withinOneTurn(present + turn));
            element->changePropertyValue(element->rotation(), ValueConversion::toString(rotation));
        }
        const QTransform wanted = target.place.toScene * owner.toScene.inverted();
        const QPointF fixed = item->fixedPoint();
        const QPointF position = wanted.map(fixed) - fixed;
        if (!isNoise(position - item->graphic()->pos()))
            element->changePropertyValue(element->position(), ValueConversion::toString(withoutNoise(position)));
    }
}

} // namespace Korvex::Meridane::Designer
