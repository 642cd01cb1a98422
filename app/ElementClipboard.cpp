#include "app/ElementClipboard.h"

#include "app/CoreText.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

const QLatin1String ElementsKey("elements");
const QLatin1String ImagesKey("imagesFolder");
constexpr double AsideStep = 10; // pixels

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

QByteArray ElementClipboard::write(const EditSession* session, const QList<DesignerObject*>& objects)
{
    QJsonArray entries;
    const QList<DesignerObject*> elements = copyable(objects);
    for (const DesignerObject* element : elements)
        entries.append(ElementJson::write(element));
    if (entries.isEmpty())
        return {};
    return QJsonDocument(QJsonObject{{ElementsKey, entries}, {ImagesKey, session->project()->imagesPath()}}).toJson();
}

EditResult ElementClipboard::insert(EditSession* session, const QByteArray& data, const QString& text)
{
    Screen* screen = session->currentScreen();
    if (!screen)
        return {false, false, coreText("There is no screen to add to.")};
    session->scene(screen); // an edit always has items
    if (!screen->contentError().isEmpty())
        return {false, false, screen->contentError()};
    const QJsonObject content = QJsonDocument::fromJson(data).object();
    const QJsonArray entries = content.value(ElementsKey).toArray();
    std::vector<std::unique_ptr<DesignerObject>> elements;
    for (const auto& entry : entries) {
        if (auto element = ElementJson::read(entry.toObject())) {
            takeImages(session, element.get(), content.value(ImagesKey).toString());
            elements.push_back(std::move(element));
        }
    }
    if (elements.empty())
        return {false, false, coreText("The clipboard holds no elements.")};
    moveAside(session, elements);

    QList<DesignerObject*> added;
    auto command = std::make_unique<UndoCommand>();
    command->setText(text);
    for (auto& element : elements) {
        added.append(element.get());
        new AddObject(screen, std::move(element), -1, command.get());
    }
    EditResult result = session->project()->execute(std::move(command));
    if (result.changed)
        session->setSelection(added);
    return result;
}

void ElementClipboard::moveAside(EditSession* session, const std::vector<std::unique_ptr<DesignerObject>>& elements)
{
    const auto* first = qobject_cast<const VisualElement*>(elements.front().get());
    if (!first)
        return;
    const auto position = [](const VisualElement* element) {
        return ValueConversion::toPoint(element->position()->valueString());
    };
    QList<QPointF> taken;
    const auto& siblings = session->currentScreen()->childList()->items();
    for (const DesignerObject* sibling : siblings) {
        if (const auto* element = qobject_cast<const VisualElement*>(sibling))
            taken.append(position(element));
    }
    QPointF aside;
    while (taken.contains(position(first) + aside))
        aside += QPointF(AsideStep, AsideStep);
    if (aside.isNull())
        return;
    for (const auto& object : elements) {
        const auto* element = qobject_cast<const VisualElement*>(object.get());
        if (element && element->position()->isConverted())
            element->position()->fill(ValueConversion::toString(position(element) + aside));
    }
}

void ElementClipboard::takeImages(EditSession* session, DesignerObject* element, const QString& imagesFolder)
{
    // Also in the same project: an image may have been renamed or removed since.
    if (imagesFolder.isEmpty())
        return;
    for (const auto& property : element->properties()) {
        if (!dynamic_cast<const LinkProperty*>(property.data()))
            continue;
        const QString id = property->valueString();
        // Only a plain file name can be an image resource.
        if (id.isEmpty() || id != QFileInfo(id).fileName() || session->project()->imageResources().contains(id))
            continue;
        const QString file = QDir(imagesFolder).filePath(id);
        QString imported;
        if (QFileInfo(file).isFile() && session->importImage(file, &imported).accepted)
            property->fill(imported);
    }
    if (const ObjectListProperty* list = element->childList()) {
        for (DesignerObject* child : list->items())
            takeImages(session, child, imagesFolder);
    }
}

} // namespace Korvex::Meridane::Designer
