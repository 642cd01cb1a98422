#pragma once

#include "host/core/commands/ChangeRecording.h"

#include <QList>
#include <QPointer>

#include <vector>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class UndoCommand;

/// The value strings of the objects of a gesture as it found them: what to go back to, and what has changed since.
class GestureRecord
{
public:
    void take(const QList<DesignerObject*>& objects);
    [[nodiscard]] bool isTaken() const { return m_taken; }

    /// Puts every value and every item back.
    void restore() const;
    /// What was changed directly, without a command, since take().
    [[nodiscard]] QVector<PropertyChange> changes() const;
    /// Has the item of the object at \a index of those taken fill \a parent: every property by rank. A text that does not convert and that the item
    /// had its own idea of from the start is left alone, so that a gesture loses no data that it has nothing to do with.
    void fill(qsizetype index, UndoCommand* parent) const;

private:
    struct Value
    {
        QSharedPointer<DesignerProperty> property;
        QString text;
        QString itemText; ///< for a text that does not convert: what the item would write in its place, else null
    };
    struct Entry
    {
        QPointer<DesignerObject> object;
        std::vector<Value> values;
    };

    std::vector<Entry> m_entries;
    bool m_taken = false;
};

} // namespace Korvex::Meridane::Designer
