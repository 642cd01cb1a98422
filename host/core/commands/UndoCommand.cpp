#include "host/core/commands/UndoCommand.h"

#include "host/core/commands/ChangeScopes.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"

#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int MergeableId = 1;

/// The child at \a index. All commands of a tree are ours; a foreign QUndoCommand among them is passed over.
UndoCommand* ownChild(const UndoCommand* command, int index)
{
    return const_cast<UndoCommand*>(command->childCommand(index));
}

void restore(const PropertyChange& change, const QString& value)
{
    if (DesignerObject* object = change.property->parentObject())
        object->restorePropertyValue(change.property, value);
}

} // namespace

UndoCommand::UndoCommand() = default;

UndoCommand::UndoCommand(UndoCommand* parent)
    : QUndoCommand(parent)
{}

UndoCommand::~UndoCommand() = default;

void UndoCommand::redo()
{
    switch (m_state) {
    case State::Fresh: {
        const NotificationScope observersWait;
        ChangeRecording recording;
        executeTree();
        m_changes = ChangeRecording::joined(m_changes + recording.take());
        m_state = State::JustExecuted;
        break;
    }
    case State::JustExecuted:
        m_state = State::Done;
        break;
    case State::Undone: {
        const NotificationScope observersWait;
        const ValueRestoreScope restoring;
        redoStructureTree();
        for (const PropertyChange& change : std::as_const(m_changes))
            restore(change, change.after);
        m_state = State::Done;
        break;
    }
    case State::Done:
        break;
    }
}

void UndoCommand::undo()
{
    if (m_state == State::Fresh || m_state == State::Undone)
        return;
    const NotificationScope observersWait;
    const ValueRestoreScope restoring;
    for (auto change = m_changes.crbegin(); change != m_changes.crend(); ++change)
        restore(*change, change->before);
    undoStructureTree();
    m_state = State::Undone;
}

int UndoCommand::id() const
{
    return m_mergeKey.isEmpty() ? -1 : MergeableId;
}

bool UndoCommand::mergeWith(const QUndoCommand* other)
{
    const auto* next = dynamic_cast<const UndoCommand*>(other);
    if (!next || m_mergeKey.isEmpty() || next->m_mergeKey != m_mergeKey || structureChangedInTree()
        || next->structureChangedInTree())
        return false;
    m_changes = ChangeRecording::joined(m_changes + next->m_changes);
    if (const QList<DesignerObject*> more = next->selectedItems(); more != selectedItems())
        m_joinedSelection += more;
    setObsolete(m_changes.isEmpty());
    return true;
}

QList<DesignerObject*> UndoCommand::selectedItems() const
{
    QList<DesignerObject*> items;
    QSet<DesignerObject*> known;
    const auto add = [&items, &known](const QList<DesignerObject*>& more) {
        for (DesignerObject* item : more) {
            if (!known.contains(item)) {
                known.insert(item);
                items.append(item);
            }
        }
    };
    for (int i = 0; i < childCount(); ++i) {
        if (const UndoCommand* command = childCommand(i))
            add(command->selectedItems());
    }
    add(m_joinedSelection);
    return items;
}

bool UndoCommand::isValid() const
{
    return true;
}

DesignerObject* UndoCommand::deletionCandidate() const
{
    return childCommand(0) ? childCommand(0)->deletionCandidate() : nullptr;
}

DesignerObject* UndoCommand::activeItem() const
{
    return childCommand(0) ? childCommand(0)->activeItem() : nullptr;
}

bool UndoCommand::hasEffect() const
{
    return !m_changes.isEmpty() || structureChangedInTree();
}

QString UndoCommand::refusal() const
{
    if (!m_refusal.isEmpty())
        return m_refusal;
    for (int i = 0; i < childCount(); ++i) {
        const UndoCommand* command = childCommand(i);
        const QString refusal = command ? command->refusal() : QString();
        if (!refusal.isEmpty())
            return refusal;
    }
    return {};
}

void UndoCommand::adopt(const QVector<PropertyChange>& changes)
{
    m_changes = ChangeRecording::joined(changes + m_changes);
}

const UndoCommand* UndoCommand::childCommand(int index) const
{
    return index < childCount() ? dynamic_cast<const UndoCommand*>(QUndoCommand::child(index)) : nullptr;
}

void UndoCommand::execute() {}

void UndoCommand::undoStructure() {}

void UndoCommand::redoStructure() {}

bool UndoCommand::structureChanged() const
{
    return false;
}

void UndoCommand::executeTree()
{
    if (isValid())
        execute();
    for (int i = 0; i < childCount(); ++i) {
        if (UndoCommand* command = ownChild(this, i))
            command->executeTree();
    }
}

void UndoCommand::undoStructureTree()
{
    for (int i = childCount() - 1; i >= 0; --i) {
        if (UndoCommand* command = ownChild(this, i))
            command->undoStructureTree();
    }
    if (structureChanged())
        undoStructure();
}

void UndoCommand::redoStructureTree()
{
    if (structureChanged())
        redoStructure();
    for (int i = 0; i < childCount(); ++i) {
        if (UndoCommand* command = ownChild(this, i))
            command->redoStructureTree();
    }
}

bool UndoCommand::structureChangedInTree() const
{
    if (structureChanged())
        return true;
    for (int i = 0; i < childCount(); ++i) {
        const UndoCommand* command = childCommand(i);
        if (command && command->structureChangedInTree())
            return true;
    }
    return false;
}

} // namespace Korvex::Meridane::Designer
