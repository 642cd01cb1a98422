#pragma once

#include "host/core/commands/UndoStack.h"

#include <QList>
#include <QString>

namespace Korvex::Meridane::Designer {

class PropertyField;

/// What the sheet itself does with the values of its fields, beside the editors; each one undo step.
class FieldEdits
{
public:
    FieldEdits() = delete;

    /// Sets the values of \a fields to the defaults of their objects, each to its own. \a name: what is reset, for the
    /// name of the step. A value whose default is refused stays, and the message says why.
    static EditResult reset(const QList<PropertyField*>& fields, const QString& name);
    /// The value string that all objects of \a field share; a null text when they differ.
    [[nodiscard]] static QString commonValue(const PropertyField& field);
    /// Sets every object of \a field to the value string \a value, within what the editor takes. A text that is no value
    /// of the property is refused.
    static EditResult paste(const PropertyField& field, const QString& value);
};

} // namespace Korvex::Meridane::Designer
