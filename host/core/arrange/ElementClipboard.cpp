#include "host/core/arrange/ElementClipboard.h"

#include "host/core/arrange/ClipboardResources.h"
#include "host/core/arrange/ElementCopies.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

const QLatin1String ElementsKey("elements");
const QLatin1String PlacesKey("places");
const QLatin1String AngleKey("angle");
const QLatin1String OriginKey("origin");
const QLatin1String BoundsKey("bounds");
const QLatin1String ProjectKey("project");
const QLatin1String ResourcesKey("resources");

QJsonArray numbers(const QRectF& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonObject writePlace(const DesignerObject* element)
{
    const ElementPlace place = ElementPlaces::placeOf(element);
    return {{OriginKey, QJsonArray{place.toScene.dx(), place.toScene.dy()}},
            {AngleKey, place.angle},
            {BoundsKey, numbers(ElementPlaces::outerBounds(element, place.toScene))}};
}

/// The place that \a entry tells, or nothing for one that tells none.
std::optional<ElementPlace> readPlace(const QJsonObject& entry)
{
    const QJsonArray origin = entry.value(OriginKey).toArray();
    const double angle = entry.value(AngleKey).toDouble(std::nan(""));
    if (origin.size() != 2 || !origin.at(0).isDouble() || !origin.at(1).isDouble() || !std::isfinite(angle))
        return std::nullopt;
    ElementPlace place;
    place.toScene.translate(origin.at(0).toDouble(), origin.at(1).toDouble());
    place.toScene.rotate(angle);
    place.angle = angle;
    return place;
}

QRectF readBounds(const QJsonObject& entry)
{
    const QJsonArray rect = entry.value(BoundsKey).toArray();
    return {rect.at(0).toDouble(), rect.at(1).toDouble(), rect.at(2).toDouble(), rect.at(3).toDouble()};
}

/// What is pasted goes into this: a group, or \a screen.
DesignerObject* ownerFor(EditSession* session, Screen* screen, const QSet<QString>& copiedIds)
{
    const QList<DesignerObject*> selection = session->selection();
    if (selection.isEmpty() || ObjectTree::screenOf(selection.constFirst()) != screen)
        return screen;
    DesignerObject* owner = selection.constFirst()->parentObject();
    if (selection.size() == 1 && qobject_cast<Group*>(selection.constFirst())
        && !copiedIds.contains(selection.constFirst()->getIdName()))
        owner = selection.constFirst();
    for (const DesignerObject* object : selection) {
        if (object != owner && object->parentObject() != owner)
            return screen;
    }
    const bool takes = qobject_cast<Group*>(owner) && !EditorMarks::isLocked(owner) && !EditorMarks::isHidden(owner);
    return takes ? owner : screen;
}

} // namespace

QString ElementClipboard::mimeType()
{
    return QStringLiteral("application/x-meridane-elements+json");
}

QList<DesignerObject*> ElementClipboard::copyable(const QList<DesignerObject*>& objects)
{
    const QSet<DesignerObject*> chosen(objects.cbegin(), objects.cend());
    const auto standsInside = [&chosen](const DesignerObject* object) {
        for (DesignerObject* above = object->parentObject(); above; above = above->parentObject()) {
            if (chosen.contains(above) && qobject_cast<Element*>(above))
                return true;
        }
        return false;
    };
    // Parents in the order of their first element, the elements of each from back to front.
    QList<DesignerObject*> parents;
    for (DesignerObject* object : objects) {
        if (qobject_cast<Element*>(object) && object->parentObject() && !parents.contains(object->parentObject())
            && !standsInside(object))
            parents.append(object->parentObject());
    }
    QList<DesignerObject*> elements;
    for (const DesignerObject* parent : parents) {
        for (DesignerObject* child : parent->childList()->items()) {
            if (chosen.contains(child))
                elements.append(child);
        }
    }
    return elements;
}

