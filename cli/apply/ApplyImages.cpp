#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

namespace Korvex::Meridane::Designer {

namespace {

const QLatin1String IdArgument("id");
const QLatin1String FileArgument("file");

QJsonObject namedImage(const QString& image)
{
    return {{IdArgument, image}};
}

} // namespace

ApplyResult applyImportImage(ApplySession& session, EditArguments& arguments)
{
    const QString file = arguments.text(FileArgument);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    QString image;
    const EditResult edit = session.edits().importImage(file, &image);
    return ApplySession::result(edit, namedImage(image));
}

ApplyResult applyRenameImage(ApplySession& session, EditArguments& arguments)
{
    const QString image = arguments.text(IdArgument);
    const QString name = arguments.text(QLatin1String("name"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    QString renamed;
    const EditResult edit = session.edits().renameImage(image, name, &renamed);
    return ApplySession::result(edit, namedImage(renamed));
}

ApplyResult applyReplaceImage(ApplySession& session, EditArguments& arguments)
{
    const QString image = arguments.text(IdArgument);
    const QString file = arguments.text(FileArgument);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    QString replaced;
    const EditResult edit = session.edits().replaceImage(image, file, &replaced);
    return ApplySession::result(edit, namedImage(replaced));
}

ApplyResult applyRemoveImage(ApplySession& session, EditArguments& arguments)
{
    const QString image = arguments.text(IdArgument);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().removeImage(image));
}

} // namespace Korvex::Meridane::Designer
