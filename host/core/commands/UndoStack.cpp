#include "host/core/commands/UndoStack.h"

#include "host/core/commands/ChangeScopes.h"
#include "host/core/commands/UndoCommand.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

UndoStack::UndoStack(QObject* parent)
    : QUndoStack(parent)
{}

EditResult UndoStack::execute(std::unique_ptr<UndoCommand> command)
{
    if (m_blocked) {
        return {
            false, false,
            Common::LocalizationHelper::coreString(QStringLiteral("Finish what you are doing with the mouse first."))};
    }
    if (!command || !command->isValid())
        return {false, false, Common::LocalizationHelper::coreString(QStringLiteral("There is nothing to change."))};
    const NotificationScope observersWait;
    command->redo();
    const QString refusal = command->refusal();
    if (!refusal.isEmpty() && command->isAllOrNothing()) {
        command->undo();
        return {false, false, refusal};
    }
    const bool changed = command->hasEffect();
    if (changed)
        push(command.release());
    return {refusal.isEmpty(), changed, refusal};
}

void UndoStack::setBlocked(bool blocked)
{
    if (m_blocked == blocked)
        return;
    m_blocked = blocked;
    Q_EMIT blockedChanged(blocked);
}

const UndoCommand* UndoStack::undoCommand() const
{
    return index() > 0 ? dynamic_cast<const UndoCommand*>(command(index() - 1)) : nullptr;
}

const UndoCommand* UndoStack::redoCommand() const
{
    return index() < count() ? dynamic_cast<const UndoCommand*>(command(index())) : nullptr;
}

void UndoStack::undo()
{
    goTo(index() - 1);
}

void UndoStack::redo()
{
    goTo(index() + 1);
}

void UndoStack::goTo(int target)
{
    if (m_blocked || target < 0 || target > count() || target == index())
        return;
    const bool back = target < index();
    {
        const NotificationScope observersWait;
        setIndex(target);
    }
    Q_EMIT stepApplied(back ? redoCommand() : undoCommand());
}

} // namespace Korvex::Meridane::Designer
