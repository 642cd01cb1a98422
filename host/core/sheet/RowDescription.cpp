#include "host/core/sheet/RowDescription.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/EditorMatcher.h"

namespace Korvex::Meridane::Designer {

QList<RowDescription> commonRows(const QList<DesignerObject*>& objects)
{
    QList<RowDescription> rows;
    if (objects.isEmpty())
        return rows;
    for (const auto& property : objects.first()->properties()) {
        if (!property->hasFlag(Shown))
            continue;
        RowDescription row{property->id(),   property->className(),        EditorMatcher::editorClass(*property),
                           property->name(), property->editorParameters(), property->hasFlag(Editable)};
        bool common = true;
        for (qsizetype i = 1; common && i < objects.size(); ++i) {
            const auto other = objects.at(i)->getProperty(row.propertyId);
            common = other && other->hasFlag(Shown) && other->className() == row.propertyClass;
            row.editable = row.editable && common && other->hasFlag(Editable);
        }
        if (common)
            rows.append(row);
    }
    return rows;
}

QList<QSharedPointer<DesignerProperty>> propertiesOf(const RowDescription& row, const QList<DesignerObject*>& objects)
{
    QList<QSharedPointer<DesignerProperty>> properties;
    properties.reserve(objects.size());
    for (const DesignerObject* object : objects) {
        const auto property = object->getProperty(row.propertyId);
        if (!property)
            return {};
        properties.append(property);
    }
    return properties;
}

} // namespace Korvex::Meridane::Designer
