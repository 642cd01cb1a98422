#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/properties/DesignerProperty.h"

#include <QJsonArray>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// Deeper than any element can stand.
constexpr int LargestIndent = 1000;

} // namespace

ApplyResult applySet(ApplySession& session, EditArguments& arguments)
{
    DesignerObject* object = session.object(arguments);
    const QString property = arguments.text(QLatin1String("property"));
    const QString value = arguments.text(QLatin1String("value"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().setProperty(object, property, value));
}

ApplyResult applyGet(ApplySession& session, EditArguments& arguments)
{
    const DesignerObject* object = session.object(arguments);
    const QString id = arguments.text(QLatin1String("property"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    const QSharedPointer<DesignerProperty> property = object->getProperty(id);
    if (!property) {
        return ApplyResult::refused(LocalizationHelper::coreString(QStringLiteral("\"%1\" has no property \"%2\"."))
                                        .arg(object->getIdName(), id));
    }
    return ApplyResult::accepted({{QStringLiteral("value"), property->valueString()}});
}

ApplyResult applyQml(ApplySession& session, EditArguments& arguments)
{
    const DesignerObject* object = session.object(arguments);
    const int indent = arguments.optionalInteger(QLatin1String("indent"), 0, 0, LargestIndent);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplyResult::accepted({{QStringLiteral("qml"), object->toQml(indent)}});
}

ApplyResult applyBounds(ApplySession& session, EditArguments& arguments)
{
    DesignerObject* object = session.element(arguments);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    const auto* element = qobject_cast<const VisualElement*>(object);
    if (!element) {
        return ApplyResult::refused(
            LocalizationHelper::coreString(QStringLiteral("\"%1\" has no bounds.")).arg(object->getIdName()));
    }
    const QRectF rect = element->getBoundingRect();
    return ApplyResult::accepted(
        {{QStringLiteral("rect"), QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()}}});
}

} // namespace Korvex::Meridane::Designer
