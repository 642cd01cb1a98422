#pragma once

#include "host/core/commands/UndoStack.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class EditSession;
class MessageBar;
class Screen;
class UserPrompts;

/// The actions that change whole screens: copy, rename, resize, move, remove. In the window's menu they work on the screen
/// that is shown, in the menus of the tabs and of the screen list on the one that the menu is about.
class ScreenActions : public QObject
{
    Q_OBJECT

public:
    /// \a prompts and \a messages outlive the actions.
    ScreenActions(UserPrompts* prompts, MessageBar* messages, QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The session that the actions work on; null: none.
    void setSession(EditSession* session);
    /// Shows the menu of \a screen; with null it offers a new one.
    void showMenu(Screen* screen, const QPoint& globalPos);
    /// Fills \a menu with what can be done with \a screen.
    void fillMenu(QMenu* menu, Screen* screen);

    void add();
    void duplicate(Screen* screen);
    void resize(Screen* screen);
    void remove(Screen* screen);
    /// Moves \a screen by \a steps places.
    void move(Screen* screen, int steps);

    [[nodiscard]] QAction* duplicateAction() const { return m_duplicate; }
    [[nodiscard]] QAction* resizeAction() const { return m_resize; }
    [[nodiscard]] QAction* removeAction() const { return m_remove; }

Q_SIGNALS:
    /// The name of \a screen is to be edited.
    void renameRequested(Screen* screen);

private:
    QAction* make(const char* name, const char* icon, const char* text, void (ScreenActions::*run)(Screen*));
    void update();
    void report(const EditResult& result);
    [[nodiscard]] bool canMove(const Screen* screen, int steps) const;

    QPointer<EditSession> m_session;
    UserPrompts* m_prompts;
    MessageBar* m_messages;
    QAction* m_duplicate;
    QAction* m_rename;
    QAction* m_resize;
    QAction* m_earlier;
    QAction* m_later;
    QAction* m_remove;
};

} // namespace Korvex::Meridane::Designer
