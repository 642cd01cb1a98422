#pragma once

#include <QObject>

class QMainWindow;
class QMenu;

namespace Korvex::Meridane::Designer {

/// The actions of the Help menu.
class HelpActions : public QObject
{
    Q_OBJECT

public:
    /// \a window: its menus are what the list of shortcuts shows.
    explicit HelpActions(QMainWindow* window);

    void addTo(QMenu* menu);

private:
    void showShortcuts();
    void showAbout();

    QMainWindow* m_window;
};

} // namespace Korvex::Meridane::Designer
