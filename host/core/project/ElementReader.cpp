#include "host/core/project/ElementReader.h"

#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/JsonText.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

const QString ClassKey = QStringLiteral("class");
const QString IdKey = QStringLiteral("id");
const QString PropertiesKey = QStringLiteral("properties");
const QString EditorKey = QStringLiteral("editor");
const QString ElementsKey = QStringLiteral("elements");

QString childPath(const QString& path, qsizetype index)
{
    const QString child = QStringLiteral("elements[%1]").arg(index);
    return path.isEmpty() ? child : path + QLatin1Char('.') + child;
}

QString memberPath(const QString& path, const QString& key)
{
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

} // namespace

ElementReader::ElementReader(const QString& file, const QString& screenId)
    : m_file(file)
    , m_screenId(screenId)
{}

bool ElementReader::readScreen(const QJsonObject& entry, Screen* screen, QString* error)
{
    const Place place{entry, {}};
    const QJsonValue className = entry.value(ClassKey);
    if (!className.isUndefined() && className != screen->className()) {
        *error = LocalizationHelper::coreString(QStringLiteral("\"class\" must be \"%1\", not %2."))
                     .arg(screen->className(), JsonText::compact(className));
        return false;
    }
    if (!isWellFormed(place, true, error))
        return false;
    const QJsonValue id = entry.value(IdKey);
    if (!id.isUndefined() && id != m_screenId) {
        report(Problem::Severity::Error, m_screenId, {},
               LocalizationHelper::coreString(
                   QStringLiteral("\"id\" is %1, but the file is that of the screen \"%2\". The screen keeps the id "
                                  "\"%2\"; correct the file or its name."))
                   .arg(JsonText::compact(id), m_screenId));
    }
    collectIds(entry.value(ElementsKey).toArray(), {});
    fill(screen, place);
    return true;
}

std::unique_ptr<DesignerObject> ElementReader::readDetached(const QJsonObject& entry)
{
    collectIds({entry}, {});
    return create({entry, childPath({}, 0)});
}

/// Whether the parts of the entry are of the kinds that fill() can take apart and ElementJson puts together again.
bool ElementReader::isWellFormed(const Place& place, bool hasChildren, QString* error) const
{
    for (const QString& key : {PropertiesKey, EditorKey}) {
        const QJsonValue section = place.entry.value(key);
        if (!section.isUndefined() && !section.isObject()) {
            *error = LocalizationHelper::coreString(QStringLiteral("\"%1\" must be an object, not %2."))
                         .arg(memberPath(place.path, key), JsonText::kindOf(section));
            return false;
        }
    }
    const QJsonValue elements = place.entry.value(ElementsKey);
    if (!hasChildren || elements.isUndefined())
        return true;
    if (!elements.isArray()) {
        *error = LocalizationHelper::coreString(QStringLiteral("\"%1\" must be a list, not %2."))
                     .arg(memberPath(place.path, ElementsKey), JsonText::kindOf(elements));
        return false;
    }
    const QJsonArray list = elements.toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (!list.at(i).isObject()) {
            *error = LocalizationHelper::coreString(QStringLiteral("\"%1\" must be an object, not %2."))
                         .arg(childPath(place.path, i), JsonText::kindOf(list.at(i)));
            return false;
        }
    }
    return true;
}

void ElementReader::fill(DesignerObject* object, const Place& place)
{
    QJsonObject unknown = place.entry;
    for (const QString& key : {ClassKey, IdKey, PropertiesKey, EditorKey})
        unknown.remove(key);
    if (object->childList())
        unknown.remove(ElementsKey);
    const QJsonObject properties = fillValues(object, place, PropertiesKey, ElementJson::isStored);
    if (!properties.isEmpty())
        unknown.insert(PropertiesKey, properties);
    QJsonObject editor = fillValues(object, place, EditorKey, ElementJson::isEditorState);
    for (const QString& mark : object->editorMarkKeys()) {
        if (const QJsonValue value = editor.value(mark); value.isString()) {
            object->setEditorMark(mark, value.toString());
            editor.remove(mark);
        }
    }
    if (!editor.isEmpty())
        unknown.insert(EditorKey, editor);
    object->setUnknownKeys(unknown);
    addChildren(object, place);
}

/// Fills the properties that \a section may hold; the others come back.
QJsonObject ElementReader::fillValues(DesignerObject* object, const Place& place, const QString& section,
                                      bool (*belongs)(const DesignerProperty& property))
{
    QJsonObject unknown;
    const QJsonObject values = place.entry.value(section).toObject();
    for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
        const QString id = value.key();
        const QSharedPointer<DesignerProperty> property = object->getProperty(id);
        if (!property || !belongs(*property)) {
            unknown.insert(id, value.value());
            continue;
        }
        if (value->isString()) {
            property->fill(value->toString());
            continue;
        }
        const QString text = JsonText::compact(value.value());
        report(Problem::Severity::Error, qobject_cast<Screen*>(object) ? m_screenId : elementName(object->getIdName()),
               id,
               LocalizationHelper::coreString(
                   QStringLiteral("\"%1\" is %2; values are texts. It is taken as \"%3\": put it in quotes."))
                   .arg(memberPath(memberPath(place.path, section), id), JsonText::kindOf(value.value()), text));
        property->fill(text);
    }
    return unknown;
}

