#pragma once

#include <QObject>
#include <QPointer>

class QMainWindow;

namespace Korvex::Meridane::Designer {

class FileActions;
class NavigationActions;
class StartPage;
class WindowPanels;
class Workspace;

/// Shows the start page in place of the canvas and its panels, until something is done to a project.
class StartPageSwitch : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive the switch, or go with the window.
    StartPageSwitch(QMainWindow* window, WindowPanels* panels, FileActions* file, NavigationActions* navigation);

    /// The page; null while it is not shown.
    [[nodiscard]] StartPage* page() const { return m_page; }
    /// Shows the page in place of the canvas of \a workspace.
    void show(Workspace* workspace);
    /// Shows the canvas, where there still is one, and the panels again.
    void leave();

Q_SIGNALS:
    /// The canvas is seen again.
    void left();

private:
    QMainWindow* m_window;
    WindowPanels* m_panels;
    FileActions* m_file;
    NavigationActions* m_navigation;
    StartPage* m_page = nullptr;
    QPointer<Workspace> m_workspace;
};

} // namespace Korvex::Meridane::Designer
