#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

ApplyResult applyAdd(ApplySession& session, EditArguments& arguments)
{
    const QString className = arguments.text(QLatin1String("class"));
    const QVector<Screen*> screens = session.project().screens();
    Screen* screen = screens.isEmpty() ? nullptr : screens.first();
    if (arguments.has(QLatin1String("screen")))
        screen = session.screen(arguments, QLatin1String("screen"));
    ApplySession::requireReadable(screen, arguments);
    const QString id = arguments.has(QLatin1String("id")) ? ApplySession::newId(arguments) : QString();
    const QMap<QString, QString> properties = arguments.optionalTextMap(QLatin1String("properties"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());

    DesignerObject* added = nullptr;
    const EditResult edit = session.edits().addElement(className, screen, id, properties, &added);
    return ApplySession::result(edit,
                                {{QStringLiteral("id"), added ? QJsonValue(added->getIdName()) : QJsonValue(id)}});
}

ApplyResult applyRemove(ApplySession& session, EditArguments& arguments)
{
    const QList<DesignerObject*> elements = session.objects(arguments, false);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().removeElements(elements));
}

ApplyResult applySelect(ApplySession& session, EditArguments& arguments)
{
    const QList<DesignerObject*> objects = session.objects(arguments, true);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    session.edits().setSelection(objects);
    // The session leaves out what stands on another screen than the first object.
    if (session.edits().selection().size() < objects.size()) {
        return ApplyResult::refused(
            LocalizationHelper::coreString(QStringLiteral("Only objects of one screen can be selected together.")));
    }
    return ApplyResult::accepted();
}

ApplyResult applyRotate(ApplySession& session, EditArguments& arguments)
{
    DesignerObject* element = session.element(arguments);
    const double angle = arguments.number(QLatin1String("angle"));
    QString fixedPoint;
    if (arguments.has(QLatin1String("fixedPoint"))) {
        fixedPoint = arguments.text(QLatin1String("fixedPoint"));
    } else if (element) {
        const auto rotation = element->getProperty(QStringLiteral("rotation"));
        fixedPoint = ValueConversion::toRotationInfo(rotation ? rotation->valueString() : QString()).fixedPoint();
    }
    if (!arguments.hasError() && !RotationInfo::fixedPointNames().contains(fixedPoint)) {
        arguments.refuse(
            LocalizationHelper::coreString(QStringLiteral("The argument \"fixedPoint\" must be one of: %1."))
                .arg(RotationInfo::fixedPointNames().join(QLatin1String(", "))));
    }
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(session.edits().rotateElement(element, angle, fixedPoint));
}

} // namespace Korvex::Meridane::Designer
