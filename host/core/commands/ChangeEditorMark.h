#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/// Sets one of an object's editor marks: locks, hides, places guides. Has no effect on marks that the object has not
/// declared.
class MERIDANE_CORE_EXPORT ChangeEditorMark : public UndoCommand
{
public:
    ChangeEditorMark(DesignerObject* object, const QString& mark, const QString& value, UndoCommand* parent);
    ~ChangeEditorMark() override;

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    QPointer<DesignerObject> m_object;
    QString m_mark;
    QString m_before;
    QString m_after;
    bool m_changed = false;
};

} // namespace Korvex::Meridane::Designer
