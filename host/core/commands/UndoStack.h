#pragma once

#include "host/core/CoreExport.h"

#include <QUndoStack>

#include <memory>

namespace Korvex::Meridane::Designer {

class UndoCommand;

/// What became of an edit.
struct EditResult
{
    bool accepted = false; ///< nothing was refused
    bool changed = false; ///< there is a new undo step
    QString message; ///< why something was refused, in the words of what refused it
};

/// The undo history of a project: executes commands and keeps those that changed something.
class MERIDANE_CORE_EXPORT UndoStack : public QUndoStack
{
    Q_OBJECT

public:
    explicit UndoStack(QObject* parent = nullptr);

    /// Executes \a command and pushes it if it changed something; otherwise it is deleted and the redo list is left
    /// alone. A blocked stack refuses.
    EditResult execute(std::unique_ptr<UndoCommand> command);

    /// While blocked (a mouse gesture is running), undo, redo and execution are refused.
    void setBlocked(bool blocked);
    [[nodiscard]] bool isBlocked() const { return m_blocked; }

    /// The command that undo() and redo() would run, or null.
    [[nodiscard]] const UndoCommand* undoCommand() const;
    [[nodiscard]] const UndoCommand* redoCommand() const;

public Q_SLOTS:
    void undo();
    void redo();
    /// Goes to a state of the history, as QUndoStack::setIndex() does.
    void goTo(int index);

Q_SIGNALS:
    /// A step was undone or redone; selection and view follow \a command.
    void stepApplied(const UndoCommand* command);
    void blockedChanged(bool blocked);

private:
    bool m_blocked = false;
};

} // namespace Korvex::Meridane::Designer
