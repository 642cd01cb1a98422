#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QVector>

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;

/**
 * An element on the canvas, as screen readers and other assistive programs see it: what it is, what it is called, where
 * it stands, and whether it is selected. Groups have their elements as children.
 *
 * Qt makes one when somebody asks for it, keeps it for the element, and deletes it with the element. An element that has
 * been removed, and that an undo step still holds, is not valid.
 */
class AccessibleElement : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleElement(DesignerObject* element);
    ~AccessibleElement() override;

    /// What stands for \a element on a canvas, or null where it stands on none.
    [[nodiscard]] static QAccessibleInterface* of(DesignerObject* element);
    /// The elements in \a owner (a screen or a group) that stand on the canvas, from back to front.
    [[nodiscard]] static QVector<DesignerObject*> childrenOf(const DesignerObject* owner);
    /// The view that shows \a element, or null.
    [[nodiscard]] static CanvasView* viewOf(const DesignerObject* element);

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QStringList actionNames() const override;
    [[nodiscard]] QString localizedActionName(const QString& name) const override;
    [[nodiscard]] QString localizedActionDescription(const QString& name) const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override;

    /// The action that selects the element alone.
    [[nodiscard]] static QString selectAction();

private:
    [[nodiscard]] DesignerObject* element() const;
};

} // namespace Korvex::Meridane::Designer
