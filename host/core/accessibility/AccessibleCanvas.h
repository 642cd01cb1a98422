#pragma once

#include <QAccessibleWidget>
#include <QVector>

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;

/**
 * The canvas, as assistive programs see it: its children are the elements of the screen that is shown, from back to
 * front. The one that is selected has the focus of the canvas.
 */
class AccessibleCanvas : public QAccessibleWidget
{
public:
    explicit AccessibleCanvas(CanvasView* view);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

private:
    [[nodiscard]] CanvasView* view() const;
    [[nodiscard]] QVector<DesignerObject*> elements() const;
};

} // namespace Korvex::Meridane::Designer
