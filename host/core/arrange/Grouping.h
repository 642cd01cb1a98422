#pragma once

#include "host/core/commands/UndoStack.h"

#include <QList>
#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * Groups elements and takes groups apart. Nothing moves or changes its looks on the screen, also where groups and what is
 * in them are turned. Each is one undo step; the result is selected.
 */
class MERIDANE_CORE_EXPORT Grouping
{
public:
    Grouping() = delete;

    /// The elements among \a objects that group() would take, in z-order: two or more, or none.
    [[nodiscard]] static QList<DesignerObject*> groupable(const QList<DesignerObject*>& objects);
    /// The groups among \a objects that ungroup() would take apart.
    [[nodiscard]] static QList<DesignerObject*> ungroupable(const QList<DesignerObject*>& objects);

    /// Makes a group of the groupable() ones of \a objects. It gets the place of the front-most of them in its parent;
    /// its position is the top left corner of what it holds, borders left aside. \a id: that of the group, a free one
    /// unless given. \a group: the new group.
    static EditResult group(EditSession* session, const QList<DesignerObject*>& objects, const QString& id = {},
                            DesignerObject** group = nullptr);
    /// Puts what the ungroupable() ones of \a objects hold in their places. What was hidden with a group stays hidden.
    static EditResult ungroup(EditSession* session, const QList<DesignerObject*>& objects);
};

} // namespace Korvex::Meridane::Designer
