#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/// Sets one property to a value string. As a parent it runs its children after itself.
class MERIDANE_CORE_EXPORT ChangeProperty : public UndoCommand
{
public:
    /// \a wasSelected: the object was selected when the change was made, and is again after undo and redo.
    ChangeProperty(const QSharedPointer<DesignerProperty>& property, const QString& value, bool wasSelected,
                   UndoCommand* parent);
    ~ChangeProperty() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;

    [[nodiscard]] const QSharedPointer<DesignerProperty>& property() const { return m_property; }
    [[nodiscard]] const QString& value() const { return m_value; }

protected:
    void execute() override;

private:
    QSharedPointer<DesignerProperty> m_property;
    QString m_value;
    QPointer<DesignerObject> m_object;
    bool m_wasSelected;
};

} // namespace Korvex::Meridane::Designer
