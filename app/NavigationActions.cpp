#include "app/NavigationActions.h"

#include "app/CanvasPanel.h"
#include "app/CoreText.h"
#include "app/ScreenTabs.h"
#include "app/WindowAction.h"
#include "app/WindowPanels.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/project/Project.h"
#include "host/core/sheet/PropertySheet.h"

#include <QMenu>

namespace Korvex::Meridane::Designer {

NavigationActions::NavigationActions(WindowPanels* panels, QObject* parent)
    : QObject(parent)
    , m_panels(panels)
{
    const auto add = [this](const char* name, const char* icon, const QString& text, const QKeySequence& shortcut,
                            auto run) {
        auto* action = new WindowAction(QString::fromLatin1(icon), text, {shortcut}, this);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [this, run] {
            if (m_workspace)
                run();
        });
        m_actions.append(action);
    };
    add("view.editProperties", "properties", coreText("Edit P&roperties"), QKeySequence(Qt::Key_F4),
        [this] { editProperties(); });
    add("view.goToCanvas", "canvas", coreText("&Go to Canvas"), QKeySequence(Qt::CTRL | Qt::Key_F6),
        [this] { m_workspace->canvas()->setFocus(Qt::TabFocusReason); });
    add("view.nextPanel", "panel-next", coreText("Ne&xt Panel"), QKeySequence(Qt::Key_F6), [this] { stepPanel(1); });
    add("view.previousPanel", "panel-previous", coreText("Previous Pane&l"), QKeySequence(Qt::SHIFT | Qt::Key_F6),
        [this] { stepPanel(-1); });
    add("view.nextScreen", "screen-next", coreText("&Next Screen"), QKeySequence(Qt::CTRL | Qt::Key_Tab),
        [this] { stepScreen(1); });
    add("view.previousScreen", "screen-previous", coreText("Pre&vious Screen"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), [this] { stepScreen(-1); });
    m_screenSteps = m_actions.last(2);
}

void NavigationActions::addTo(QMenu* menu)
{
    menu->addActions(m_actions);
}

void NavigationActions::setWorkspace(Workspace* workspace)
{
    if (m_project)
        m_project->disconnect(this);
    m_workspace = workspace;
    m_project = workspace ? workspace->session()->project() : nullptr;
    if (m_project) {
        connect(m_project, &Project::objectAdded, this, &NavigationActions::update);
        connect(m_project, &Project::objectRemoved, this, &NavigationActions::update);
    }
    update();
}

/// Enables what can act: with one screen there is none to go to.
void NavigationActions::update()
{
    for (QAction* action : std::as_const(m_actions))
        action->setEnabled(m_workspace);
    const bool hasOthers = m_project && m_project->screens().size() > 1;
    for (QAction* action : std::as_const(m_screenSteps))
        action->setEnabled(hasOthers);
}

void NavigationActions::editProperties()
{
    Q_EMIT propertiesRequested();
    m_workspace->sheet()->focusFirstField();
}

void NavigationActions::stepScreen(int steps)
{
    m_workspace->canvasPanel()->tabs()->step(steps);
}

void NavigationActions::stepPanel(int steps)
{
    m_panels->stepFocus(m_workspace->canvas(), steps);
}

} // namespace Korvex::Meridane::Designer
