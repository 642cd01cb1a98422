#include "host/core/arrange/ElementCopies.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double AsideStep = 10; // pixels
/// So much of what is pasted is to be seen at least, in pixels.
constexpr double LeastSeen = 8;

template <typename Visitor>
void visit(DesignerObject* object, const Visitor& visitor)
{
    visitor(object);
    if (const ObjectListProperty* list = object->childList()) {
        for (DesignerObject* child : list->items())
            visit(child, visitor);
    }
}

/// How far a span from \a begin of \a length has to move to lie between 0 and \a room; its begin where it is longer.
double wayInto(double begin, double length, double room)
{
    const double wanted = std::clamp(begin, 0., std::max(0., room - length));
    return std::round(wanted - begin);
}

} // namespace

ElementCopies::ElementCopies(EditSession* session, Screen* screen)
    : m_session(session)
    , m_screen(screen)
{}

ElementCopies::~ElementCopies() = default;

void ElementCopies::add(std::unique_ptr<DesignerObject> element, DesignerObject* owner,
                        const std::optional<ElementPlace>& place, const QRectF& bounds)
{
    visit(element.get(), [](DesignerObject* object) {
        object->setEditorMark(EditorMarks::locked(), {});
        object->setEditorMark(EditorMarks::hidden(), {});
    });
    m_copies.push_back({std::move(element), owner, place, bounds});
}

QList<DesignerObject*> ElementCopies::elements() const
{
    QList<DesignerObject*> elements;
    for (const Copy& copy : m_copies)
        elements.append(copy.element.get());
    return elements;
}

/// Where the element's own origin lies on the screen.
QPointF ElementCopies::origin(const Copy& copy)
{
    if (copy.place)
        return copy.place->toScene.map(QPointF());
    const auto* element = qobject_cast<const VisualElement*>(copy.element.get());
    const QPointF position = element ? ValueConversion::toPoint(element->position()->valueString()) : QPointF();
    return ElementPlaces::placeOf(copy.owner).toScene.map(position);
}

void ElementCopies::moveAside()
{
    if (m_copies.empty())
        return;
    const auto rounded = [](const QPointF& point) {
        constexpr double Steps = 100; // of a pixel
        return std::pair(std::llround(point.x() * Steps), std::llround(point.y() * Steps));
    };
    QSet<std::pair<qint64, qint64>> taken;
    for (const DesignerObject* sibling : m_copies.front().owner->childList()->items()) {
        if (sibling->graphicsItem())
            taken.insert(rounded(ElementPlaces::placeOf(sibling).toScene.map(QPointF())));
    }
    const QPointF first = origin(m_copies.front());
    while (taken.contains(rounded(first + m_shift)))
        m_shift += QPointF(AsideStep, AsideStep);
}

void ElementCopies::moveIntoView()
{
    QRectF all;
    for (const Copy& copy : m_copies)
        all |= copy.bounds;
    if (all.isNull())
        return;
    all.translate(m_shift);
    const QSizeF room = m_screen->size();
    const QRectF seen = all & QRectF(QPointF(0, 0), room);
    if (seen.width() >= std::min(LeastSeen, all.width()) && seen.height() >= std::min(LeastSeen, all.height()))
        return;
    m_shift += QPointF(wayInto(all.x(), all.width(), room.width()), wayInto(all.y(), all.height(), room.height()));
}

EditResult ElementCopies::execute(const QString& text)
{
    giveFreeIds();
    auto command = std::make_unique<UndoCommand>();
    command->setText(text);
    command->setAllOrNothing(true);
    std::vector<std::pair<DesignerObject*, ElementPlace>> placed;
    QList<DesignerObject*> owners;
    for (Copy& copy : m_copies) {
        const auto* element = qobject_cast<const VisualElement*>(copy.element.get());
        if (element && element->position()->isConverted()) {
            if (copy.place) {
                ElementPlace place = *copy.place;
                place.toScene *= QTransform::fromTranslate(m_shift.x(), m_shift.y());
                placed.emplace_back(copy.element.get(), place);
            } else if (!m_shift.isNull()) {
                const QPointF position = ValueConversion::toPoint(element->position()->valueString());
                element->position()->fill(ValueConversion::toString(withoutNoise(position + m_shift)));
            }
        }
        if (!owners.contains(copy.owner))
            owners.append(copy.owner);
        new AddObject(copy.owner, std::move(copy.element), -1, command.get());
    }
    m_copies.clear();
    auto* places = new PlaceElements(command.get());
    for (const auto& [element, place] : placed)
        places->put(element, place);
    for (DesignerObject* owner : std::as_const(owners))
        places->keep(owner);
    return m_session->project()->execute(std::move(command));
}

/// Ids that are taken on the screen, or by another copy, are replaced; links from copy to copy follow.
void ElementCopies::giveFreeIds()
{
    const IdRegistry* scope = m_screen->ownIdScope();
    QSet<QString> taken;
    QHash<QString, int> numbers; // the last one tried, by base
    QHash<QString, QString> renamed;
    const auto isFree = [&](const QString& id) { return !id.isEmpty() && !scope->contains(id) && !taken.contains(id); };
    for (const Copy& copy : m_copies) {
        visit(copy.element.get(), [&](DesignerObject* object) {
            const QString before = object->getIdName();
            QString id = before;
            const QString base =
                object->idInfo().base().isEmpty() ? QStringLiteral("element") : object->idInfo().base();
            while (!isFree(id))
                id = base + QString::number(++numbers[base]);
            taken.insert(id);
            if (id == before)
                return;
            object->setIdName(id);
            renamed.insert(before, id);
        });
    }
    if (renamed.isEmpty())
        return;
    for (const Copy& copy : m_copies) {
        visit(copy.element.get(), [&renamed](DesignerObject* object) {
            for (const auto& property : object->properties()) {
                if (!dynamic_cast<const LinkProperty*>(property.data()))
                    continue;
                if (const auto id = renamed.constFind(property->valueString()); id != renamed.cend())
                    property->fill(*id);
            }
        });
    }
}

} // namespace Korvex::Meridane::Designer
