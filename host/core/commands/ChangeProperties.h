#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>

namespace Korvex::Meridane::Designer {

/**
 * Gives an object several values that belong together: in order, and then once more, with all of them in place, those
 * that a validator refused because of another value that was still to come. What is refused then is refused.
 */
class MERIDANE_CORE_EXPORT ChangeProperties : public UndoCommand
{
public:
    struct Value
    {
        QSharedPointer<DesignerProperty> property;
        QString text;
    };

    /// \a values: of properties of \a object, in the order in which they are set.
    ChangeProperties(DesignerObject* object, const QList<Value>& values, UndoCommand* parent);
    ~ChangeProperties() override;

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;

protected:
    void execute() override;

private:
    void change(const Value& value);

    QPointer<DesignerObject> m_object;
    QList<Value> m_values;
};

} // namespace Korvex::Meridane::Designer
