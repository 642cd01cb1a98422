#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QHash>
#include <QPointF>
#include <QPointer>

namespace Korvex::Meridane::Designer {

/**
 * Moves elements to another place in the tree: among their siblings, into a group, out of it, onto another screen.
 *
 * Every element keeps its place and its angle on the screen, as long as both its old and its new parent have canvas items
 * or are screens; groups that turn about a point of their content do not move when that content changes. An id that is
 * taken on the new screen is replaced by a free one, and the links among the moved elements follow.
 */
class MERIDANE_CORE_EXPORT ReparentObjects : public UndoCommand
{
public:
    /// When the objects are selected again after undo and redo.
    enum class Select
    {
        Always,
        AtTheNewPlace,
        AtTheOldPlace
    };

    /// \a objects: elements, none inside another, in their future order. \a index: the place of the first one among those
    /// children of \a owner that are not moved; -1 for the front.
    ReparentObjects(const QList<DesignerObject*>& objects, DesignerObject* owner, int index,
                    Select select = Select::Always, UndoCommand* parent = nullptr);
    ~ReparentObjects() override;

    [[nodiscard]] QList<DesignerObject*> selectedItems() const override;
    [[nodiscard]] DesignerObject* activeItem() const override;
    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    struct Move
    {
        DesignerObject* object; // in the project before and after
        DesignerObject* from;
        int fromIndex;
        int toIndex;
        QHash<DesignerObject*, QString> idsBefore; // of the object and what is below it
        QHash<DesignerObject*, QString> idsAfter;
    };
    struct Placing
    {
        DesignerObject* object;
        QPointF fixedPoint; // in the coordinates of the new parent, as it lies before the move
        double angle; // on the screen, in degrees
    };

    [[nodiscard]] bool moveAll();
    void placeAgain(const QList<Placing>& placings) const;
    [[nodiscard]] QList<DesignerObject*> groupsConcerned() const;

    QList<DesignerObject*> m_objects;
    QPointer<DesignerObject> m_owner;
    int m_index;
    Select m_select;
    QList<Move> m_moves;
};

} // namespace Korvex::Meridane::Designer
