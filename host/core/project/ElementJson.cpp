#include "host/core/project/ElementJson.h"

#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ElementReader.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QJsonArray>

namespace Korvex::Meridane::Designer {

namespace {

const QLatin1String PropertiesKey("properties");
const QLatin1String EditorKey("editor");

QJsonObject writeValues(const DesignerObject* object, const QJsonObject& unknown,
                        bool (*belongs)(const DesignerProperty& property))
{
    QJsonObject values = unknown;
    for (const auto& property : object->properties()) {
        if (belongs(*property))
            values.insert(property->id(), property->valueString());
    }
    return values;
}

} // namespace

QJsonObject ElementJson::write(const DesignerObject* object)
{
    if (const auto* unknown = qobject_cast<const UnknownElement*>(object)) {
        QJsonObject entry = unknown->entry();
        entry.insert(QLatin1String("id"), object->getIdName());
        return entry;
    }
    QJsonObject entry = object->unknownKeys();
    entry.insert(QLatin1String("class"), object->className());
    entry.insert(QLatin1String("id"), object->getIdName());
    entry.insert(PropertiesKey, writeValues(object, entry.value(PropertiesKey).toObject(), isStored));
    QJsonObject editor = writeValues(object, entry.value(EditorKey).toObject(), isEditorState);
    for (const QString& mark : object->editorMarkKeys()) {
        if (const QString value = object->editorMark(mark); !value.isEmpty())
            editor.insert(mark, value);
    }
    if (!editor.isEmpty())
        entry.insert(EditorKey, editor);
    if (const ObjectListProperty* list = object->childList()) {
        QJsonArray elements;
        for (const DesignerObject* child : list->items())
            elements.append(write(child));
        entry.insert(QLatin1String("elements"), elements);
    }
    return entry;
}

std::unique_ptr<DesignerObject> ElementJson::read(const QJsonObject& entry, QList<Problem>* problems)
{
    ElementReader reader({}, {});
    std::unique_ptr<DesignerObject> object = reader.readDetached(entry);
    if (problems)
        problems->append(reader.problems());
    return object;
}

bool ElementJson::isStored(const DesignerProperty& property)
{
    return property.hasFlag(Stored) && !dynamic_cast<const ObjectListProperty*>(&property);
}

bool ElementJson::isEditorState(const DesignerProperty& property)
{
    return !property.hasFlag(Stored) && property.hasFlag(Shown) && property.hasFlag(Editable)
           && property.id() != QLatin1String("boundingSize");
}

} // namespace Korvex::Meridane::Designer
