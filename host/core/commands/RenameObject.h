#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/// Gives an object another id; the links to it follow.
class MERIDANE_CORE_EXPORT RenameObject : public UndoCommand
{
public:
    RenameObject(DesignerObject* object, const QString& id, UndoCommand* parent);
    ~RenameObject() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;
    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    QPointer<DesignerObject> m_object;
    QString m_before;
    QString m_after;
};

} // namespace Korvex::Meridane::Designer
