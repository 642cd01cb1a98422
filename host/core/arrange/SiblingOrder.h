#pragma once

#include "host/core/CoreExport.h"
#include "host/core/commands/UndoStack.h"

#include <QList>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Project;

/**
 * Changes of order among siblings: elements from back to front, screens from first to last.
 *
 * Objects of several parents are ordered within each. Objects that are moved together keep their order. One change is
 * one undo step.
 */
class MERIDANE_CORE_EXPORT SiblingOrder
{
public:
    SiblingOrder() = delete;

    enum class Move
    {
        ToFront,
        Forward,
        Backward,
        ToBack
    };

    /// Moves \a objects of \a project; in an order that is as wanted already nothing is changed.
    static EditResult move(Project* project, const QList<DesignerObject*>& objects, Move move);
    /// Whether that would change the order of any of \a objects.
    [[nodiscard]] static bool canMove(const QList<DesignerObject*>& objects, Move move);
    /// Puts \a objects, children of \a parent, so that the first of them gets the place \a index among the siblings
    /// that are not moved.
    static EditResult moveTo(Project* project, DesignerObject* parent, const QList<DesignerObject*>& objects,
                             int index);
    /// The places that \a chosen (ascending indices among \a count siblings) get by \a move, in the same order.
    [[nodiscard]] static QList<int> targets(const QList<int>& chosen, int count, Move move);
};

} // namespace Korvex::Meridane::Designer
