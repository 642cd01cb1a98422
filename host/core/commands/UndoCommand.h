#pragma once

#include "host/core/commands/ChangeRecording.h"

#include <QList>
#include <QUndoCommand>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/**
 * Base of all undo commands.
 *
 * A command is executed first and pushed only if it changed something (UndoStack::execute()). The first redo() executes
 * it: its own action, then its children in order, while a recording takes every property change, derived ones included.
 * The redo() that comes with the push does nothing. From then on undo() and redo() write exactly the recorded value
 * strings back. Children of a command are executed by it and keep no record of their own.
 */
class MERIDANE_CORE_EXPORT UndoCommand : public QUndoCommand
{
public:
    /// A command without an action of its own: the parent of others, made one step.
    UndoCommand();
    explicit UndoCommand(UndoCommand* parent);
    ~UndoCommand() override;
    Q_DISABLE_COPY_MOVE(UndoCommand)

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override;
    bool mergeWith(const QUndoCommand* other) override;

    // The order of the virtual operations is part of the plug-in contract.
    /// The objects that are selected again when the command is undone or redone.
    [[nodiscard]] virtual QList<DesignerObject*> selectedItems() const;
    /// False when the command can have no effect, for example because its property does not exist.
    [[nodiscard]] virtual bool isValid() const;
    /// The object that the command takes out of the project, or null.
    [[nodiscard]] virtual DesignerObject* deletionCandidate() const;
    /// The object that the command is about, or null; shown to the user after undo and redo.
    [[nodiscard]] virtual DesignerObject* activeItem() const;

    /// Whether execution changed anything; only then is the command worth a step.
    [[nodiscard]] bool hasEffect() const;
    /// Why the first refused change of the command or its children was refused; empty when none was.
    [[nodiscard]] QString refusal() const;
    /// Changes that were made before the command was executed and belong to it (a gesture's previews).
    void adopt(const QVector<PropertyChange>& changes);
    /// What execution recorded, one entry a property.
    [[nodiscard]] const QVector<PropertyChange>& changes() const { return m_changes; }

    /// Lets this command join the one before it on the stack when both carry the same non-empty key: the same
    /// property edited by typing or stepping in one go.
    void setMergeKey(const QString& key) { m_mergeKey = key; }
    [[nodiscard]] const QString& mergeKey() const { return m_mergeKey; }

    /// Refuses the whole command when one change of it is refused: UndoStack::execute() then takes back the others.
    void setAllOrNothing(bool on) { m_allOrNothing = on; }
    [[nodiscard]] bool isAllOrNothing() const { return m_allOrNothing; }

    [[nodiscard]] int childCommandCount() const { return childCount(); }
    /// The child at \a index, or null where it is no UndoCommand.
    [[nodiscard]] const UndoCommand* childCommand(int index) const;

protected:
    /// The command's own action when it is executed; changes of values are recorded by themselves.
    virtual void execute();
    /// Takes back and repeats what a recording does not hold: changes of structure. Called before the recorded values
    /// are written back on redo and after it on undo.
    virtual void undoStructure();
    virtual void redoStructure();
    /// Whether execute() changed the structure.
    [[nodiscard]] virtual bool structureChanged() const;
    void setRefusal(const QString& message) { m_refusal = message; }

private:
    enum class State
    {
        Fresh,
        JustExecuted,
        Done,
        Undone
    };

    void executeTree();
    void undoStructureTree();
    void redoStructureTree();
    [[nodiscard]] bool structureChangedInTree() const;

    QVector<PropertyChange> m_changes;
    QList<DesignerObject*> m_joinedSelection; // of the commands that joined this one
    QString m_refusal;
    QString m_mergeKey;
    State m_state = State::Fresh;
    bool m_allOrNothing = false;
};

} // namespace Korvex::Meridane::Designer
