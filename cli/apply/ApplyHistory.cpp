#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

namespace Korvex::Meridane::Designer {

ApplyResult applyUndo(ApplySession& session, EditArguments& arguments)
{
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    const QString text = session.edits().undoStack()->undoText();
    return ApplySession::result(session.edits().undo(), {{QStringLiteral("text"), text}});
}

ApplyResult applyRedo(ApplySession& session, EditArguments& arguments)
{
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    const QString text = session.edits().undoStack()->redoText();
    return ApplySession::result(session.edits().redo(), {{QStringLiteral("text"), text}});
}

ApplyResult applyUndoCount(ApplySession& session, EditArguments& arguments)
{
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    const UndoStack* stack = session.edits().undoStack();
    return ApplyResult::accepted({{QStringLiteral("count"), stack->count()},
                                  {QStringLiteral("index"), stack->index()},
                                  {QStringLiteral("text"), stack->undoText()}});
}

} // namespace Korvex::Meridane::Designer
