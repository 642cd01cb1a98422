#include "app/ProjectPanels.h"

#include "app/CanvasPanel.h"
#include "app/CoreText.h"
#include "app/FindPanel.h"
#include "app/FontPanel.h"
#include "app/ImageList.h"
#include "app/ImagePanel.h"
#include "app/LongWork.h"
#include "app/MessageBar.h"
#include "app/PendingEdit.h"
#include "app/ProblemIndicator.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectTree.h"
#include "app/ScreenActions.h"
#include "app/ScreenListPanel.h"
#include "app/ScreenTabs.h"
#include "app/ScreensPanel.h"
#include "app/UserPrompts.h"
#include "app/WindowAction.h"
#include "app/WindowPanels.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/ProblemFix.h"
#include "host/core/project/ProblemMonitor.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"

#include <QDir>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

namespace {

QString startFolder(QStandardPaths::StandardLocation location)
{
    const QString folder = QStandardPaths::writableLocation(location);
    return QDir(folder).exists() ? folder : QDir::homePath();
}

} // namespace

ProjectPanels::ProjectPanels(QMainWindow* window, WindowPanels* panels, ProblemsPanel* problems,
                             QDockWidget* problemsDock, UserPrompts* prompts, MessageBar* messages)
    : QObject(window)
    , m_window(window)
    , m_panels(panels)
    , m_problems(problems)
    , m_problemsDock(problemsDock)
    , m_prompts(prompts)
    , m_messages(messages)
    , m_screensDock(panels->add(QStringLiteral("ScreensDock"), coreText("Screens"), Qt::LeftDockWidgetArea))
    , m_fontsDock(panels->add(QStringLiteral("FontsDock"), coreText("Fonts"), Qt::LeftDockWidgetArea))
    , m_findDock(panels->add(QStringLiteral("FindDock"), coreText("Find"), Qt::BottomDockWidgetArea))
    , m_screenActions(new ScreenActions(prompts, messages, this))
    , m_indicator(new ProblemIndicator)
    , m_findAction(new WindowAction(QStringLiteral("find"), coreText("&Find in Project…"),
                                    {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F)}, this))
    , m_referencesAction(new WindowAction(QStringLiteral("references"), coreText("Find Re&ferences"),
                                          {QKeySequence(Qt::SHIFT | Qt::Key_F12)}, this))
{
    m_findAction->setObjectName(QStringLiteral("find.inProject"));
    m_referencesAction->setObjectName(QStringLiteral("find.references"));
    connect(m_findAction, &QAction::triggered, this, &ProjectPanels::findText);
    connect(m_referencesAction, &QAction::triggered, this, &ProjectPanels::findReferences);
    connect(m_indicator, &QToolButton::clicked, this, [this] {
        WindowPanels::reveal(m_problemsDock);
        m_problems->setFocus(Qt::OtherFocusReason);
    });
    connect(problems, &ProblemsPanel::objectRequested, this, &ProjectPanels::showPlace);
    connect(problems, &ProblemsPanel::fixRequested, this, &ProjectPanels::fix);
    connect(m_screenActions, &ScreenActions::renameRequested, this, [this](Screen* screen) {
        WindowPanels::reveal(m_screensDock);
        m_screens->rename(screen);
    });
    updateActions();
}

ProjectPanels::~ProjectPanels() = default;

void ProjectPanels::arrange(QDockWidget* tree, QDockWidget* images)
{
    m_window->tabifyDockWidget(tree, m_screensDock);
    m_window->tabifyDockWidget(images, m_fontsDock);
    m_window->tabifyDockWidget(m_problemsDock, m_findDock);
    m_findDock->hide();
}

void ProjectPanels::addTo(QMenu* menu)
{
    m_screenActions->addTo(menu->addMenu(coreText("Sc&reen")));
    menu->addSeparator();
    menu->addAction(m_findAction);
    menu->addAction(m_referencesAction);
}

void ProjectPanels::setWorkspace(Workspace* workspace)
{
    m_monitor.reset();
    delete m_screenList;
    delete m_fonts;
    delete m_find;
    m_screenList = nullptr;
    m_screens = nullptr;
    m_fonts = nullptr;
    m_find = nullptr;
    m_workspace = workspace;
    m_problems->setProject(workspace ? workspace->session()->project() : nullptr);
    m_screenActions->setSession(workspace ? workspace->session() : nullptr);
    if (workspace)
        makePanels(workspace);
    showCheckedProblems();
    updateActions();
}

void ProjectPanels::makePanels(Workspace* workspace)
{
    EditSession* session = workspace->session();
    m_screens = new ScreensPanel(session);
    m_screenList = new ScreenListPanel(m_screens, m_screenActions);
    m_fonts = new FontPanel(session);
    m_find = new FindPanel(session);
    m_screensDock->setWidget(m_screenList);
    m_fontsDock->setWidget(m_fonts);
    m_findDock->setWidget(m_find);
    for (QWidget* panel :
         {static_cast<QWidget*>(m_screenList), static_cast<QWidget*>(m_fonts), static_cast<QWidget*>(m_find)})
        panel->show();
    workspace->tree()->addAction(m_referencesAction);
    connect(m_screens, &ScreensPanel::menuRequested, m_screenActions, &ScreenActions::showMenu);
    connect(m_screens, &ScreensPanel::removalRequested, m_screenActions, &ScreenActions::remove);
    connect(m_screens, &ScreensPanel::refused, this, &ProjectPanels::refuse);
    connect(workspace->canvasPanel()->tabs(), &ScreenTabs::menuRequested, m_screenActions, &ScreenActions::showMenu);
    connect(m_fonts, &FontPanel::importRequested, this, &ProjectPanels::importFonts);
    connect(m_fonts, &FontPanel::usesRequested, this, &ProjectPanels::listReferences);
    connect(m_fonts, &FontPanel::refused, this, &ProjectPanels::refuse);
    connect(m_find, &FindPanel::placeRequested, this, &ProjectPanels::showPlace);
    connect(session, &EditSession::selectionChanged, m_find, [this] { updateActions(); });
    m_monitor = std::make_unique<ProblemMonitor>(session->project());
    connect(m_monitor.get(), &ProblemMonitor::problemsChanged, this, &ProjectPanels::showCheckedProblems);
}

