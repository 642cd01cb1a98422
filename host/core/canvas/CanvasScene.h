#pragma once

#include "host/core/CoreExport.h"

#include <QGraphicsScene>
#include <QList>
#include <QPointer>
#include <QSet>

#include <functional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class GraphicsItem;
class Screen;

/**
 * The canvas of one screen: its items, with scene coordinates that are the screen's pixels.
 *
 * Follows the screen: elements that are added, removed, reordered or renamed get and lose their items. The mouse and
 * the keyboard belong to CanvasView.
 */
class MERIDANE_CORE_EXPORT CanvasScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// Makes and fills the items of \a screen and of all elements on it. \a screen outlives the scene.
    explicit CanvasScene(Screen* screen, QObject* parent = nullptr);
    ~CanvasScene() override;

    [[nodiscard]] Screen* screen() const { return m_screen; }

    /// The selected elements, in z-order.
    [[nodiscard]] QList<DesignerObject*> selectedObjects() const;
    /// The selected elements without those that stand in a selected group: what moves or is removed as a whole.
    [[nodiscard]] QList<DesignerObject*> selectedRoots() const;
    /// The selectedRoots() that the mouse and the arrow keys move: neither locked nor fixed by their class.
    [[nodiscard]] QList<DesignerObject*> movableRoots() const;
    /// Selects those of \a objects that have a selectable item here, and nothing else; announced once.
    void setSelectedObjects(const QList<DesignerObject*>& objects);
    /// The front-most element at \a scenePos that the mouse can select, or null; what is locked or hidden is passed
    /// through. Of an element in groups that is the outermost group, unless the element itself or a group between them is
    /// selected, or the group has been gone into: something in it is selected.
    [[nodiscard]] DesignerObject* elementAt(const QPointF& scenePos) const;
    /// Of the group that elementAt() finds: what is hit in it, one level further in. Null where no group is hit.
    [[nodiscard]] DesignerObject* elementInGroupAt(const QPointF& scenePos) const;
    /// All elements at \a scenePos that can be selected, from front to back, thin ones beside it included: of elements in
    /// groups the groups first, from the outermost inwards; none that is locked. Begins with elementAt() unless something in
    /// a group is selected.
    [[nodiscard]] QList<DesignerObject*> elementsAt(const QPointF& scenePos) const;
    /// The elements whose shapes \a sceneRect touches, groups for what is in them, in z-order; none that is locked.
    [[nodiscard]] QList<DesignerObject*> elementsIn(const QRectF& sceneRect) const;
    /// The elements directly in \a owner (null: on the screen) that mouse and keyboard can select, in z-order.
    [[nodiscard]] QList<DesignerObject*> selectableElements(const DesignerObject* owner = nullptr) const;

    /// Screen pixels of the view for one scene pixel; 1 without a view. Handles and hit widths follow it.
    [[nodiscard]] double viewScale() const { return m_viewScale; }
    void setViewScale(double scale);

    /// Makes the canvas item of \a object and of its children, fills them and reports their outer sizes once. Nothing
    /// is recorded and the project is not modified by it. Does nothing for an object that is placed already, or that
    /// has no item. \a parent null: the scene's top level.
    void placeObject(DesignerObject* object, QGraphicsItem* parent);
    /// Removes and deletes the item of \a object and of its children.
    void displaceObject(DesignerObject* object);
    /// Stacks the item of \a object between its siblings as their list says, by its z-value alone. Constant time for the
    /// last of the list.
    void restack(DesignerObject* object);

Q_SIGNALS:
    /// \a object is no longer hidden and may be selected here again.
    void elementShown(DesignerObject* object);

private:
    [[nodiscard]] bool owns(const DesignerObject* object) const;
    [[nodiscard]] DesignerObject* selectableElement(QGraphicsItem* graphic) const;
    [[nodiscard]] DesignerObject* pointedElement(const QPointF& scenePos,
                                                 const std::function<DesignerObject*(QGraphicsItem*)>& choose) const;
    [[nodiscard]] QSet<const QGraphicsItem*> enteredGroups() const;
    [[nodiscard]] QList<DesignerObject*> inZOrder(const QList<DesignerObject*>& objects) const;
    void placeChildren(const DesignerObject* owner, QGraphicsItem* parent);
    void fitIndex();
    void onObjectAdded(DesignerObject* object);
    void onObjectRemoved(DesignerObject* object, DesignerObject* parent);
    void onObjectMarked(DesignerObject* object, const QString& mark);
    void onSelectionChanged();

    Screen* m_screen;
    QList<QPointer<DesignerObject>> m_selectedBefore;
    double m_viewScale = 1;
    qsizetype m_itemCount = 0;
};

} // namespace Korvex::Meridane::Designer
