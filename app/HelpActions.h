#pragma once

#include <QObject>

class QMainWindow;
class QMenu;

namespace Korvex::Meridane::Designer {

class MessageBar;
class ShortcutSettings;

/// The actions of the Help menu.
class HelpActions : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive the actions. \a messages shows what cannot be done.
    HelpActions(QMainWindow* window, ShortcutSettings* shortcuts, MessageBar* messages);

    void addTo(QMenu* menu);

    /// The first page of the user guide that was installed, or built, with the program; empty when there is none.
    [[nodiscard]] static QString guideFile();

Q_SIGNALS:
    /// A command is to be found by its name.
    void commandsRequested();

private:
    void showGuide();
    void showShortcuts();
    void showAbout();

    QMainWindow* m_window;
    ShortcutSettings* m_shortcuts;
    MessageBar* m_messages;
};

} // namespace Korvex::Meridane::Designer