void ProjectPanels::showPlace(const QString& object, const QString& property)
{
    if (!m_workspace)
        return;
    m_workspace->canvas()->cancelGesture();
    if (object.isEmpty())
        m_workspace->session()->setSelection({m_workspace->session()->project()});
    else
        m_workspace->goTo(object);
    if (!property.isEmpty()) {
        // The sheet follows the selection first.
        QMetaObject::invokeMethod(
            m_workspace, [this, property] { focusEditor(property); }, Qt::QueuedConnection);
    }
}

void ProjectPanels::check()
{
    if (!m_monitor)
        return;
    PendingEdit::finish();
    LongWork work(coreText("Checking the project…"));
    if (!m_monitor->checkAll([&work](int done, int total) { return work.step(done, total); }))
        return;
    const QList<Problem> problems = m_monitor->problems();
    if (problems.isEmpty())
        m_messages->showMessage(coreText("The project has no problems."), MessageBar::Kind::Information);
    Q_EMIT checked(problems);
}

void ProjectPanels::focusEditor(const QString& property)
{
    PropertyEditor* editor = m_workspace ? m_workspace->sheet()->editor(property) : nullptr;
    if (!editor)
        return;
    for (QDockWidget* dock : m_panels->docks()) {
        if (dock->isAncestorOf(editor))
            WindowPanels::reveal(dock);
    }
    m_workspace->sheet()->ensureWidgetVisible(editor);
    for (QWidget* widget = editor; widget; widget = widget->nextInFocusChain()) {
        const bool isInside = widget == editor || editor->isAncestorOf(widget);
        if (isInside && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)) {
            widget->setFocus(Qt::ShortcutFocusReason);
            return;
        }
        if (!isInside || widget->nextInFocusChain() == editor)
            break;
    }
    editor->setFocus(Qt::ShortcutFocusReason);
}

void ProjectPanels::findText()
{
    WindowPanels::reveal(m_findDock);
    m_find->editText();
}

void ProjectPanels::findReferences()
{
    const QString target = referenceTarget();
    if (!target.isEmpty())
        listReferences(target);
}

void ProjectPanels::listReferences(const QString& name)
{
    WindowPanels::reveal(m_findDock);
    m_find->showReferences(name);
}

/// What the user means: the image or font whose list has the focus, else the object that is selected.
QString ProjectPanels::referenceTarget() const
{
    if (!m_workspace)
        return {};
    const ImageList* images = m_workspace->images()->list();
    if (images->hasFocus() && !images->selectedImages().isEmpty())
        return images->selectedImages().constFirst();
    if (m_fonts->isAncestorOf(m_window->focusWidget()) && !m_fonts->selectedFont().isEmpty())
        return m_fonts->selectedFont();
    const QList<DesignerObject*>& selection = m_workspace->session()->selection();
    if (!selection.isEmpty())
        return ObjectTree::name(selection.constFirst());
    const Screen* screen = m_workspace->session()->currentScreen();
    return screen ? screen->getIdName() : QString();
}

void ProjectPanels::importFonts()
{
    const QStringList files = m_prompts->chooseFonts(startFolder(QStandardPaths::FontsLocation));
    if (!files.isEmpty() && m_fonts)
        m_fonts->importFiles(files);
}

void ProjectPanels::fix(const Problem& problem)
{
    if (!m_workspace)
        return;
    EditSession* session = m_workspace->session();
    QString file;
    if (ProblemFix::needsImage(problem)) {
        const DesignerObject* object = ProblemFix::object(session->project(), problem);
        const auto link = object ? object->getProperty(problem.property) : QSharedPointer<DesignerProperty>();
        file = m_prompts->chooseReplacement(link ? link->valueString() : QString(),
                                            startFolder(QStandardPaths::PicturesLocation));
        if (file.isEmpty())
            return;
    }
    const EditResult result = ProblemFix::apply(session, problem, file);
    if (!result.accepted) {
        refuse(result.message);
        return;
    }
    showPlace(problem.object, {});
    m_monitor->finish(); // who mends one problem after the other sees what is left
}

void ProjectPanels::showCheckedProblems()
{
    const QList<Problem> problems = m_monitor ? m_monitor->problems() : QList<Problem>();
    m_problems->setCheckedProblems(problems);
    m_indicator->showProblems(problems);
    m_problemsDock->setWindowTitle(problems.isEmpty() ? coreText("Problems")
                                                      : coreText("Problems (%1)").arg(problems.size()));
}

void ProjectPanels::updateActions()
{
    m_findAction->setEnabled(m_workspace);
    m_referencesAction->setEnabled(
        m_workspace && (m_workspace->session()->currentScreen() || !m_workspace->session()->selection().isEmpty()));
}

void ProjectPanels::refuse(const QString& message)
{
    if (!message.isEmpty())
        m_messages->showMessage(message, MessageBar::Kind::Error);
}

} // namespace Korvex::Meridane::Designer
