#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

#include <memory>

namespace Korvex::Meridane::Designer {

class ObjectListProperty;

/// Adds an object (an element, a screen) to a list of its new parent. The command owns the object while it is not in
/// the project, so that the object keeps its identity through undo and redo.
class MERIDANE_CORE_EXPORT AddObject : public UndoCommand
{
public:
    /// \a index: the place among the siblings; -1 for the front.
    AddObject(DesignerObject* owner, std::unique_ptr<DesignerObject> object, int index, UndoCommand* parent);
    ~AddObject() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;
    [[nodiscard]] bool isValid() const override;

    [[nodiscard]] DesignerObject* object() const { return m_object; }

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    QPointer<DesignerObject> m_owner;
    std::unique_ptr<DesignerObject> m_held; // null while the object is in the project
    DesignerObject* m_object;
    int m_index;
    bool m_added = false;
};

} // namespace Korvex::Meridane::Designer
