#include "host/core/commands/ReparentObjects.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/CanvasSelection.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/ObjectLinks.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double FullTurn = 360;
constexpr double SameAngle = 1e-9; // degrees

/// The angle by which everything above \a object, and the object itself, turns it, in degrees.
double angleOnScreen(const DesignerObject* object)
{
    double angle = 0;
    for (; object; object = object->parentObject()) {
        if (const GraphicsItem* item = object->graphicsItem())
            angle += item->graphic()->rotation();
    }
    return angle;
}

/// \a scenePos in the coordinates in which the children of \a owner are placed.
QPointF inOwner(const DesignerObject* owner, const QPointF& scenePos)
{
    const GraphicsItem* item = owner->graphicsItem();
    return item && !qobject_cast<const Screen*>(owner) ? item->graphic()->mapFromScene(scenePos) : scenePos;
}

void setValue(const QSharedPointer<DesignerProperty>& property, const QString& value)
{
    if (property && !property->equalsValue(value))
        property->parentObject()->changePropertyValue(property, value);
}

QHash<DesignerObject*, QString> idsOf(DesignerObject* object)
{
    QHash<DesignerObject*, QString> ids;
    ObjectTree::visitRead(object, [&ids](const DesignerObject* visited) {
        ids.insert(const_cast<DesignerObject*>(visited), visited->getIdName());
    });
    return ids;
}

/// \a ids: what the object and those below it are to be called at their new place; empty: what is free there.
bool move(DesignerObject* object, DesignerObject* owner, int index, const QHash<DesignerObject*, QString>& ids = {})
{
    DesignerObject* from = object->parentObject();
    const int place = int(from->childList()->items().indexOf(object));
    if (!from->removeListItem(from->childList(), object))
        return false;
    // Between two scopes no id is in the way of another.
    for (auto id = ids.cbegin(); id != ids.cend(); ++id)
        id.key()->setIdName(id.value());
    if (owner->addListItem(owner->childList(), object, index))
        return true;
    from->addListItem(from->childList(), object, place);
    return false;
}

} // namespace

ReparentObjects::ReparentObjects(const QList<DesignerObject*>& objects, DesignerObject* owner, int index, Select select,
                                 UndoCommand* parent)
    : UndoCommand(parent)
    , m_objects(objects)
    , m_owner(owner)
    , m_index(index)
    , m_select(select)
{
    setAllOrNothing(true);
    setText(objects.size() == 1
                ? LocalizationHelper::coreString(QStringLiteral("Move %1")).arg(objects.constFirst()->getIdName())
                : LocalizationHelper::coreString(QStringLiteral("Move %n Element"), QStringLiteral("Move %n Elements"),
                                                 int(objects.size())));
}

ReparentObjects::~ReparentObjects() = default;

QList<DesignerObject*> ReparentObjects::selectedItems() const
{
    if (m_select == Select::Always)
        return m_objects;
    QList<DesignerObject*> objects = m_objects;
    objects.removeIf([this](const DesignerObject* object) {
        return (object->parentObject() == m_owner) != (m_select == Select::AtTheNewPlace);
    });
    return objects;
}

DesignerObject* ReparentObjects::activeItem() const
{
    return m_objects.isEmpty() ? nullptr : m_objects.constFirst();
}

bool ReparentObjects::isValid() const
{
    if (!m_owner || !m_owner->childList() || m_objects.isEmpty())
        return false;
    // Nothing goes into itself.
    for (DesignerObject* above = m_owner; above; above = above->parentObject()) {
        if (m_objects.contains(above))
            return false;
    }
    return std::all_of(m_objects.cbegin(), m_objects.cend(), [](const DesignerObject* object) {
        return qobject_cast<const Element*>(object) && object->parentObject();
    });
}

void ReparentObjects::execute()
{
    QList<Placing> placings;
    for (DesignerObject* object : std::as_const(m_objects)) {
        if (const GraphicsItem* item = object->graphicsItem()) {
            const QPointF fixedPoint = item->graphic()->mapToScene(item->fixedPoint());
            placings.append(Placing{object, inOwner(m_owner, fixedPoint), angleOnScreen(object)});
        }
    }
    // A group turns about a point of its content; where its own origin comes to lie must not follow the content.
    const QList<DesignerObject*> groups = groupsConcerned();
    QList<QPointF> origins;
    for (const DesignerObject* group : groups)
        origins.append(group->graphicsItem()->graphic()->mapToParent(QPointF(0, 0)));
    const QList<ObjectLinks::Link> links = ObjectLinks::linksWithin(m_objects);

    if (!moveAll()) {
        setRefusal(LocalizationHelper::coreString(QStringLiteral("\"%1\" cannot be moved there."))
                       .arg(m_objects.constFirst()->getIdName()));
        return;
    }
    for (const ObjectLinks::Link& link : links)
        setValue(link.property, link.target->getIdName());
    placeAgain(placings);
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const auto* group = qobject_cast<const VisualElement*>(groups.at(i));
        const QPointF shift = origins.at(i) - group->graphicsItem()->graphic()->mapToParent(QPointF(0, 0));
        const QPointF position = ValueConversion::toPoint(group->position()->valueString());
        setValue(group->position(), ValueConversion::toString(withoutNoise(position + shift)));
    }
}

