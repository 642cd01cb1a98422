#pragma once

#include "host/core/CoreExport.h"

#include <QGraphicsScene>
#include <QList>

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
    void setSelectedObjects(const QList<DesignerObject*>& objects);
    /// The front-most element at \a scenePos that can be selected, or null.
    [[nodiscard]] DesignerObject* elementAt(const QPointF& scenePos) const;

    /// Screen pixels of the view for one scene pixel; 1 without a view. Handles and hit widths follow it.
    [[nodiscard]] double viewScale() const { return m_viewScale; }
    void setViewScale(double scale);

    /// Makes the canvas item of \a object and of its children, fills them and reports their outer sizes once. Nothing
    /// is recorded and the project is not modified by it.
    void placeObject(DesignerObject* object, QGraphicsItem* parent);
    /// Removes and deletes the item of \a object and of its children.
    void displaceObject(DesignerObject* object);

private:
    Screen* m_screen;
    double m_viewScale = 1;
};

} // namespace Korvex::Meridane::Designer
