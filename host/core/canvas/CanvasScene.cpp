#include "host/core/canvas/CanvasScene.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/ChangeScopes.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QGraphicsItem>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <bit>
#include <cmath>
#include <memory>

namespace Korvex::Meridane::Designer {

namespace {

/// How far beside a thin item the mouse may be, in screen pixels.
constexpr double ReachOfThinItems = 3;

/// About how thick the shape of \a graphic is, in its own units: that of a bar of the same area and circumference.
double thickness(const QGraphicsItem* graphic)
{
    double area = 0;
    double circumference = 0;
    const QList<QPolygonF> polygons = graphic->shape().toFillPolygons();
    for (const QPolygonF& polygon : polygons) {
        double twiceTheArea = 0;
        for (qsizetype i = 0; i < polygon.size(); ++i) {
            const QPointF& from = polygon.at(i);
            const QPointF& to = polygon.at((i + 1) % polygon.size());
            twiceTheArea += from.x() * to.y() - to.x() * from.y();
            circumference += std::hypot(to.x() - from.x(), to.y() - from.y());
        }
        area += 0.5 * std::abs(twiceTheArea);
    }
    return circumference > 0 ? 2 * area / circumference : 0;
}

/// The canvas item of an object, or null.
QGraphicsItem* graphicOf(const DesignerObject* object)
{
    const GraphicsItem* item = object ? object->graphicsItem() : nullptr;
    return item ? item->graphic() : nullptr;
}

/// Visits the elements below \a object from back to front, groups before what is in them, until \a visit says false.
template <typename Visitor>
bool visitElements(const DesignerObject* object, const Visitor& visit)
{
    const ObjectListProperty* list = object->childList();
    if (!list)
        return true;
    for (DesignerObject* child : list->items()) {
        if (!visit(child) || !visitElements(child, visit))
            return false;
    }
    return true;
}

/// The object of \a chosen, for a hit on \a hit, which it is or which stands in it; null where the one that was hit is
/// locked.
DesignerObject* objectToSelect(QGraphicsItem* chosen, QGraphicsItem* hit)
{
    const GraphicsItem* item = GraphicsItem::fromGraphic(chosen);
    const GraphicsItem* pointed = GraphicsItem::fromGraphic(hit);
    return item && pointed && !EditorMarks::isLocked(pointed->dataObject()) ? item->dataObject() : nullptr;
}

QSharedPointer<DesignerProperty> childListHandle(const DesignerObject* owner)
{
    const ObjectListProperty* list = owner->childList();
    return list ? owner->getProperty(list->id()) : QSharedPointer<DesignerProperty>();
}

} // namespace

CanvasScene::CanvasScene(Screen* screen, QObject* parent)
    : QGraphicsScene(parent)
    , m_screen(screen)
{
    m_screen->readContent();
    connect(this, &QGraphicsScene::selectionChanged, this, &CanvasScene::onSelectionChanged);
    setSceneRect(QRectF(QPointF(0, 0), m_screen->size()));
    placeObject(m_screen, nullptr);
    if (const Project* project = Project::parentProject(m_screen)) {
        connect(project, &Project::objectAdded, this, &CanvasScene::onObjectAdded);
        connect(project, &Project::objectRemoved, this, &CanvasScene::onObjectRemoved);
        connect(project, &Project::objectReordered, this, &CanvasScene::restack);
        connect(project, &Project::objectMarked, this, &CanvasScene::onObjectMarked);
        connect(project, &Project::objectRenamed, this, [this](DesignerObject* object) {
            if (owns(object))
                object->graphicsItem()->nameChanged();
        });
    }
}

CanvasScene::~CanvasScene()
{
    // The items go with the scene, and nobody needs to hear that they are not selected any more.
    disconnect(this, &QGraphicsScene::selectionChanged, this, nullptr);
}

QList<DesignerObject*> CanvasScene::selectedObjects() const
{
    QList<DesignerObject*> objects;
    const QList<QGraphicsItem*> selected = selectedItems();
    objects.reserve(selected.size());
    for (QGraphicsItem* graphic : selected) {
        const GraphicsItem* item = GraphicsItem::fromGraphic(graphic);
        if (item && item->dataObject())
            objects.append(item->dataObject());
    }
    return inZOrder(objects);
}

QList<DesignerObject*> CanvasScene::selectedRoots() const
{
    QList<DesignerObject*> objects = selectedObjects();
    objects.removeIf([](const DesignerObject* object) {
        for (QGraphicsItem* graphic = graphicOf(object)->parentItem(); graphic; graphic = graphic->parentItem()) {
            if (graphic->isSelected())
                return true;
        }
        return false;
    });
    return objects;
}

QList<DesignerObject*> CanvasScene::movableRoots() const
{
    QList<DesignerObject*> objects = selectedRoots();
    objects.removeIf([](const DesignerObject* object) {
        return !graphicOf(object)->flags().testFlag(QGraphicsItem::ItemIsMovable) || EditorMarks::isLocked(object);
    });
    return objects;
}

void CanvasScene::setSelectedObjects(const QList<DesignerObject*>& objects)
{
    QSet<QGraphicsItem*> wanted;
    wanted.reserve(objects.size());
    for (const DesignerObject* object : objects) {
        QGraphicsItem* graphic = graphicOf(object);
        if (graphic && graphic->scene() == this && graphic->flags().testFlag(QGraphicsItem::ItemIsSelectable))
            wanted.insert(graphic);
    }
    bool changed = false;
    {
        const QSignalBlocker announcedOnce(this);
        const QList<QGraphicsItem*> present = selectedItems();
        for (QGraphicsItem* graphic : present) {
            if (!wanted.remove(graphic)) {
                graphic->setSelected(false);
                changed = true;
            }
        }
        for (QGraphicsItem* graphic : std::as_const(wanted)) {
            graphic->setSelected(true);
            changed = true;
        }
    }
    if (changed)
        Q_EMIT selectionChanged();
}

DesignerObject* CanvasScene::elementAt(const QPointF& scenePos) const
{
    const QSet<const QGraphicsItem*> entered = enteredGroups();
    return pointedElement(scenePos, [this, &entered](QGraphicsItem* graphic) -> DesignerObject* {
        QGraphicsItem* outermost = nullptr;
        for (QGraphicsItem* hit = graphic; hit && !entered.contains(hit); hit = hit->parentItem()) {
            if (!hit->flags().testFlag(QGraphicsItem::ItemIsSelectable))
                continue;
            outermost = hit;
            if (hit->isSelected())
                break;
        }
        return objectToSelect(outermost, graphic);
    });
}

DesignerObject* CanvasScene::elementInGroupAt(const QPointF& scenePos) const
{
    const DesignerObject* group = elementAt(scenePos);
    const QGraphicsItem* owner = graphicOf(group);
    if (!owner || !group->childList())
        return nullptr;
    return pointedElement(scenePos, [owner](QGraphicsItem* graphic) -> DesignerObject* {
        QGraphicsItem* child = graphic;
        while (child && child->parentItem() != owner)
            child = child->parentItem();
        return objectToSelect(child, graphic);
    });
}

/// What \a choose makes of the front-most item at \a scenePos of which it makes something.
DesignerObject* CanvasScene::pointedElement(const QPointF& scenePos,
                                            const std::function<DesignerObject*(QGraphicsItem*)>& choose) const
{
    const QList<QGraphicsItem*> hit = items(scenePos);
    QGraphicsItem* exact = nullptr;
    for (QGraphicsItem* graphic : hit) {
        if (choose(graphic)) {
            exact = graphic;
            break;
        }
    }
    // What is thin would be hard to hit: it is found from beside, too, unless it lies under what is hit exactly.
    const double reach = ReachOfThinItems / m_viewScale;
    const QRectF about(scenePos.x() - reach, scenePos.y() - reach, 2 * reach, 2 * reach);
    const QList<QGraphicsItem*> near = items(about, Qt::IntersectsItemShape);
    for (QGraphicsItem* graphic : near) {
        if (graphic == exact)
            break;
        DesignerObject* chosen = choose(graphic);
        if (chosen && thickness(graphic) <= 2 * reach)
            return chosen;
    }
    return exact ? choose(exact) : nullptr;
}

QList<DesignerObject*> CanvasScene::elementsAt(const QPointF& scenePos) const
{
    const double reach = ReachOfThinItems / m_viewScale;
    const QRectF about(scenePos.x() - reach, scenePos.y() - reach, 2 * reach, 2 * reach);
    const QList<QGraphicsItem*> near = items(about, Qt::IntersectsItemShape);
    QList<DesignerObject*> elements;
    for (QGraphicsItem* graphic : near) {
        const GraphicsItem* hit = GraphicsItem::fromGraphic(graphic);
        if (hit && EditorMarks::isLocked(hit->dataObject()))
            continue;
        if (!graphic->contains(graphic->mapFromScene(scenePos)) && thickness(graphic) > 2 * reach)
            continue;
        qsizetype place = elements.size();
        for (QGraphicsItem* above = graphic; above; above = above->parentItem()) {
            const GraphicsItem* item = GraphicsItem::fromGraphic(above);
            DesignerObject* object = item ? item->dataObject() : nullptr;
            if (!object || !above->flags().testFlag(QGraphicsItem::ItemIsSelectable))
                continue;
            const qsizetype known = elements.indexOf(object);
            if (known < 0)
                elements.insert(place, object);
            else
                place = known + 1;
        }
    }
    return elements;
}

QList<DesignerObject*> CanvasScene::elementsIn(const QRectF& sceneRect) const
{
    QList<DesignerObject*> elements;
    QSet<DesignerObject*> seen;
    const QList<QGraphicsItem*> touched = items(sceneRect, Qt::IntersectsItemShape, Qt::AscendingOrder);
    for (QGraphicsItem* graphic : touched) {
        DesignerObject* element = selectableElement(graphic);
        if (element && !seen.contains(element)) {
            seen.insert(element);
            elements.append(element);
        }
    }
    return elements;
}

QList<DesignerObject*> CanvasScene::selectableElements(const DesignerObject* owner) const
{
    QList<DesignerObject*> elements;
    const ObjectListProperty* list = (owner ? owner : m_screen)->childList();
    if (!list)
        return elements;
    for (DesignerObject* object : list->items()) {
        const QGraphicsItem* graphic = graphicOf(object);
        if (graphic && graphic->isVisible() && graphic->flags().testFlag(QGraphicsItem::ItemIsSelectable)
            && !EditorMarks::isLocked(object))
            elements.append(object);
    }
    return elements;
}

void CanvasScene::setViewScale(double scale)
{
    if (scale > 0)
        m_viewScale = scale;
}

void CanvasScene::placeObject(DesignerObject* object, QGraphicsItem* parent)
{
    if (!object || object->graphicsItem())
        return;
    GraphicsItem* item = object->createGraphicsItem();
    if (!item)
        return;
    // The item belongs to us until the scene or the parent item takes it over, at once.
    QGraphicsItem* graphic = item->graphic();
    if (parent)
        graphic->setParentItem(parent);
    if (!item->initialize()) {
        delete graphic;
        return;
    }
    object->setGraphicsItem(item);

    const bool isScreen = object == m_screen;
    if (!isScreen)
        placeChildren(object, graphic);
    {
        const ValueRestoreScope filling;
        item->updateFromDataObject();
    }
    item->fillOuterSize();
    if (object->editorMark(EditorMarks::hidden()) == EditorMarks::setValue())
        graphic->setVisible(false);
    if (!parent)
        addItem(graphic);
    ++m_itemCount;
    if (isScreen)
        placeChildren(object, nullptr);
    fitIndex();
}

void CanvasScene::placeChildren(const DesignerObject* owner, QGraphicsItem* parent)
{
    const ObjectListProperty* list = owner->childList();
    if (!list)
        return;
    double z = 0;
    for (DesignerObject* child : list->items()) {
        placeObject(child, parent);
        if (QGraphicsItem* graphic = graphicOf(child))
            graphic->setZValue(z++);
    }
}

void CanvasScene::displaceObject(DesignerObject* object)
{
    QGraphicsItem* graphic = graphicOf(object);
    if (!graphic || graphic->scene() != this)
        return;
    GraphicsItem* parent = GraphicsItem::fromGraphic(graphic->parentItem());
    visitElements(object, [this](const DesignerObject* child) {
        m_itemCount -= child->graphicsItem() ? 1 : 0;
        return true;
    });
    --m_itemCount;
    // Taken out while it is whole: what hears that the selection changed may still look at it.
    removeItem(graphic);
    delete graphic;
    if (parent)
        parent->childOutlineChanged();
}

void CanvasScene::restack(DesignerObject* object)
{
    QGraphicsItem* graphic = graphicOf(object);
    const DesignerObject* owner = object ? object->parentObject() : nullptr;
    const ObjectListProperty* list = owner ? owner->childList() : nullptr;
    if (!graphic || graphic->scene() != this || !list)
        return;
    const QVector<DesignerObject*>& siblings = list->items();
    const auto nearest = [&](auto from, auto to) {
        const auto found = std::find_if(from, to, [](const DesignerObject* sibling) { return graphicOf(sibling); });
        return found == to ? nullptr : graphicOf(*found);
    };
    const auto place = std::find(siblings.crbegin(), siblings.crend(), object);
    if (place == siblings.crend())
        return;
    const QGraphicsItem* inFront = nearest(place.base(), siblings.cend());
    const QGraphicsItem* behind = nearest(std::next(place), siblings.crend());
    // Between the two neighbours, so that no other item has to be touched; until halves get too small to tell apart.
    constexpr double SmallestGap = 1e-6;
    if (inFront && behind && inFront->zValue() - behind->zValue() < SmallestGap) {
        double z = 0;
        for (const DesignerObject* sibling : siblings) {
            if (QGraphicsItem* item = graphicOf(sibling))
                item->setZValue(z++);
        }
    } else if (inFront && behind) {
        graphic->setZValue(0.5 * (inFront->zValue() + behind->zValue()));
    } else if (behind) {
        graphic->setZValue(behind->zValue() + 1);
    } else {
        graphic->setZValue(inFront ? inFront->zValue() - 1 : 0);
    }
}

bool CanvasScene::owns(const DesignerObject* object) const
{
    const QGraphicsItem* graphic = graphicOf(object);
    return graphic && graphic->scene() == this;
}

/// The element to select for a hit on \a graphic, or null for what cannot be selected.
DesignerObject* CanvasScene::selectableElement(QGraphicsItem* graphic) const
{
    QGraphicsItem* outermost = nullptr;
    for (QGraphicsItem* hit = graphic; hit; hit = hit->parentItem()) {
        if (!hit->flags().testFlag(QGraphicsItem::ItemIsSelectable))
            continue;
        outermost = hit;
        if (hit->isSelected())
            break;
    }
    return objectToSelect(outermost, graphic);
}

/// The groups that have been gone into: those around what is selected.
QSet<const QGraphicsItem*> CanvasScene::enteredGroups() const
{
    QSet<const QGraphicsItem*> entered;
    const QList<QGraphicsItem*> selected = selectedItems();
    for (const QGraphicsItem* graphic : selected) {
        for (const QGraphicsItem* group = graphic->parentItem(); group && !entered.contains(group);
             group = group->parentItem())
            entered.insert(group);
    }
    return entered;
}

QList<DesignerObject*> CanvasScene::inZOrder(const QList<DesignerObject*>& objects) const
{
    if (objects.size() < 2)
        return objects;
    QSet<const DesignerObject*> wanted(objects.cbegin(), objects.cend());
    QList<DesignerObject*> ordered;
    ordered.reserve(objects.size());
    visitElements(m_screen, [&](DesignerObject* object) {
        if (wanted.remove(object))
            ordered.append(object);
        return !wanted.isEmpty();
    });
    return ordered;
}

/// Qt settles the depth of the index when it first looks something up, usually in an almost empty scene. It is chosen
/// here instead, and again whenever the scene outgrows it.
void CanvasScene::fitIndex()
{
    constexpr int Shallowest = 5;
    constexpr int Deepest = 10; // measured: deeper trees cost more on moves than they save on hits
    const int wanted = std::clamp<int>(std::bit_width(std::size_t(m_itemCount)), Shallowest, Deepest);
    // Growing is what matters; an index that is too deep after many removals costs memory alone.
    if (wanted > bspTreeDepth())
        setBspTreeDepth(wanted);
}

void CanvasScene::onObjectAdded(DesignerObject* object)
{
    DesignerObject* owner = object->parentObject();
    if (owns(owner))
        owner->graphicsItem()->addGraphicsItemChild(childListHandle(owner), object);
}

void CanvasScene::onObjectRemoved(DesignerObject* object, DesignerObject* parent)
{
    if (owns(parent))
        parent->graphicsItem()->removeGraphicsItemChild(childListHandle(parent), object);
}

void CanvasScene::onObjectMarked(DesignerObject* object, const QString& mark)
{
    if (!owns(object))
        return;
    const bool set = object->editorMark(mark) == EditorMarks::setValue();
    if (mark == EditorMarks::hidden()) {
        graphicOf(object)->setVisible(!set);
        if (!set)
            Q_EMIT elementShown(object);
    }
    const bool mayHoldSelected = graphicOf(object)->isSelected() || object->childList();
    if (mark != EditorMarks::locked() || !set || !mayHoldSelected)
        return;
    // What the mouse could not select any more is let go.
    QList<DesignerObject*> remaining = selectedObjects();
    if (remaining.removeIf([](const DesignerObject* selected) { return EditorMarks::isLocked(selected); }) > 0)
        setSelectedObjects(remaining);
}

void CanvasScene::onSelectionChanged()
{
    QList<QPointer<DesignerObject>> selectedNow;
    const QList<QGraphicsItem*> selected = selectedItems();
    selectedNow.reserve(selected.size());
    QSet<const DesignerObject*> before;
    for (const auto& object : std::as_const(m_selectedBefore))
        before.insert(object);
    QList<GraphicsItem*> entering;
    for (QGraphicsItem* graphic : selected) {
        GraphicsItem* item = GraphicsItem::fromGraphic(graphic);
        if (!item || !item->dataObject())
            continue;
        selectedNow.append(item->dataObject());
        if (!before.remove(item->dataObject()))
            entering.append(item);
    }
    const QList<QPointer<DesignerObject>> selectedBefore = std::exchange(m_selectedBefore, selectedNow);
    for (const auto& object : selectedBefore) {
        if (object && before.contains(object) && owns(object))
            object->graphicsItem()->selectedChanged(false);
    }
    for (GraphicsItem* item : std::as_const(entering))
        item->selectedChanged(true);
}

} // namespace Korvex::Meridane::Designer
