#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

#include <random>

class QWidget;

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
class MainWindow;

namespace Test {

/// One thing that a user does. What it comes to depends on what is there when it is done, so that a step makes sense in
/// every sequence, also in one from which others have been taken out.
struct RandomStep
{
    enum Kind
    {
        DragOnCanvas,
        DragSelected,
        ClickOnCanvas,
        Wheel,
        Key,
        TriggerAction,
        EditField,
        PressInSheet,
        ClickInTree,
        ChooseTile,
        UndoOrRedo,
        ChangeTab,
        DragFromRuler,
        KindCount
    };

    Kind kind = Key;
    quint32 seed = 0; ///< Of the choices within the step.
};

/// Somebody who works in the window without a plan: with mouse, wheel and keys on whatever is there. Menus and dialogs
/// that open are closed again.
class RandomUser
{
public:
    /// \a window is shown and outlives the user.
    explicit RandomUser(MainWindow* window);

    /// \a count steps that begin with \a seed.
    [[nodiscard]] static QVector<RandomStep> steps(quint32 seed, int count);

    void perform(const RandomStep& step);
    /// Lets go of everything: gestures, open editors, what is being typed.
    void finish();
    /// What the last step has been, in words.
    [[nodiscard]] const QString& description() const { return m_description; }

private:
    [[nodiscard]] int below(int end);
    [[nodiscard]] bool chance(int percent);
    [[nodiscard]] QPointF randomPlace();
    [[nodiscard]] Qt::KeyboardModifiers randomModifiers();
    [[nodiscard]] QString randomText();
    [[nodiscard]] CanvasView* canvas() const;
    [[nodiscard]] DesignerObject* selectedElement();
    [[nodiscard]] QList<QWidget*> shownFields() const;

    void mouse(int type, const QPointF& place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void drag(const QPointF& from, const QPointF& to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void dragOnCanvas();
    void dragSelected();
    void clickOnCanvas();
    void turnWheel();
    void pressKey();
    void triggerAction();
    void editField();
    void pressInSheet();
    void clickInTree();
    void chooseTile();
    void undoOrRedo();
    void changeTab();
    void dragFromRuler();
    void settle();

    MainWindow* m_window;
    std::minstd_rand m_random;
    Qt::MouseButtons m_buttons;
    QString m_description;
};

} // namespace Test
} // namespace Korvex::Meridane::Designer
