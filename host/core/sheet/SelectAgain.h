#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/// The part of a step that changes nothing: it has objects selected again by undo and redo that were selected when the
/// step was made, because an edit of all of them left some as they were.
class SelectAgain : public UndoCommand
{
public:
    SelectAgain(const QList<DesignerObject*>& objects, UndoCommand* parent);
    ~SelectAgain() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;

private:
    QList<QPointer<DesignerObject>> m_objects;
};

} // namespace Korvex::Meridane::Designer
