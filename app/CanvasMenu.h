#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// The context menu of the canvas: a list of all elements under the mouse from front to back, each outlined on the canvas while
/// the menu points at it, and those of the window's actions that can act on the selection.
class CanvasMenu : public QObject
{
    Q_OBJECT

public:
    /// Owned by \a view. \a actions: those that the menu offers; null pointers separate them.
    CanvasMenu(CanvasView* view, const QList<QAction*>& actions);

    /// A new menu for the point \a viewPos of the viewport; it belongs to the caller.
    [[nodiscard]] QMenu* make(const QPoint& viewPos);

private:
    void addElements(QMenu* menu, const QPoint& viewPos);

    CanvasView* m_view;
    QList<QAction*> m_actions;
};

} // namespace Korvex::Meridane::Designer
