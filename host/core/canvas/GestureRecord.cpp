#include "host/core/canvas/GestureRecord.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/commands/ChangeScopes.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"

namespace Korvex::Meridane::Designer {

namespace {

/// What the item would write to \a property, or a null string for nothing.
QString writtenByItem(GraphicsItem* item, const QSharedPointer<DesignerProperty>& property)
{
    UndoCommand thrownAway;
    item->updateDataObject(property, &thrownAway);
    const auto* change = dynamic_cast<const ChangeProperty*>(thrownAway.childCommand(0));
    return change ? change->value() : QString();
}

} // namespace

void GestureRecord::take(const QList<DesignerObject*>& objects)
{
    m_taken = true;
    m_entries.clear();
    m_entries.reserve(objects.size());
    for (DesignerObject* object : objects) {
        Entry entry{object, {}};
        entry.values.reserve(object->properties().size());
        for (const auto& property : object->properties()) {
            if (dynamic_cast<const ObjectListProperty*>(property.data()))
                continue;
            Value value{property, property->valueString(), {}};
            if (!property->isConverted() && object->graphicsItem())
                value.itemText = writtenByItem(object->graphicsItem(), property);
            entry.values.push_back(std::move(value));
        }
        m_entries.push_back(std::move(entry));
    }
}

void GestureRecord::restore() const
{
    const NotificationScope observersWait;
    const ValueRestoreScope restoring;
    for (const Entry& entry : m_entries) {
        if (!entry.object)
            continue;
        for (const Value& value : entry.values) {
            // An item takes nothing from a text that does not convert: it is shown what it had before.
            if (!value.itemText.isNull() && entry.object->graphicsItem()) {
                value.property->fill(value.itemText);
                entry.object->graphicsItem()->updateGraphicsItem(value.property);
            }
            entry.object->restorePropertyValue(value.property, value.text);
        }
    }
}

QVector<PropertyChange> GestureRecord::changes() const
{
    QVector<PropertyChange> changes;
    for (const Entry& entry : m_entries) {
        if (!entry.object)
            continue;
        for (const Value& value : entry.values) {
            const QString now = value.property->valueString();
            if (now != value.text)
                changes.append({value.property, value.text, now});
        }
    }
    return changes;
}

void GestureRecord::fill(qsizetype index, UndoCommand* parent) const
{
    const Entry& entry = m_entries.at(std::size_t(index));
    GraphicsItem* item = entry.object ? entry.object->graphicsItem() : nullptr;
    if (!item)
        return;
    for (const Value& value : entry.values) {
        if (value.itemText.isNull() || writtenByItem(item, value.property) != value.itemText)
            item->updateDataObject(value.property, parent);
    }
}

} // namespace Korvex::Meridane::Designer