void ReparentObjects::undoStructure()
{
    CanvasSelection::letGo(m_objects);
    std::for_each(m_moves.crbegin(), m_moves.crend(),
                  [this](const Move& done) { move(done.object, done.from, done.fromIndex, done.idsBefore); });
}

void ReparentObjects::redoStructure()
{
    CanvasSelection::letGo(m_objects);
    for (const Move& done : std::as_const(m_moves))
        move(done.object, m_owner, done.toIndex, done.idsAfter);
}

bool ReparentObjects::structureChanged() const
{
    return std::any_of(m_moves.cbegin(), m_moves.cend(),
                       [this](const Move& done) { return done.from != m_owner || done.fromIndex != done.toIndex; });
}

/// Moves the objects; takes back what was done when one cannot go.
bool ReparentObjects::moveAll()
{
    const auto& children = m_owner->childList()->items();
    QList<DesignerObject*> staying;
    for (DesignerObject* child : children) {
        if (!m_objects.contains(child))
            staying.append(child);
    }
    // The child before which they go is named by itself: places shift while siblings are taken out.
    const bool toFront = m_index < 0 || m_index >= staying.size();
    DesignerObject* before = toFront ? nullptr : staying.at(m_index);
    CanvasSelection::letGo(m_objects);
    for (DesignerObject* object : std::as_const(m_objects)) {
        DesignerObject* from = object->parentObject();
        const int fromIndex = int(from->childList()->items().indexOf(object));
        const QHash<DesignerObject*, QString> ids = idsOf(object);
        int index = int(before ? children.indexOf(before) : children.size());
        if (from == m_owner && fromIndex < index)
            --index; // its own old place goes
        if (!move(object, m_owner, index)) {
            undoStructure();
            m_moves.clear();
            return false;
        }
        m_moves.append(Move{object, from, fromIndex, index, ids, idsOf(object)});
    }
    return true;
}

void ReparentObjects::placeAgain(const QList<Placing>& placings) const
{
    const double ownerAngle = angleOnScreen(m_owner);
    for (const Placing& placing : placings) {
        const auto* element = qobject_cast<const VisualElement*>(placing.object);
        const GraphicsItem* item = element ? element->graphicsItem() : nullptr;
        if (!item)
            continue;
        const double turn = placing.angle - ownerAngle - item->graphic()->rotation();
        if (std::abs(turn) > SameAngle) {
            RotationInfo rotation = ValueConversion::toRotationInfo(element->rotation()->valueString());
            double angle = std::fmod(withoutNoise(rotation.angle() + turn), FullTurn);
            rotation.setAngle(angle < 0 ? angle + FullTurn : angle);
            setValue(element->rotation(), ValueConversion::toString(rotation));
        }
        const QPointF position = placing.fixedPoint - item->fixedPoint();
        setValue(element->position(), ValueConversion::toString(withoutNoise(position)));
    }
}

/// The groups whose content changes, inner ones before those around them.
QList<DesignerObject*> ReparentObjects::groupsConcerned() const
{
    QList<DesignerObject*> starts{m_owner};
    for (const DesignerObject* object : m_objects)
        starts.append(object->parentObject());
    QList<std::pair<int, DesignerObject*>> found;
    for (DesignerObject* start : std::as_const(starts)) {
        for (DesignerObject* above = start; above; above = above->parentObject()) {
            if (!qobject_cast<VisualElement*>(above) || !above->graphicsItem())
                continue;
            int depth = 0;
            for (const DesignerObject* parent = above; parent; parent = parent->parentObject())
                ++depth;
            if (!found.contains(std::pair(depth, above)))
                found.append({depth, above});
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& one, const auto& other) { return one.first > other.first; });
    QList<DesignerObject*> groups;
    for (const auto& [depth, group] : std::as_const(found))
        groups.append(group);
    return groups;
}

} // namespace Korvex::Meridane::Designer
