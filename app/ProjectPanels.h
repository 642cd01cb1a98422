#pragma once

#include "host/core/project/Problem.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;

namespace Korvex::Meridane::Designer {

class FindPanel;
class FontPanel;
class MessageBar;
class ProblemIndicator;
class ProblemMonitor;
class ProblemsPanel;
class ScreenActions;
class ScreenListPanel;
class ScreensPanel;
class UserPrompts;
class WindowPanels;
class Workspace;

/**
 * The panels about the project as a whole: its screens, its fonts, what a search has found, and the problems that are
 * checked for while somebody works. They lead to the places that they name.
 */
class ProjectPanels : public QObject
{
    Q_OBJECT

public:
    /// Adds the panels to \a window. All arguments outlive the object; \a problemsDock holds \a problems.
    ProjectPanels(QMainWindow* window, WindowPanels* panels, ProblemsPanel* problems, QDockWidget* problemsDock,
                  UserPrompts* prompts, MessageBar* messages);
    ~ProjectPanels() override;

    /// Puts the panels of screens and fonts behind those of the project tree and the images.
    void arrange(QDockWidget* tree, QDockWidget* images);
    /// Adds the menu of the screen and the actions that find.
    void addTo(QMenu* menu);
    /// What the panels show; null: nothing.
    void setWorkspace(Workspace* workspace);

    /// For the status bar, which owns it.
    [[nodiscard]] ProblemIndicator* indicator() const { return m_indicator; }
    [[nodiscard]] ScreensPanel* screens() const { return m_screens; }
    [[nodiscard]] FontPanel* fonts() const { return m_fonts; }
    [[nodiscard]] FindPanel* find() const { return m_find; }
    [[nodiscard]] ProblemMonitor* monitor() const { return m_monitor.get(); }
    [[nodiscard]] ScreenActions* screenActions() const { return m_screenActions; }

    /// Selects the object that \a object names (empty: the project), brings it into view, and puts the focus on the
    /// editor of \a property where the property sheet shows one.
    void showPlace(const QString& object, const QString& property);
    /// Checks all of the project, unless the user ends that.
    void check();

Q_SIGNALS:
    /// What check() has found.
    void checked(const QList<Problem>& problems);

private:
    void makePanels(Workspace* workspace);
    void findText();
    void findReferences();
    void listReferences(const QString& name);
    [[nodiscard]] QString referenceTarget() const;
    void importFonts();
    void fix(const Problem& problem);
    void showCheckedProblems();
    void focusEditor(const QString& property);
    void updateActions();
    void refuse(const QString& message);

    QMainWindow* m_window;
    WindowPanels* m_panels;
    ProblemsPanel* m_problems;
    QDockWidget* m_problemsDock;
    UserPrompts* m_prompts;
    MessageBar* m_messages;
    QPointer<Workspace> m_workspace;
    QDockWidget* m_screensDock;
    QDockWidget* m_fontsDock;
    QDockWidget* m_findDock;
    ScreenActions* m_screenActions;
    ProblemIndicator* m_indicator;
    QAction* m_findAction;
    QAction* m_referencesAction;
    std::unique_ptr<ProblemMonitor> m_monitor;
    ScreenListPanel* m_screenList = nullptr;
    ScreensPanel* m_screens = nullptr; // in m_screenList
    FontPanel* m_fonts = nullptr;
    FindPanel* m_find = nullptr;
};

} // namespace Korvex::Meridane::Designer
