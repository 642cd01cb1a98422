#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>

class QPointF;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Screen;

/// The edits of elements, each as one command that is yet to be executed. The canvas items of the elements must exist when it
/// is. \a selection: what is selected while the edit is made.
class MERIDANE_CORE_EXPORT ElementEdits
{
public:
    ElementEdits() = delete;

    struct Plan
    {
        std::unique_ptr<UndoCommand> command; ///< null when the edit is refused, or would change nothing
        DesignerObject* element = nullptr; ///< what is added; owned by the command until that has been executed
        QString message; ///< why the edit is refused; empty when it is not
    };

    /// Adds an element of \a className in front of the others on \a screen (null: refused). \a id empty: the smallest free
    /// one of its base. \a properties: value strings by property id, judged together; refused as a whole when one is.
    [[nodiscard]] static Plan add(const QString& className, Screen* screen, const QString& id,
                                  const QMap<QString, QString>& properties);
    /// Removes \a elements, none of which is a screen.
    [[nodiscard]] static Plan remove(const QList<DesignerObject*>& elements);
    /// Gives a property of all \a objects the value at the same place of \a values; all or nothing.
    [[nodiscard]] static Plan set(const QList<DesignerObject*>& objects, const QString& propertyId,
                                  const QStringList& values, const QList<DesignerObject*>& selection);
    /// Moves those of \a elements that have a readable position by \a distance, in pixels.
    [[nodiscard]] static Plan move(const QList<DesignerObject*>& elements, const QPointF& distance,
                                   const QList<DesignerObject*>& selection);
    /// Sets \a mark (EditorMarks::locked() or hidden()) of \a elements, or takes it away; all of them have it the
    /// other way.
    [[nodiscard]] static Plan mark(const QList<DesignerObject*>& elements, const QString& mark, bool set);
};

} // namespace Korvex::Meridane::Designer
