#include "host/core/project/ImageReferences.h"

#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Korvex::Meridane::Designer {

namespace {

void collectTexts(const QJsonValue& value, QSet<QString>& texts)
{
    if (value.isString()) {
        texts.insert(value.toString());
    } else if (value.isArray()) {
        const QJsonArray list = value.toArray();
        for (const QJsonValue item : list)
            collectTexts(item, texts);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QJsonValue item : object)
            collectTexts(item, texts);
    }
}

/// Calls \a visit with every link of \a object that names an image.
template <typename Visitor>
void visitLinks(const DesignerObject* object, const Visitor& visit)
{
    for (const auto& property : object->properties()) {
        const auto* link = dynamic_cast<const LinkProperty*>(property.data());
        if (link && ImageReferences::isImageLink(*link) && !link->valueString().isEmpty())
            visit(property);
    }
}

/// All texts in what this version does not understand of \a object.
QSet<QString> unknownTexts(const DesignerObject* object)
{
    QSet<QString> texts;
    collectTexts(object->unknownKeys(), texts);
    if (const auto* unknown = qobject_cast<const UnknownElement*>(object))
        collectTexts(unknown->entry(), texts);
    return texts;
}

} // namespace

bool ImageReferences::isImageLink(const LinkProperty& link)
{
    return link.value().filterType().contains(QLatin1String("ImageResource"));
}

QList<ImageUse> ImageReferences::uses(const Project* project, const QString& image)
{
    QList<ImageUse> uses;
    ObjectTree::visitRead(project, [&](const DesignerObject* visited) {
        auto* object = const_cast<DesignerObject*>(visited);
        visitLinks(visited, [&](const QSharedPointer<DesignerProperty>& link) {
            if (link->valueString() == image)
                uses.append(ImageUse{object, link});
        });
        if (unknownTexts(visited).contains(image))
            uses.append(ImageUse{object, {}});
    });
    return uses;
}

QHash<QString, int> ImageReferences::useCounts(const Project* project)
{
    QHash<QString, int> counts;
    ObjectTree::visitRead(project, [&counts](const DesignerObject* visited) {
        visitLinks(visited, [&counts](const QSharedPointer<DesignerProperty>& link) { ++counts[link->valueString()]; });
    });
    return counts;
}

QSet<QString> ImageReferences::linked(const DesignerObject* object)
{
    QSet<QString> images;
    ObjectTree::visitRead(object, [&images](const DesignerObject* visited) {
        visitLinks(visited,
                   [&images](const QSharedPointer<DesignerProperty>& link) { images.insert(link->valueString()); });
    });
    return images;
}

QSet<QString> ImageReferences::mentioned(const DesignerObject* object)
{
    QSet<QString> images = linked(object);
    ObjectTree::visitRead(object, [&images](const DesignerObject* visited) { images += unknownTexts(visited); });
    return images;
}

QSet<QString> ImageReferences::texts(const QJsonValue& value)
{
    QSet<QString> texts;
    collectTexts(value, texts);
    return texts;
}

} // namespace Korvex::Meridane::Designer
