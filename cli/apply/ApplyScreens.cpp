#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

namespace Korvex::Meridane::Designer {

ApplyResult applyAddScreen(ApplySession& session, EditArguments& arguments)
{
    const QString id = ApplySession::newId(arguments);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().addScreen(id));
}

ApplyResult applyRemoveScreen(ApplySession& session, EditArguments& arguments)
{
    Screen* screen = session.screen(arguments, QLatin1String("id"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().removeScreen(screen));
}

} // namespace Korvex::Meridane::Designer
