#include "host/core/project/ImageReferences.h"

#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ObjectTree.h"
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
        for (const QJsonValue& item : list)
            collectTexts(item, texts);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QJsonValue& item : object)
            collectTexts(item, texts);
    }
}

} // namespace

bool ImageReferences::isImageLink(const LinkProperty& link)
{
    return link.value().filterType().contains(QLatin1String("ImageResource"));
}

QSet<QString> ImageReferences::linked(const DesignerObject* object)
{
    QSet<QString> images;
    ObjectTree::visitRead(object, [&images](const DesignerObject* visited) {
        for (const auto& property : visited->properties()) {
            const auto* link = dynamic_cast<const LinkProperty*>(property.data());
            if (link && isImageLink(*link) && !link->valueString().isEmpty())
                images.insert(link->valueString());
        }
    });
    return images;
}

QSet<QString> ImageReferences::mentioned(const DesignerObject* object)
{
    QSet<QString> images = linked(object);
    ObjectTree::visitRead(object, [&images](const DesignerObject* visited) {
        collectTexts(visited->unknownKeys(), images);
        if (const auto* unknown = qobject_cast<const UnknownElement*>(visited))
            collectTexts(unknown->entry(), images);
    });
    return images;
}

QSet<QString> ImageReferences::texts(const QJsonValue& value)
{
    QSet<QString> texts;
    collectTexts(value, texts);
    return texts;
}

} // namespace Korvex::Meridane::Designer
