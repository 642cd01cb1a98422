#pragma once

#include "host/core/project/Problem.h"

#include <QObject>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class MessageBar;
class ProjectDocument;
class RecentFiles;
class UserPrompts;

/// The actions that create, open, save and close projects. No work is lost: whatever would close a project with unsaved
/// changes asks first, and goes no further when the user cancels or a save fails.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive the actions.
    FileActions(ProjectDocument* document, UserPrompts* prompts, MessageBar* messages, QObject* parent = nullptr);

    /// Adds New to Save As and the list of recent projects.
    void addTo(QMenu* menu);
    /// Close and Quit, for the end of the menu.
    void addEndTo(QMenu* menu);

    [[nodiscard]] QAction* startPageAction() const { return m_startPage; }
    [[nodiscard]] QAction* newAction() const { return m_new; }
    [[nodiscard]] QAction* openAction() const { return m_open; }
    [[nodiscard]] QAction* saveAction() const { return m_save; }
    [[nodiscard]] QAction* quitAction() const { return m_quit; }
    [[nodiscard]] RecentFiles* recentFiles() const { return m_recent; }

    /// True when the project may be closed: it has no unsaved changes, they were saved, or the user gives them up.
    bool mayClose();
    /// Opens the project in \a path (folder or project.json); false when it cannot be opened or the user cancels.
    bool openPath(const QString& path);
    /// Opens a copy of the project in \a folder as a new one that has no folder yet; false as above.
    bool openExample(const QString& folder);
    /// Starts a new project for a display of \a size in pixels, unless the user cancels; one that is invalid is asked for.
    void createSized(const QSizeF& size);
    bool save();
    bool saveAs();

Q_SIGNALS:
    /// Opening met \a problems, or could not open at all, as \a consequence then says.
    void problemsFound(const QList<Problem>& problems, const QString& consequence);
    /// The start page is to be shown.
    void startPageRequested();
    /// The open project has been read from, or written into, its folder.
    void projectStored();

private:
    template <typename Save>
    bool store(const Save& save);
    void createProject();
    void chooseAndOpen();
    void closeProject();
    void fillRecentMenu();
    bool reportSave(bool done, const QString& message);
    [[nodiscard]] QString projectsFolder() const;
    void rememberFolder(const QString& folder);

    ProjectDocument* m_document;
    UserPrompts* m_prompts;
    MessageBar* m_messages;
    RecentFiles* m_recent;
    QMenu* m_recentMenu = nullptr;
    QAction* m_startPage;
    QAction* m_new;
    QAction* m_open;
    QAction* m_save;
    QAction* m_saveAs;
    QAction* m_close;
    QAction* m_quit;
};

} // namespace Korvex::Meridane::Designer
