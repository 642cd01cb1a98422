#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class Project;
class WindowPanels;
class Workspace;

/// The actions that lead the keyboard about in the window: to the canvas, the properties, the next panel or screen.
class NavigationActions : public QObject
{
    Q_OBJECT

public:
    /// \a panels outlive the actions.
    explicit NavigationActions(WindowPanels* panels, QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The widgets that the actions lead to; null: none.
    void setWorkspace(Workspace* workspace);

Q_SIGNALS:
    /// The properties of the selection are to be edited; their panel is to be shown first.
    void propertiesRequested();

private:
    void update();
    void editProperties();
    void stepScreen(int steps);
    void stepPanel(int steps);

    WindowPanels* m_panels;
    Workspace* m_workspace = nullptr;
    QPointer<Project> m_project;
    QList<QAction*> m_actions;
    QList<QAction*> m_screenSteps; // those of them that go to another screen
};

} // namespace Korvex::Meridane::Designer
