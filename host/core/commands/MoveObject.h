#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/// Moves an object to another place among its siblings: its z-order, or the order of screens.
class MERIDANE_CORE_EXPORT MoveObject : public UndoCommand
{
public:
    MoveObject(DesignerObject* object, int index, UndoCommand* parent);
    ~MoveObject() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;
    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    void move(int to);

    QPointer<DesignerObject> m_object;
    int m_from = -1;
    int m_to;
};

} // namespace Korvex::Meridane::Designer
