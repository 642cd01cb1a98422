#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/objects/Screen.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

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

ApplyResult applyDuplicateScreen(ApplySession& session, EditArguments& arguments)
{
    Screen* screen = session.screen(arguments, QLatin1String("id"));
    const QString id = arguments.optionalText(QLatin1String("as"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    Screen* added = nullptr;
    const EditResult edit = session.edits().duplicateScreen(screen, id, &added);
    return ApplySession::result(edit, {{QStringLiteral("id"), added ? added->getIdName() : QString()}});
}

ApplyResult applyResizeScreen(ApplySession& session, EditArguments& arguments)
{
    Screen* screen = session.screen(arguments, QLatin1String("id"));
    const QString text = arguments.text(QLatin1String("size"));
    const QString content = arguments.optionalText(QLatin1String("content"), QStringLiteral("leave"));
    const bool scales = content == QLatin1String("scale");
    if (!arguments.hasError() && !scales && content != QLatin1String("leave")) {
        arguments.refuse(
            LocalizationHelper::coreString(QStringLiteral("The argument \"content\" must be \"leave\" or \"scale\".")));
    }
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(text, &ok);
    if (!ok) {
        return ApplyResult::refused(
            LocalizationHelper::coreString(QStringLiteral("\"size\" must be a size like \"320,240\".")));
    }
    return ApplySession::result(
        session.edits().resizeScreen(screen, size, scales ? ScreenEdits::Content::Scale : ScreenEdits::Content::Leave));
}

} // namespace Korvex::Meridane::Designer
