#include "app/StartPageSwitch.h"

#include "app/CanvasPanel.h"
#include "app/FileActions.h"
#include "app/NavigationActions.h"
#include "app/ProgramFiles.h"
#include "app/StartPage.h"
#include "app/WindowPanels.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"

#include <QAction>
#include <QMainWindow>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

StartPageSwitch::StartPageSwitch(QMainWindow* window, WindowPanels* panels, FileActions* file,
                                 NavigationActions* navigation)
    : QObject(window)
    , m_window(window)
    , m_panels(panels)
    , m_file(file)
    , m_navigation(navigation)
{}

void StartPageSwitch::show(Workspace* workspace)
{
    if (m_page)
        return;
    m_workspace = workspace;
    m_page = new StartPage(m_file->recentFiles(), ProgramFiles::folder(ProgramFiles::Kind::Examples));
    // The page may go with what it asks for, so that it is not asked in the middle of its own work.
    connect(m_page, &StartPage::leaveRequested, this, &StartPageSwitch::leave, Qt::QueuedConnection);
    connect(m_page, &StartPage::newRequested, m_file, &FileActions::createSized, Qt::QueuedConnection);
    connect(m_page, &StartPage::openRequested, m_file->openAction(), &QAction::trigger, Qt::QueuedConnection);
    connect(m_page, &StartPage::projectRequested, m_file, &FileActions::openPath, Qt::QueuedConnection);
    connect(m_page, &StartPage::exampleRequested, m_file, &FileActions::openExample, Qt::QueuedConnection);
    // Whatever is done to the project shows it.
    const EditSession* session = workspace->session();
    connect(session, &EditSession::selectionChanged, m_page, &StartPage::leaveRequested);
    connect(session, &EditSession::currentScreenChanged, m_page, &StartPage::leaveRequested);
    connect(session->undoStack(), &QUndoStack::indexChanged, m_page, &StartPage::leaveRequested);
    m_panels->setAllHidden(true);
    workspace->canvasPanel()->hide();
    m_navigation->setWorkspace(nullptr);
    m_window->centralWidget()->layout()->addWidget(m_page);
    m_page->show();
    m_page->refresh();
}

void StartPageSwitch::leave()
{
    if (!m_page)
        return;
    delete std::exchange(m_page, nullptr);
    m_panels->setAllHidden(false);
    if (!m_workspace)
        return;
    m_navigation->setWorkspace(m_workspace);
    m_workspace->canvasPanel()->show();
    m_workspace->canvas()->setFocus();
    Q_EMIT left();
}

} // namespace Korvex::Meridane::Designer
