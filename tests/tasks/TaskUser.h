#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

class QWidget;

namespace Korvex::Meridane::Designer {
class MainWindow;
}

namespace Korvex::Meridane::Designer::Test {

/// What a task that cannot go on is ended with.
struct TaskFailure
{
    QString message;
};

/**
 * A person at the real window: real mouse and real keys of an X server, eyes on the widgets.
 *
 * The user lives in a thread of its own, so that dialogs and menus with event loops of their own hold nobody up: input
 * goes to the X server, looking happens in the GUI thread, also while a dialog is open. Nothing waits for a fixed time;
 * what does not come ends the task with a TaskFailure that names it.
 *
 * Points are pixels of the X server's screen.
 */
class TaskUser
{
public:
    explicit TaskUser(MainWindow* window);

    [[nodiscard]] MainWindow* window() const { return m_window; }

    /// Waits until \a holds, which is asked in the GUI thread.
    void waitUntil(const QString& what, const std::function<bool()>& holds) const;
    /// Runs \a action in the GUI thread.
    static void look(const std::function<void()>& action);

    /// Where the widget that \a find gives stands, as soon as it is shown and has come to rest.
    [[nodiscard]] QRect placeOf(const QString& what, const std::function<QWidget*()>& find) const;
    /// The visible button of that text (mnemonics aside), accessible name or tooltip, in the window that has the focus first.
    [[nodiscard]] QRect button(const QString& text) const;
    /// The tab of that text: of a panel or a screen.
    [[nodiscard]] QPoint tab(const QString& text) const;
    /// The visible widget of that object name.
    [[nodiscard]] QRect named(const QString& objectName) const;
    /// The element tile of the palette.
    [[nodiscard]] QPoint tile(const QString& className) const;
    /// The field of the property sheet that edits \a propertyId; \a part counts its fields from left to right.
    [[nodiscard]] QPoint field(const QString& propertyId, int part = 0) const;
    /// What \a find gives within the editor of \a propertyId, scrolled into view.
    [[nodiscard]] QRect partOf(const QString& propertyId, const std::function<QWidget*(QWidget* editor)>& find) const;
    /// The point of the designed screen with these coordinates, as the canvas shows it.
    [[nodiscard]] QPoint onCanvas(double x, double y) const;

    void moveTo(const QPoint& place) const;
    /// \a modifier: a key held down meanwhile ("ctrl", "shift"), or empty. \a button: 1 left, 2 middle, 3 right.
    void click(const QPoint& place, const QString& modifier = {}, int button = 1) const;
    void doubleClick(const QPoint& place) const;
    /// Presses at \a from, moves in steps to \a to; letGo() ends it.
    void grabAndMove(const QPoint& from, const QPoint& to, const QString& modifier = {}) const;
    void letGo(const QString& modifier = {}) const;
    void drag(const QPoint& from, const QPoint& to, const QString& modifier = {}) const;
    void wheel(const QPoint& place, int notches, const QString& modifier = {}) const;
    /// A key press by its X name: "ctrl+s", "Return".
    void key(const QString& keys) const;
    void type(const QString& text) const;
    /// Puts the cursor into the field at \a place and replaces what it holds; \a end: the key that ends it, or empty.
    void typeAt(const QPoint& place, const QString& text, const QString& end = QStringLiteral("Return")) const;
    /// The same for a field of the property sheet.
    void fill(const QString& propertyId, int part, const QString& text) const;
    /// Places an element by clicking its tile and dragging on the canvas; its id is then \a id.
    void draw(const QString& className, const QRectF& place, const QString& id) const;
    /// Runs what the command palette finds first for \a words.
    void command(const QString& words) const;
    /// Types \a path into the file dialog that is open, and accepts it.
    void chooseFile(const QString& path) const;

    /// Where picture() saves.
    [[nodiscard]] static QString pictureFile(const QString& name);
    /// Saves what the screen shows as \a name.png among the pictures of the tasks.
    void picture(const QString& name) const;

private:
    void input(const QStringList& arguments) const;

    MainWindow* m_window;
};

} // namespace Korvex::Meridane::Designer::Test