QByteArray ElementClipboard::write(EditSession* session, const QList<DesignerObject*>& objects)
{
    QJsonArray entries;
    QJsonArray places;
    const QList<DesignerObject*> elements = copyable(objects);
    for (DesignerObject* element : elements) {
        session->scene(ObjectTree::screenOf(element)); // places are those of items
        entries.append(ElementJson::write(element));
        places.append(writePlace(element));
    }
    if (entries.isEmpty())
        return {};
    const QList<const DesignerObject*> used(elements.cbegin(), elements.cend());
    return QJsonDocument(QJsonObject{{ElementsKey, entries},
                                     {PlacesKey, places},
                                     {ProjectKey, session->project()->folder()},
                                     {ResourcesKey, ClipboardResources::collect(session->project(), used)}})
        .toJson();
}

QImage ElementClipboard::picture(EditSession* session, const QList<DesignerObject*>& objects)
{
    RenderOptions options;
    options.ground = false;
    options.only = copyable(objects);
    Screen* screen = options.only.isEmpty() ? nullptr : ObjectTree::screenOf(options.only.constFirst());
    return screen ? ScreenRenderer::render(session->scene(screen), options) : QImage();
}

EditResult ElementClipboard::insert(EditSession* session, const QByteArray& data, const QString& text,
                                    Placement placement)
{
    const auto refused = [](const QString& message) { return EditResult{false, false, message}; };
    Screen* screen = session->currentScreen();
    if (!screen)
        return refused(LocalizationHelper::coreString(QStringLiteral("There is no screen to add to.")));
    session->scene(screen); // an edit always has items
    if (!screen->contentError().isEmpty())
        return refused(screen->contentError());
    const QJsonObject content = QJsonDocument::fromJson(data).object();
    const QJsonArray entries = content.value(ElementsKey).toArray();
    const QJsonArray places = content.value(PlacesKey).toArray();
    QSet<QString> copiedIds;
    if (content.value(ProjectKey).toString() == session->project()->folder()) {
        for (const auto& entry : entries)
            copiedIds.insert(entry.toObject().value(QLatin1String("id")).toString());
    }
    DesignerObject* owner = ownerFor(session, screen, copiedIds);
    ElementCopies copies(session, screen);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QJsonObject place = places.at(i).toObject();
        if (auto element = ElementJson::read(entries.at(i).toObject()))
            copies.add(std::move(element), owner, readPlace(place), readBounds(place));
    }
    if (copies.isEmpty())
        return refused(LocalizationHelper::coreString(QStringLiteral("The clipboard holds no elements.")));
    const QList<DesignerObject*> added = copies.elements();
    ClipboardResources::take(session, content.value(ResourcesKey).toObject(), added);
    if (placement == Placement::Aside)
        copies.moveAside();
    copies.moveIntoView();
    EditResult result = copies.execute(text);
    if (result.changed)
        session->setSelection(added);
    return result;
}

EditResult ElementClipboard::duplicate(EditSession* session, const QList<DesignerObject*>& objects,
                                       const std::optional<QPointF>& offset, QList<DesignerObject*>* copies)
{
    QList<DesignerObject*> originals = copyable(objects);
    Screen* screen = originals.isEmpty() ? nullptr : ObjectTree::screenOf(originals.constFirst());
    if (!screen)
        return {true, false, {}};
    if (!screen->contentError().isEmpty())
        return {false, false, screen->contentError()};
    session->scene(screen);
    ElementCopies made(session, screen);
    for (const DesignerObject* original : std::as_const(originals)) {
        DesignerObject* owner = original->parentObject();
        const bool onScreen = ObjectTree::screenOf(owner) == screen;
        if (auto element = onScreen ? ElementJson::read(ElementJson::write(original)) : nullptr) {
            const ElementPlace place = ElementPlaces::placeOf(original);
            made.add(std::move(element), owner, place, ElementPlaces::outerBounds(original, place.toScene));
        }
    }
    const QList<DesignerObject*> added = made.elements();
    if (offset)
        made.move(*offset);
    else
        made.moveAside();
    EditResult result = made.execute(LocalizationHelper::coreString(QStringLiteral("Duplicate")));
    if (result.changed) {
        session->setSelection(added);
        if (copies)
            *copies = added;
    }
    return result;
}

} // namespace Korvex::Meridane::Designer
