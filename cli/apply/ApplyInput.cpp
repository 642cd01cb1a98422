#include "cli/apply/ApplyFunctions.h"
#include "cli/apply/ApplySession.h"
#include "cli/apply/CanvasInput.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/Screen.h"

#include <QGraphicsItem>
#include <QKeySequence>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int NoPointHandle = -1;

struct Modifier
{
    const char* name;
    Qt::KeyboardModifier bit;
};

constexpr Modifier modifierNames[] = {
    {"Shift", Qt::ShiftModifier},
    {"Ctrl", Qt::ControlModifier},
    {"Alt", Qt::AltModifier},
};

/// A list of names, or one text in which "+" joins them.
Qt::KeyboardModifiers readModifiers(EditArguments& arguments)
{
    Qt::KeyboardModifiers modifiers;
    const QLatin1String argument("modifiers");
    const QStringList names = arguments.isText(argument)
                                  ? arguments.text(argument).split(QLatin1Char('+'), Qt::SkipEmptyParts)
                                  : arguments.optionalTexts(argument);
    for (const QString& name : names) {
        const auto* found = std::find_if(std::begin(modifierNames), std::end(modifierNames),
                                         [&name](const Modifier& entry) { return name == QLatin1String(entry.name); });
        if (found != std::end(modifierNames)) {
            modifiers |= found->bit;
        } else if (!arguments.hasError()) {
            arguments.refuse(
                LocalizationHelper::coreString(
                    QStringLiteral("The argument \"modifiers\" holds \"%1\" instead of Shift, Ctrl or Alt."))
                    .arg(name));
        }
    }
    return modifiers;
}

/// The one key, with its modifiers, that \a text spells ("Alt+B", "Right"); nothing when it spells none or several.
std::optional<QKeyCombination> readKey(const QString& text)
{
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].toCombined() == 0)
        return std::nullopt;
    switch (sequence[0].key()) {
    case Qt::Key_unknown:
    // Modifiers alone are no key press that an element could take.
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_Meta:
        return std::nullopt;
    default:
        return sequence[0];
    }
}

ApplyResult inputResult(const QString& refusal)
{
    return refusal.isEmpty() ? ApplyResult::accepted() : ApplyResult::refused(refusal);
}

} // namespace

ApplyResult applyHandle(ApplySession& session, EditArguments& arguments)
{
    DesignerObject* element = session.element(arguments);
    const QPointF at = arguments.point(QLatin1String("at"));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    GraphicsItem* item = element->graphicsItem();
    if (!item) {
        return ApplyResult::refused(
            LocalizationHelper::coreString(QStringLiteral("\"%1\" has no handles.")).arg(element->getIdName()));
    }
    // What an element says that is not selected: the search then sets no other tooltip.
    item->showNameToolTip();
    bool handled = false;
    const int pointHandle = item->getResizePointHandle(at, &handled);
    const QString pointToolTip = item->graphic()->toolTip();
    const int handle = item->getResizeHandle(at, &handled);
    const QString frameToolTip = item->graphic()->toolTip();
    return ApplyResult::accepted(
        {{QStringLiteral("handle"), handle},
         {QStringLiteral("pointHandle"), pointHandle},
         {QStringLiteral("tooltip"), pointHandle > NoPointHandle ? pointToolTip : frameToolTip}});
}

ApplyResult applyDrag(ApplySession& session, EditArguments& arguments)
{
    QList<QPointF> points{arguments.point(QLatin1String("from"))};
    points += arguments.optionalPoints(QLatin1String("via"));
    points += arguments.point(QLatin1String("to"));
    const Qt::KeyboardModifiers modifiers = readModifiers(arguments);
    Screen* screen = session.edits().currentScreen();
    if (arguments.has(QLatin1String("screen")))
        screen = session.screen(arguments, QLatin1String("screen"));
    ApplySession::requireReadable(screen, arguments);
    if (!screen)
        arguments.refuse(LocalizationHelper::coreString(QStringLiteral("There is no screen to drag on.")));
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    session.edits().setCurrentScreen(screen);
    return inputResult(session.input().drag(points, modifiers));
}

ApplyResult applyKey(ApplySession& session, EditArguments& arguments)
{
    DesignerObject* element = session.element(arguments);
    const QString keys = arguments.text(QLatin1String("keys"));
    const std::optional<QKeyCombination> key = readKey(keys);
    if (!arguments.hasError() && !key) {
        arguments.refuse(LocalizationHelper::coreString(
                             QStringLiteral("The argument \"keys\" must be one key like \"Alt+B\", not \"%1\"."))
                             .arg(keys));
    }
    if (!arguments.isComplete())
        return ApplyResult::refused(arguments.error());
    session.edits().setSelection({element});
    return inputResult(session.input().pressKey(*key));
}

} // namespace Korvex::Meridane::Designer
