#include "cli/apply/ApplyOperations.h"

#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"

#include <QStringList>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

struct Operation
{
    const char* name;
    ApplyResult (*apply)(ApplySession&, EditArguments&);
};

constexpr Operation operations[] = {
    {"add-screen", applyAddScreen},
    {"remove-screen", applyRemoveScreen},
    {"duplicate-screen", applyDuplicateScreen},
    {"resize-screen", applyResizeScreen},
    {"add", applyAdd},
    {"remove", applyRemove},
    {"select", applySelect},
    {"set", applySet},
    {"get", applyGet},
    {"qml", applyQml},
    {"bounds", applyBounds},
    {"handle", applyHandle},
    {"drag", applyDrag},
    {"key", applyKey},
    {"rotate", applyRotate},
    {"align", applyAlign},
    {"distribute", applyDistribute},
    {"same-size", applySameSize},
    {"center", applyCenter},
    {"group", applyGroup},
    {"ungroup", applyUngroup},
    {"order", applyOrder},
    {"lock", applyLock},
    {"unlock", applyUnlock},
    {"hide", applyHide},
    {"show", applyShow},
    {"duplicate", applyDuplicate},
    {"import-image", applyImportImage},
    {"rename-image", applyRenameImage},
    {"replace-image", applyReplaceImage},
    {"remove-image", applyRemoveImage},
    {"import-font", applyImportFont},
    {"remove-font", applyRemoveFont},
    {"undo", applyUndo},
    {"redo", applyRedo},
    {"undo-count", applyUndoCount},
};

const Operation* find(const QString& name)
{
    for (const Operation& operation : operations) {
        if (name == QLatin1String(operation.name))
            return &operation;
    }
    return nullptr;
}

QString names()
{
    QStringList list;
    for (const Operation& operation : operations)
        list.append(QLatin1String(operation.name));
    return list.join(QLatin1String(", "));
}

} // namespace

ApplyResult ApplyOperations::apply(ApplySession& session, const QJsonValue& edit, QString* op)
{
    op->clear();
    if (!edit.isObject())
        return ApplyResult::refused(LocalizationHelper::coreString(QStringLiteral("An edit must be a JSON object.")));
    EditArguments arguments(edit.toObject());
    const QString name = arguments.text(QLatin1String("op"));
    if (arguments.hasError())
        return ApplyResult::refused(arguments.error());
    *op = name;
    const Operation* operation = find(name);
    if (!operation) {
        return ApplyResult::refused(
            LocalizationHelper::coreString(
                QStringLiteral("There is no operation \"%1\" (argument \"op\"). There are: %2."))
                .arg(name, names()));
    }
    return operation->apply(session, arguments);
}

} // namespace Korvex::Meridane::Designer
