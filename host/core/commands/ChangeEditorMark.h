#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QList>
#include <QPointer>

#include <functional>

namespace Korvex::Meridane::Designer {

/// Sets an editor mark of one or several objects: locks, hides, places guides. Has no effect on marks that
/// the objects have not declared.
class MERIDANE_CORE_EXPORT ChangeEditorMark : public UndoCommand
{
public:
    ChangeEditorMark(DesignerObject* object, const QString& mark, const QString& value, UndoCommand* parent);
    /// The elements that can no longer be selected with the mark (EditorMarks::locked(), hidden()) are let go together.
    ChangeEditorMark(const QList<DesignerObject*>& objects, const QString& mark, const QString& value,
                     UndoCommand* parent);
    ~ChangeEditorMark() override;

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    struct Marked
    {
        QPointer<DesignerObject> object;
        QString before;
    };

    bool apply(const std::function<QString(const Marked&)>& value);

    QList<Marked> m_objects;
    QString m_mark;
    QString m_value;
    bool m_changed = false;
};

} // namespace Korvex::Meridane::Designer
