#include "host/core/sheet/RowDescription.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/EditorMatcher.h"
#include "host/core/sheet/SheetSections.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// Brings the rows of a section together; sections stay in the order of their first rows.
void groupBySection(QList<RowDescription>& rows)
{
    QStringList sections;
    for (const RowDescription& row : std::as_const(rows)) {
        if (!sections.contains(row.section))
            sections.append(row.section);
    }
    std::stable_sort(rows.begin(), rows.end(), [&sections](const RowDescription& left, const RowDescription& right) {
        return sections.indexOf(left.section) < sections.indexOf(right.section);
    });
}

} // namespace

QList<RowDescription> commonRows(const QList<DesignerObject*>& objects)
{
    QList<RowDescription> rows;
    if (objects.isEmpty())
        return rows;
    const DesignerObject& model = *objects.first();
    const QString type = model.className();
    const bool sameType = std::all_of(objects.begin(), objects.end(),
                                      [&type](const DesignerObject* object) { return object->className() == type; });
    for (const auto& property : objects.first()->properties()) {
        if (!property->hasFlag(Shown))
            continue;
        const QString section = SheetSections::keyOf(*property);
        RowDescription row{property->id(),
                           property->className(),
                           EditorMatcher::editorClass(*property),
                           property->name(),
                           section,
                           SheetSections::title(section, model, sameType),
                           property->editorParameters(),
                           property->hasFlag(Editable)};
        bool common = true;
        for (qsizetype i = 1; common && i < objects.size(); ++i) {
            const auto other = objects.at(i)->getProperty(row.propertyId);
            common = other && other->hasFlag(Shown) && other->className() == row.propertyClass;
            row.editable = row.editable && common && other->hasFlag(Editable);
        }
        if (common)
            rows.append(row);
    }
    groupBySection(rows);
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
