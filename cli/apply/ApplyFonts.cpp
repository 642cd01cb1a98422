#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

#include <QJsonArray>

namespace Korvex::Meridane::Designer {

ApplyResult applyImportFont(ApplySession& session, EditArguments& arguments)
{
    const QString file = arguments.text(QLatin1String("file"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    QString font;
    QStringList families;
    const EditResult edit = session.edits().importFont(file, &font, &families);
    return ApplySession::result(
        edit, {{QStringLiteral("id"), font}, {QStringLiteral("families"), QJsonArray::fromStringList(families)}});
}

ApplyResult applyRemoveFont(ApplySession& session, EditArguments& arguments)
{
    const QString font = arguments.text(QLatin1String("id"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().removeFont(font));
}

} // namespace Korvex::Meridane::Designer
