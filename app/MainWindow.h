#pragma once

#include "host/core/project/Problem.h"

#include <QMainWindow>

#include <memory>

namespace Korvex::Meridane::Designer {

class CommandPalette;
class ArrangeActions;
class CanvasActions;
class EditActions;
class EditSession;
class ElementPalette;
class FileActions;
class HelpActions;
class ImageActions;
class MessageBar;
class NavigationActions;
class OutputActions;
class ProblemsPanel;
class ProjectPanels;
class ProjectDocument;
class ShortcutSettings;
class StartPage;
class StartPageSwitch;
class SheetActions;
class ResultPanels;
class StatusReadout;
class UserPrompts;
class ViewActions;
class WindowPanels;
class Workspace;
class ZoomBox;

/**
 * The window of the application: palette, project tree and images on the left, the canvas in the middle, property sheet and
 * history on the right, with menus, tool bar and status bar around them. It always shows one project.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Starts with a new untitled project. \a prompts outlives the window.
    explicit MainWindow(UserPrompts* prompts, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens the project in \a path; what is wrong with it is shown in the window.
    bool openProject(const QString& path);
    /// Shows the start page in place of the canvas and its panels, until something is done to a project.
    void showStartPage();
    /// Shows \a problems after those that are shown already.
    void addProblems(const QList<Problem>& problems);

    [[nodiscard]] ProjectDocument* document() const { return m_document.get(); }
    [[nodiscard]] Workspace* workspace() const { return m_workspace.get(); }
    [[nodiscard]] ElementPalette* palettePanel() const { return m_palette; }
    [[nodiscard]] ProblemsPanel* problemsPanel() const { return m_problems; }
    [[nodiscard]] ProjectPanels* projectPanels() const { return m_projectPanels; }
    [[nodiscard]] MessageBar* messageBar() const { return m_messages; }
    [[nodiscard]] StatusReadout* statusReadout() const { return m_readout; }
    /// Null while it is not shown.
    [[nodiscard]] StartPage* startPage() const;
    [[nodiscard]] CommandPalette* commandPalette() const { return m_commands; }
    [[nodiscard]] ShortcutSettings* shortcutSettings() const { return m_shortcuts; }
    [[nodiscard]] FileActions* fileActions() const { return m_file; }
    [[nodiscard]] EditActions* editActions() const { return m_edit; }
    [[nodiscard]] ArrangeActions* arrangeActions() const { return m_arrange; }
    [[nodiscard]] ImageActions* imageActions() const { return m_images; }
    [[nodiscard]] OutputActions* outputActions() const { return m_output; }
    [[nodiscard]] ResultPanels* results() const { return m_results; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makePanels(UserPrompts* prompts);
    void makeMenus();
    void makeToolBar();
    void makeStatusBar();
    void attach(EditSession* session);
    void detach();
    void showWholeScreen();
    void readRemainingScreens();
    void showProblems(const QList<Problem>& problems, const QString& consequence = {});
    void showCommands();
    void keepThumbnail();
    void updateTitle();

    std::unique_ptr<ProjectDocument> m_document;
    std::unique_ptr<Workspace> m_workspace; // goes before the document
    WindowPanels* m_panels;
    ShortcutSettings* m_shortcuts;
    ElementPalette* m_palette;
    ProblemsPanel* m_problems;
    MessageBar* m_messages;
    StatusReadout* m_readout;
    ZoomBox* m_zoomBox;
    FileActions* m_file;
    EditActions* m_edit;
    ArrangeActions* m_arrange;
    ViewActions* m_view;
    CanvasActions* m_canvas;
    OutputActions* m_output;
    ResultPanels* m_results;
    ImageActions* m_images;
    NavigationActions* m_navigation;
    StartPageSwitch* m_startPage;
    SheetActions* m_sheetActions;
    HelpActions* m_help;
    CommandPalette* m_commands;
    QDockWidget* m_paletteDock;
    QDockWidget* m_treeDock;
    QDockWidget* m_imagesDock;
    QDockWidget* m_sheetDock;
    QDockWidget* m_historyDock;
    QDockWidget* m_problemsDock;
    ProjectPanels* m_projectPanels = nullptr;
    bool m_fitted = false; // the screen of the open project has been fitted into the window
};

} // namespace Korvex::Meridane::Designer
