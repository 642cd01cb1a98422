#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

#include <memory>

namespace Korvex::Meridane::Designer {

/// Takes an object (an element, a screen) out of its parent's list; undo puts the same object back among its siblings.
class MERIDANE_CORE_EXPORT RemoveObject : public UndoCommand
{
public:
    RemoveObject(DesignerObject* object, UndoCommand* parent);
    ~RemoveObject() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] DesignerObject* deletionCandidate() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;
    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    QPointer<DesignerObject> m_owner;
    std::unique_ptr<DesignerObject> m_held; // null while the object is in the project
    DesignerObject* m_object;
    int m_index = -1;
    bool m_removed = false;
};

} // namespace Korvex::Meridane::Designer
