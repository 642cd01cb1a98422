#include "host/core/arrange/SiblingOrder.h"

#include "host/core/commands/MoveObject.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// The indices of \a objects among the children of \a parent, ascending.
QList<int> indicesOf(DesignerObject* parent, const QList<DesignerObject*>& objects)
{
    QHash<const DesignerObject*, int> places;
    const auto& siblings = parent->childList()->items();
    for (int i = 0; i < siblings.size(); ++i)
        places.insert(siblings.at(i), i);
    QList<int> indices;
    for (const DesignerObject* object : objects) {
        if (const auto place = places.constFind(object); place != places.cend())
            indices.append(*place);
    }
    std::sort(indices.begin(), indices.end());
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
    return indices;
}

/// Adds the moves that bring the children at \a chosen (ascending) to \a targets (ascending) to \a command.
void addMoves(DesignerObject* parent, const QList<int>& chosen, const QList<int>& targets, UndoCommand* command)
{
    const auto& siblings = parent->childList()->items();
    if (chosen == targets)
        return;
    if (chosen.size() == 1) {
        new MoveObject(siblings.at(chosen.constFirst()), targets.constFirst(), command);
        return;
    }
    // All to the front first, in order; after that every insertion, from the back, stands where it will stay.
    const int last = int(siblings.size()) - 1;
    for (const int index : chosen)
        new MoveObject(siblings.at(index), last, command);
    for (qsizetype i = 0; i < chosen.size(); ++i)
        new MoveObject(siblings.at(chosen.at(i)), targets.at(i), command);
}

std::unique_ptr<UndoCommand> orderCommand(const QString& text)
{
    auto command = std::make_unique<UndoCommand>();
    command->setText(text);
    return command;
}

EditResult run(Project* project, std::unique_ptr<UndoCommand> command)
{
    if (command->childCommandCount() == 0)
        return {true, false, {}};
    return project->execute(std::move(command));
}

} // namespace

EditResult SiblingOrder::move(Project* project, const QList<DesignerObject*>& objects, Move move)
{
    QList<DesignerObject*> parents;
    for (const DesignerObject* object : objects) {
        DesignerObject* parent = object->parentObject();
        if (parent && parent->childList() && !parents.contains(parent))
            parents.append(parent);
    }
    static constexpr const char* texts[] = {
        QT_TRANSLATE_NOOP("Core", "Bring to Front"), QT_TRANSLATE_NOOP("Core", "Bring Forward"),
        QT_TRANSLATE_NOOP("Core", "Send Backward"), QT_TRANSLATE_NOOP("Core", "Send to Back")};
    auto command = orderCommand(LocalizationHelper::coreString(QString::fromUtf8(texts[int(move)])));
    for (DesignerObject* parent : parents) {
        const QList<int> chosen = indicesOf(parent, objects);
        addMoves(parent, chosen, targets(chosen, int(parent->childList()->items().size()), move), command.get());
    }
    return run(project, std::move(command));
}

bool SiblingOrder::canMove(const QList<DesignerObject*>& objects, Move move)
{
    const QSet<DesignerObject*> moved(objects.cbegin(), objects.cend());
    QHash<DesignerObject*, int> counts; // of the moved ones, by parent
    for (const DesignerObject* object : moved) {
        if (DesignerObject* parent = object->parentObject(); parent && parent->childList())
            ++counts[parent];
    }
    const bool toFront = move == Move::ToFront || move == Move::Forward;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        // None has a place to go to where they are the outermost ones already.
        const auto& siblings = it.key()->childList()->items();
        const auto outermost = toFront ? siblings.cend() - it.value() : siblings.cbegin();
        if (!std::all_of(outermost, outermost + it.value(),
                         [&moved](DesignerObject* sibling) { return moved.contains(sibling); }))
            return true;
    }
    return false;
}

EditResult SiblingOrder::moveTo(Project* project, DesignerObject* parent, const QList<DesignerObject*>& objects,
                                int index)
{
    auto command = orderCommand(LocalizationHelper::coreString(QStringLiteral("Change Order")));
    const QList<int> chosen = indicesOf(parent, objects);
    const int others = int(parent->childList()->items().size() - chosen.size());
    QList<int> targets;
    for (qsizetype i = 0; i < chosen.size(); ++i)
        targets.append(std::clamp(index, 0, others) + int(i));
    addMoves(parent, chosen, targets, command.get());
    return run(project, std::move(command));
}

QList<int> SiblingOrder::targets(const QList<int>& chosen, int count, Move move)
{
    QList<int> places = chosen;
    const int size = int(chosen.size());
    for (int i = 0; i < size; ++i) {
        switch (move) {
        case Move::ToFront:
            places[i] = count - size + i;
            break;
        case Move::ToBack:
            places[i] = i;
            break;
        case Move::Forward: {
            // From the front on: nothing overtakes what is moved too.
            const int k = size - 1 - i;
            const int limit = k + 1 < size ? places.at(k + 1) - 1 : count - 1;
            places[k] = qMin(chosen.at(k) + 1, limit);
            break;
        }
        case Move::Backward:
            places[i] = qMax(chosen.at(i) - 1, i > 0 ? places.at(i - 1) + 1 : 0);
            break;
        }
    }
    return places;
}

} // namespace Korvex::Meridane::Designer