void ElementReader::addChildren(DesignerObject* object, const Place& place)
{
    if (!object->childList())
        return;
    const QJsonArray list = place.entry.value(ElementsKey).toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        const Place childPlace{list.at(i).toObject(), childPath(place.path, i)};
        std::unique_ptr<DesignerObject> child = create(childPlace);
        if (!object->addListItem(object->childList(), child.get(), -1)) {
            const QString id = child->getIdName();
            report(
                Problem::Severity::Error, elementName(id), {},
                LocalizationHelper::coreString(
                    QStringLiteral("\"%1\" does not take an element of the class \"%2\"; it is kept, but not shown."))
                    .arg(object->className(), childPlace.entry.value(ClassKey).toString()));
            child = createUnknown(childPlace);
            child->setIdName(id);
            if (!object->addListItem(object->childList(), child.get(), -1))
                continue;
        }
        child.release(); // NOLINT(bugprone-unused-return-value): the parent owns it now
    }
}

std::unique_ptr<DesignerObject> ElementReader::create(const Place& place)
{
    const QJsonValue className = place.entry.value(ClassKey);
    std::unique_ptr<DesignerObject> object;
    QString error;
    if (!className.isString()) {
        error = LocalizationHelper::coreString(QStringLiteral("\"%1\" must be the name of a class."))
                    .arg(memberPath(place.path, ClassKey));
    } else {
        object.reset(DesignerFactory::instance()->createDataObject(className.toString(), nullptr));
        // Screens and the like cannot be placed on a screen.
        if (object && !qobject_cast<Element*>(object.get()))
            object.reset();
        if (object && !isWellFormed(place, object->childList() != nullptr, &error))
            object.reset();
    }
    const bool known = object && !qobject_cast<UnknownElement*>(object.get());
    if (!known)
        object = createUnknown(place);
    const QString id = usableId(*object, place);
    object->setIdName(id);
    if (!error.isEmpty()) {
        report(Problem::Severity::Error, elementName(id), {},
               error + QLatin1Char(' ')
                   + LocalizationHelper::coreString(QStringLiteral("The element is kept, but not shown.")));
    }
    if (known)
        fill(object.get(), place);
    return object;
}

std::unique_ptr<DesignerObject> ElementReader::createUnknown(const Place& place) const
{
    auto unknown = std::make_unique<UnknownElement>();
    unknown->initialize();
    unknown->setEntry(place.entry);
    return unknown;
}

/// Every usable id below \a elements is taken, whether or not its element can be made: an id that is made up for another
/// element must not collide with any of them.
void ElementReader::collectIds(const QJsonArray& elements, const QString& path)
{
    for (qsizetype i = 0; i < elements.size(); ++i) {
        const QJsonObject entry = elements.at(i).toObject();
        const QString place = childPath(path, i);
        const QString id = entry.value(IdKey).toString();
        if (isQmlIdentifier(id) && !m_firstPlaces.contains(id))
            m_firstPlaces.insert(id, place);
        collectIds(entry.value(ElementsKey).toArray(), place);
    }
}

QString ElementReader::usableId(const DesignerObject& object, const Place& place)
{
    const QJsonValue value = place.entry.value(IdKey);
    const QString id = value.toString();
    const QString path = memberPath(place.path, IdKey);
    QString reason;
    QString message;
    if (value.isUndefined()) {
        message = LocalizationHelper::coreString(QStringLiteral("\"%1\" is missing.")).arg(path);
    } else if (!value.isString()) {
        message = LocalizationHelper::coreString(QStringLiteral("\"%1\" must be a text, not %2."))
                      .arg(path, JsonText::kindOf(value));
    } else if (!isQmlIdentifier(id, &reason)) {
        message = LocalizationHelper::coreString(QStringLiteral("\"%1\" is \"%2\", which is no id: %3"))
                      .arg(path, id, reason);
    } else if (m_firstPlaces.value(id) != place.path) {
        message = LocalizationHelper::coreString(QStringLiteral("The id \"%1\" stands twice: at %2 and at %3."))
                      .arg(id, m_firstPlaces.value(id), place.path);
    } else {
        return id;
    }
    const QString made = freeId(object);
    report(Problem::Severity::Error, elementName(made), {},
           message + QLatin1Char(' ')
               + LocalizationHelper::coreString(
                     QStringLiteral("The element is called \"%1\" until you give it an id of its own."))
                     .arg(made));
    return made;
}

QString ElementReader::freeId(const DesignerObject& object)
{
    const QString& declared = object.idInfo().base();
    const QString base = declared.isEmpty() ? QStringLiteral("element") : declared;
    QString id;
    do
        id = base + QString::number(++m_lastNumbers[base]);
    while (m_firstPlaces.contains(id));
    m_firstPlaces.insert(id, QString());
    return id;
}

QString ElementReader::elementName(const QString& id) const
{
    return m_screenId.isEmpty() ? id : m_screenId + QLatin1Char('/') + id;
}

void ElementReader::report(Problem::Severity severity, const QString& object, const QString& property,
                           const QString& message)
{
    m_problems.append({severity, m_file, object, property, message});
}

} // namespace Korvex::Meridane::Designer
