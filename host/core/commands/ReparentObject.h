#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/// Moves an object to another owner on the same screen. Its values stay as they are; what it looks like there is the
/// business of commands that follow.
class MERIDANE_CORE_EXPORT ReparentObject : public UndoCommand
{
public:
    /// When the object is selected again after undo and redo.
    enum class Select
    {
        AtTheNewPlace,
        AtTheOldPlace,
        Never
    };

    /// \a index: the place among the children that \a owner has when the command is executed, -1 for the last.
    ReparentObject(DesignerObject* object, DesignerObject* owner, int index, Select select, UndoCommand* parent);
    ~ReparentObject() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    [[nodiscard]] bool move(DesignerObject* from, DesignerObject* to, int index);

    QPointer<DesignerObject> m_object;
    QPointer<DesignerObject> m_before;
    QPointer<DesignerObject> m_after;
    int m_indexBefore = -1;
    int m_indexAfter;
    Select m_select;
    bool m_moved = false;
};

} // namespace Korvex::Meridane::Designer
