#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/arrange/Alignment.h"
#include "host/core/arrange/ElementClipboard.h"
#include "host/core/arrange/Grouping.h"
#include "host/core/arrange/SiblingOrder.h"
#include "host/core/objects/DesignerObject.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

template <typename Value>
struct Choice
{
    const char* name;
    Value value;
};

/// The value that the argument \a argument names among \a choices; a fault is recorded for any other text. \a fallback:
/// the name that a missing argument stands for; null where it must be given.
template <typename Value, std::size_t Count>
Value readChoice(EditArguments& arguments, QLatin1String argument, const Choice<Value> (&choices)[Count],
                 const char* fallback = nullptr)
{
    const QString name =
        fallback ? arguments.optionalText(argument, QLatin1String(fallback)) : arguments.text(argument);
    const auto* found = std::find_if(std::begin(choices), std::end(choices), [&name](const Choice<Value>& choice) {
        return name == QLatin1String(choice.name);
    });
    if (found != std::end(choices))
        return found->value;
    if (!arguments.hasError()) {
        QStringList names;
        for (const Choice<Value>& choice : choices)
            names.append(QLatin1String(choice.name));
        arguments.refuse(LocalizationHelper::coreString(QStringLiteral("The argument \"%1\" must be one of: %2."))
                             .arg(argument, names.join(QLatin1String(", "))));
    }
    return choices[0].value;
}

const DesignerObject* topOf(const DesignerObject* object)
{
    while (object && !object->ownIdScope())
        object = object->parentObject();
    return object;
}

/// The elements of "id" or "ids"; a fault is recorded when they stand on several screens.
QList<DesignerObject*> neighbours(ApplySession& session, EditArguments& arguments)
{
    QList<DesignerObject*> elements = session.objects(arguments, false);
    const bool together = std::all_of(elements.cbegin(), elements.cend(), [&elements](const DesignerObject* element) {
        return topOf(element) == topOf(elements.constFirst());
    });
    if (!together)
        arguments.refuse(
            LocalizationHelper::coreString(QStringLiteral("Only elements of one screen can be arranged together.")));
    return elements;
}

QJsonArray idsOf(const QList<DesignerObject*>& elements)
{
    QJsonArray ids;
    for (const DesignerObject* element : elements)
        ids.append(element->getIdName());
    return ids;
}

template <typename Run>
ApplyResult marked(ApplySession& session, EditArguments& arguments, const Run& run)
{
    const QList<DesignerObject*> elements = session.objects(arguments, false);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(run(session.edits(), elements));
}

} // namespace

ApplyResult applyAlign(ApplySession& session, EditArguments& arguments)
{
    static constexpr Choice<AlignEdge> edges[] = {
        {"left", AlignEdge::Left}, {"center", AlignEdge::Center}, {"right", AlignEdge::Right},
        {"top", AlignEdge::Top},   {"middle", AlignEdge::Middle}, {"bottom", AlignEdge::Bottom},
    };
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    const AlignEdge edge = readChoice(arguments, QLatin1String("to"), edges);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(Alignment::align(&session.edits(), elements, edge));
}

ApplyResult applyDistribute(ApplySession& session, EditArguments& arguments)
{
    static constexpr Choice<Qt::Orientation> axes[] = {{"horizontal", Qt::Horizontal}, {"vertical", Qt::Vertical}};
    static constexpr Choice<SpacingKind> kinds[] = {{"gaps", SpacingKind::Gaps}, {"centers", SpacingKind::Centers}};
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    const Qt::Orientation axis = readChoice(arguments, QLatin1String("axis"), axes);
    const SpacingKind kind = readChoice(arguments, QLatin1String("by"), kinds, "gaps");
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(Alignment::distribute(&session.edits(), elements, axis, kind));
}

ApplyResult applySameSize(ApplySession& session, EditArguments& arguments)
{
    using Dimension = Alignment::Dimension;
    static constexpr Choice<Dimension> dimensions[] = {
        {"width", Dimension::Width}, {"height", Dimension::Height}, {"both", Dimension::Both}};
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    const Dimension dimension = readChoice(arguments, QLatin1String("dimension"), dimensions, "both");
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(Alignment::makeSameSize(&session.edits(), elements, dimension));
}

ApplyResult applyCenter(ApplySession& session, EditArguments& arguments)
{
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(Alignment::centerOnScreen(&session.edits(), elements));
}

ApplyResult applyGroup(ApplySession& session, EditArguments& arguments)
{
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    const QString id = arguments.optionalText(QLatin1String("group"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    DesignerObject* group = nullptr;
    const EditResult edit = Grouping::group(&session.edits(), elements, id, &group);
    return ApplySession::result(edit, {{QStringLiteral("id"), group ? group->getIdName() : id}});
}

ApplyResult applyUngroup(ApplySession& session, EditArguments& arguments)
{
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    if (Grouping::ungroupable(elements).isEmpty()) {
        return ApplyResult::refused(
            LocalizationHelper::coreString(QStringLiteral("There is no group that can be taken apart.")));
    }
    const EditResult edit = Grouping::ungroup(&session.edits(), elements);
    return ApplySession::result(edit, {{QStringLiteral("ids"), idsOf(session.edits().selection())}});
}

ApplyResult applyOrder(ApplySession& session, EditArguments& arguments)
{
    using Move = SiblingOrder::Move;
    static constexpr Choice<Move> moves[] = {
        {"front", Move::ToFront}, {"forward", Move::Forward}, {"backward", Move::Backward}, {"back", Move::ToBack}};
    const QList<DesignerObject*> elements = session.objects(arguments, false);
    const Move move = readChoice(arguments, QLatin1String("to"), moves);
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    return ApplySession::result(SiblingOrder::move(&session.project(), elements, move));
}

ApplyResult applyLock(ApplySession& session, EditArguments& arguments)
{
    return marked(session, arguments, [](EditSession& edits, const QList<DesignerObject*>& elements) {
        return edits.setLocked(elements, true);
    });
}

ApplyResult applyUnlock(ApplySession& session, EditArguments& arguments)
{
    return marked(session, arguments, [](EditSession& edits, const QList<DesignerObject*>& elements) {
        return edits.setLocked(elements, false);
    });
}

ApplyResult applyHide(ApplySession& session, EditArguments& arguments)
{
    return marked(session, arguments, [](EditSession& edits, const QList<DesignerObject*>& elements) {
        return edits.setHidden(elements, true);
    });
}

ApplyResult applyShow(ApplySession& session, EditArguments& arguments)
{
    return marked(session, arguments, [](EditSession& edits, const QList<DesignerObject*>& elements) {
        return edits.setHidden(elements, false);
    });
}

ApplyResult applyDuplicate(ApplySession& session, EditArguments& arguments)
{
    const QList<DesignerObject*> elements = neighbours(session, arguments);
    std::optional<QPointF> offset;
    if (arguments.has(QLatin1String("by")))
        offset = arguments.point(QLatin1String("by"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    QList<DesignerObject*> copies;
    const EditResult edit = ElementClipboard::duplicate(&session.edits(), elements, offset, &copies);
    return ApplySession::result(edit, {{QStringLiteral("ids"), idsOf(copies)}});
}

} // namespace Korvex::Meridane::Designer
