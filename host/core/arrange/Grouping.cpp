#include "host/core/arrange/Grouping.h"

#include "host/core/arrange/ElementPlaces.h"
#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeEditorMark.h"
#include "host/core/commands/RemoveObject.h"
#include "host/core/commands/ReparentObjects.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

int indexOf(const DesignerObject* object)
{
    return int(object->parentObject()->childList()->items().indexOf(const_cast<DesignerObject*>(object)));
}

bool isWhole(const QPointF& point)
{
    return point.x() == std::round(point.x()) && point.y() == std::round(point.y());
}

/// Where a group of \a members is to begin, in the coordinates of its parent, whose place is \a parent.
QPointF cornerOf(const QList<DesignerObject*>& members, const ElementPlace& parent)
{
    const QTransform fromScene = parent.toScene.inverted();
    QRectF content;
    bool whole = true;
    for (const DesignerObject* member : members) {
        const QTransform toParent = ElementPlaces::placeOf(member).toScene * fromScene;
        content |= ElementPlaces::contentBounds(member, toParent);
        const QTransform fromOwner = ElementPlaces::placeOf(member->parentObject()).toScene * fromScene;
        const QPointF position =
            ValueConversion::toPoint(member->getProperty(QStringLiteral("position"))->valueString());
        whole = whole && fromOwner.type() <= QTransform::TxTranslate && isWhole(withoutNoise(fromOwner.map(position)));
    }
    const QPointF corner = withoutNoise(content.topLeft());
    // What stands on whole pixels stays there.
    return whole ? QPointF(std::floor(corner.x()), std::floor(corner.y())) : corner;
}

} // namespace

QList<DesignerObject*> Grouping::groupable(const QList<DesignerObject*>& objects)
{
    const QList<DesignerObject*> members = ElementPlaces::movable(ElementPlaces::roots(objects));
    return members.size() > 1 ? members : QList<DesignerObject*>();
}

QList<DesignerObject*> Grouping::ungroupable(const QList<DesignerObject*>& objects)
{
    QList<DesignerObject*> groups = ElementPlaces::roots(objects);
    groups.removeIf([](const DesignerObject* object) {
        return !qobject_cast<const Group*>(object) || EditorMarks::isLocked(object);
    });
    return groups;
}

EditResult Grouping::group(EditSession* session, const QList<DesignerObject*>& objects, const QString& id,
                           DesignerObject** group)
{
    const QList<DesignerObject*> members = groupable(objects);
    if (members.isEmpty()) {
        return {false, false,
                LocalizationHelper::coreString(QStringLiteral("Two or more elements that can be moved make a group."))};
    }
    DesignerObject* front = members.constLast();
    DesignerObject* owner = front->parentObject();
    QString reason;
    if (!id.isEmpty() && !isQmlIdentifier(id, &reason))
        return {false, false, reason};
    if (const IdRegistry* scope = front->idScope(); !id.isEmpty() && scope && scope->contains(id)) {
        return {false, false, LocalizationHelper::coreString(QStringLiteral("The id \"%1\" is already used.")).arg(id)};
    }

    std::unique_ptr<DesignerObject> made(
        DesignerFactory::instance()->createDataObject(QStringLiteral("Group"), nullptr));
    const ElementPlace place = ElementPlaces::placeOf(owner);
    const QPointF corner = cornerOf(members, place);
    made->setIdName(id);
    made->getProperty(QStringLiteral("position"))->fill(ValueConversion::toString(corner));
    DesignerObject* result = made.get();

    auto command = std::make_unique<UndoCommand>();
    command->setText(LocalizationHelper::coreString(QStringLiteral("Group Elements")));
    command->setAllOrNothing(true);
    new AddObject(owner, std::move(made), indexOf(front) + 1, command.get());
    new ReparentObjects(members, result, -1, ReparentObjects::Select::AtTheOldPlace, command.get());
    EditResult edit = session->project()->execute(std::move(command));
    if (edit.changed) {
        session->setSelection({result});
        if (group)
            *group = result;
    }
    return edit;
}

EditResult Grouping::ungroup(EditSession* session, const QList<DesignerObject*>& objects)
{
    QList<DesignerObject*> groups = ungroupable(objects);
    if (groups.isEmpty())
        return {true, false, {}};
    auto command = std::make_unique<UndoCommand>();
    command->setText(LocalizationHelper::coreString(QStringLiteral("Ungroup")));
    command->setAllOrNothing(true);
    QList<DesignerObject*> members;
    // From the front on: what is done to one group does not move the places of those behind it.
    std::reverse(groups.begin(), groups.end());
    for (DesignerObject* group : std::as_const(groups)) {
        const auto& children = group->childList()->items();
        const QList<DesignerObject*> moved(children.cbegin(), children.cend());
        if (!moved.isEmpty()) {
            new ReparentObjects(moved, group->parentObject(), indexOf(group), ReparentObjects::Select::AtTheNewPlace,
                                command.get());
            if (group->editorMark(EditorMarks::hidden()) == EditorMarks::setValue())
                new ChangeEditorMark(moved, EditorMarks::hidden(), EditorMarks::setValue(), command.get());
        }
        members += moved;
        new RemoveObject(group, command.get());
    }
    EditResult edit = session->project()->execute(std::move(command));
    if (edit.changed)
        session->setSelection(ElementPlaces::roots(members));
    return edit;
}

} // namespace Korvex::Meridane::Designer
