#include "app/MainWindow.h"

#include "app/AppSettings.h"
#include "app/Appearance.h"
#include "app/ArrangeActions.h"
#include "app/CanvasActions.h"
#include "app/CanvasImageDrop.h"
#include "app/CanvasMenu.h"
#include "app/CanvasPanel.h"
#include "app/CommandPalette.h"
#include "app/CommandSource.h"
#include "app/CoreText.h"
#include "app/EditActions.h"
#include "app/ElementPalette.h"
#include "app/ElementPicture.h"
#include "app/FileActions.h"
#include "app/HelpActions.h"
#include "app/HistoryPanel.h"
#include "app/ImageActions.h"
#include "app/ImagePanel.h"
#include "app/MessageBar.h"
#include "app/NavigationActions.h"
#include "app/OutputActions.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectDocument.h"
#include "app/ProjectPanels.h"
#include "app/ProjectThumbnails.h"
#include "app/ProjectTree.h"
#include "app/ProjectTreePanel.h"
#include "app/ResultPanels.h"
#include "app/SheetActions.h"
#include "app/ShortcutSettings.h"
#include "app/StartPageSwitch.h"
#include "app/StatusReadout.h"
#include "app/ViewActions.h"
#include "app/WindowPanels.h"
#include "app/Workspace.h"
#include "app/ZoomBox.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/sheet/SectionFolds.h"
#include "host/core/widgets/RecentColors.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int ReadingDelay = 200; // ms
constexpr int ThumbnailDelay = 800; // ms after a project was opened or saved

} // namespace

MainWindow::MainWindow(UserPrompts* prompts, QWidget* parent)
    : QMainWindow(parent)
    , m_document(std::make_unique<ProjectDocument>())
    , m_panels(new WindowPanels(this))
    , m_shortcuts(new ShortcutSettings(this))
    , m_palette(new ElementPalette)
    , m_problems(new ProblemsPanel)
    , m_messages(new MessageBar)
    , m_readout(new StatusReadout)
    , m_zoomBox(new ZoomBox)
    , m_file(new FileActions(m_document.get(), prompts, m_messages, this))
    , m_edit(new EditActions(m_messages, this))
    , m_arrange(new ArrangeActions(m_messages, this))
    , m_view(new ViewActions(this))
    , m_canvas(new CanvasActions(this))
    , m_output(new OutputActions(m_document.get(), prompts, m_messages, this))
    , m_images(new ImageActions(prompts, m_messages, this))
    , m_navigation(new NavigationActions(m_panels, this))
    , m_startPage(new StartPageSwitch(this, m_panels, m_file, m_navigation))
    , m_sheetActions(new SheetActions(this))
    , m_help(new HelpActions(this, m_shortcuts, m_messages))
    , m_commands(new CommandPalette(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/meridane/designer/icons/application.svg")));
    setDockOptions(AnimatedDocks | AllowTabbedDocks | AllowNestedDocks);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    auto* center = new QWidget;
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    setCentralWidget(center);
    makePanels(prompts);
    makeMenus();
    makeToolBar();
    makeStatusBar();

    connect(m_document.get(), &ProjectDocument::sessionAboutToClose, this, &MainWindow::detach);
    connect(m_document.get(), &ProjectDocument::sessionChanged, this, &MainWindow::attach);
    connect(m_document.get(), &ProjectDocument::titleChanged, this, &MainWindow::updateTitle);
    connect(m_file, &FileActions::problemsFound, this, &MainWindow::showProblems);
    connect(m_file->quitAction(), &QAction::triggered, this, &QWidget::close);
    connect(m_output, &OutputActions::problemsFound, this, &MainWindow::showProblems);
    connect(m_output, &OutputActions::checkRequested, m_projectPanels, &ProjectPanels::check);
    connect(m_projectPanels, &ProjectPanels::checked, this,
            [this](const QList<Problem>& problems) { showProblems(problems); });
    connect(m_edit, &EditActions::renameRequested, this, [this] {
        WindowPanels::reveal(m_treeDock);
        m_workspace->tree()->renameCurrent();
    });
    connect(m_edit, &EditActions::imagesPasted, m_images, &ImageActions::placeData);
    connect(m_images, &ImageActions::imported, this, [this] { WindowPanels::reveal(m_imagesDock); });
    connect(m_zoomBox, &ZoomBox::zoomRequested, m_view, &ViewActions::setZoom);
    connect(m_zoomBox, &ZoomBox::fitRequested, m_view, &ViewActions::fit);

    connect(m_navigation, &NavigationActions::propertiesRequested, this, [this] { WindowPanels::reveal(m_sheetDock); });
    connect(m_sheetActions, &SheetActions::sheetRequested, this, [this] { WindowPanels::reveal(m_sheetDock); });

    connect(m_startPage, &StartPageSwitch::left, this, [this] {
        m_fitted = false;
        showWholeScreen();
    });
    connect(m_file, &FileActions::startPageRequested, this, &MainWindow::showStartPage);
    connect(m_file, &FileActions::projectStored, this, &MainWindow::keepThumbnail);
    connect(m_help, &HelpActions::commandsRequested, this, &MainWindow::showCommands);

    m_shortcuts->load();
    RecentColors::shared().load(AppSettings());
    SectionFolds::shared().load(AppSettings());
    resize(sizeHint());
    m_panels->arrange();
    m_document->create(ProjectDocument::untitledName(), ProjectDocument::DefaultDisplaySize);
}

MainWindow::~MainWindow()
{
    m_document->disconnect(this);
    detach();
}

StartPage* MainWindow::startPage() const
{
    return m_startPage->page();
}

void MainWindow::showStartPage()
{
    m_startPage->show(m_workspace.get());
}

void MainWindow::keepThumbnail()
{
    QTimer::singleShot(ThumbnailDelay, m_workspace.get(),
                       [this] { ProjectThumbnails::store(m_document->session(), m_document->project()->folder()); });
}

bool MainWindow::openProject(const QString& path)
{
    return m_file->openPath(path);
}

QSize MainWindow::sizeHint() const
{
    // The frame that the desktop puts around a window is not known before it is shown.
    constexpr QSize Frame(8, 40);
    return QSize(1280, 800).boundedTo(screen()->availableSize() - Frame);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_workspace->canvas()->cancelGesture();
    if (!m_file->mayClose()) {
        event->ignore();
        return;
    }
    m_panels->store();
    AppSettings settings;
    RecentColors::shared().save(settings);
    SectionFolds::shared().save(settings);
    event->accept();
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    showWholeScreen();
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    // Icons are drawn in the palette's colours, which widgets that keep pixmaps do not know.
    if (event->type() == QEvent::ApplicationPaletteChange) {
        Appearance::follow();
        const QList<QWidget*> widgets = findChildren<QWidget*>();
        for (QWidget* widget : widgets)
            widget->update();
    }
}

void MainWindow::makePanels(UserPrompts* prompts)
{
    m_paletteDock = m_panels->add(QStringLiteral("PaletteDock"), coreText("Elements"), Qt::LeftDockWidgetArea);
    m_treeDock = m_panels->add(QStringLiteral("TreeDock"), coreText("Project"), Qt::LeftDockWidgetArea);
    m_imagesDock = m_panels->add(QStringLiteral("ImagesDock"), coreText("Images"), Qt::LeftDockWidgetArea);
    tabifyDockWidget(m_treeDock, m_imagesDock);
    m_sheetDock = m_panels->add(QStringLiteral("SheetDock"), coreText("Properties"), Qt::RightDockWidgetArea);
    m_historyDock = m_panels->add(QStringLiteral("HistoryDock"), coreText("History"), Qt::RightDockWidgetArea);
    m_problemsDock = m_panels->add(QStringLiteral("ProblemsDock"), coreText("Problems"), Qt::BottomDockWidgetArea);
    m_paletteDock->setWidget(m_palette);
    m_problemsDock->setWidget(m_problems);
    m_projectPanels = new ProjectPanels(this, m_panels, m_problems, m_problemsDock, prompts, m_messages);
    m_projectPanels->arrange(m_treeDock, m_imagesDock);
    m_results = new ResultPanels(m_panels, this);
    m_results->arrange(m_historyDock, m_problemsDock);
    m_problemsDock->hide();
}

void MainWindow::attach(EditSession* session)
{
    m_workspace = std::make_unique<Workspace>(session, m_palette);
    CanvasView* canvas = m_workspace->canvas();
    centralWidget()->layout()->addWidget(m_workspace->canvasPanel());
    m_treeDock->setWidget(m_workspace->treePanel());
    ImagePanel* images = m_workspace->images();
    m_imagesDock->setWidget(images);
    m_historyDock->setWidget(m_workspace->history());
    const QList<QAction*> context =
        m_edit->contextActions() + QList<QAction*>{nullptr} + m_arrange->contextActions() + QList<QAction*>{nullptr};
    m_workspace->tree()->offer(context + QList<QAction*>{m_edit->addScreenAction()});
    m_edit->setSession(session);
    m_arrange->setSession(session);
    m_projectPanels->setWorkspace(m_workspace.get());
    m_results->setWorkspace(m_workspace.get());
    // Last: the sheet's rows come and go and are appended to the order of the Tab key, where they follow its heading.
    m_sheetDock->setWidget(m_workspace->sheet());
    m_sheetActions->setSheet(m_workspace->sheet());
    m_output->setSession(session);
    m_images->setWorkspace(m_workspace.get());
    m_view->setCanvas(canvas);
    m_canvas->setCanvas(canvas);
    new CanvasMenu(canvas, context + QList<QAction*>{m_edit->selectAllAction(), m_edit->addScreenAction()});
    m_navigation->setWorkspace(m_workspace.get());
    connect(images, &ImagePanel::importRequested, m_images, &ImageActions::importFiles);
    connect(images, &ImagePanel::replaceRequested, m_images, &ImageActions::replaceFile);
    connect(images, &ImagePanel::placeRequested, m_images, &ImageActions::placeImages);
    connect(images, &ImagePanel::dataOffered, m_images, &ImageActions::importData);
    connect(images, &ImagePanel::removalRefused, m_images, &ImageActions::explainRefusedRemoval);
    connect(m_workspace->imageDrop(), &CanvasImageDrop::dropped, m_images, &ImageActions::placeDataAt);
    connect(canvas, &CanvasView::zoomChanged, m_zoomBox, &ZoomBox::showZoom);
    connect(canvas, &CanvasView::pointerMoved, m_readout, &StatusReadout::showPointer);
    connect(canvas, &CanvasView::readoutChanged, m_readout, &StatusReadout::showGesture);
    connect(m_palette, &ElementPalette::armed, m_workspace.get(), [this](const QString& className) {
        if (className.isEmpty())
            statusBar()->clearMessage();
        else
            statusBar()->showMessage(coreText("%1: click or drag on the screen to place it; Esc to leave it.")
                                         .arg(ElementPicture::displayName(className)));
    });
    connect(m_workspace.get(), &Workspace::refused, this,
            [this](const QString& message) { m_messages->showMessage(message, MessageBar::Kind::Error); });
    // What was complained about is settled or left behind by the next step.
    connect(m_workspace->session()->undoStack(), &QUndoStack::indexChanged, m_messages, [this] {
        if (m_messages->kind() == MessageBar::Kind::Error)
            m_messages->hide();
    });
    for (QWidget* panel : {static_cast<QWidget*>(m_workspace->treePanel()), static_cast<QWidget*>(images),
                           static_cast<QWidget*>(m_workspace->sheet()), static_cast<QWidget*>(m_workspace->history())})
        panel->show();
    m_zoomBox->showZoom(canvas->zoom());
    m_readout->clear();
    canvas->setFocus();
    m_fitted = false;
    showWholeScreen();
    updateTitle();
    // The window is usable before the screens that nobody looks at yet are read.
    QTimer::singleShot(ReadingDelay, m_workspace.get(), [this] { readRemainingScreens(); });
}

void MainWindow::readRemainingScreens()
{
    // One at a time: the window answers in between, however many there are.
    Project* project = m_document->project();
    const QVector<Screen*> screens = project->screens();
    const auto unread =
        std::find_if(screens.cbegin(), screens.cend(), [](const Screen* screen) { return !screen->isContentRead(); });
    if (unread != screens.cend()) {
        (*unread)->readContent();
        QTimer::singleShot(0, m_workspace.get(), [this] { readRemainingScreens(); });
        return;
    }
    const QList<Problem> problems = ProjectStore::readAllScreens(project);
    project->notifyUpdateProjectBrowser();
    addProblems(problems);
}

void MainWindow::showWholeScreen()
{
    // Only a window that is laid out has room to fit a screen into.
    const auto show = [this] {
        if (isVisible() && !startPage() && !std::exchange(m_fitted, true))
            m_view->showWhole();
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void MainWindow::detach()
{
    m_edit->setSession(nullptr);
    m_projectPanels->setWorkspace(nullptr);
    m_results->setWorkspace(nullptr);
    m_output->setSession(nullptr);
    m_sheetActions->setSheet(nullptr);
    m_arrange->setSession(nullptr);
    m_images->setWorkspace(nullptr);
    m_view->setCanvas(nullptr);
    m_canvas->setCanvas(nullptr);
    m_navigation->setWorkspace(nullptr);
    m_workspace.reset();
    m_startPage->leave();
}

void MainWindow::showProblems(const QList<Problem>& problems, const QString& consequence)
{
    m_problems->setProblems(problems);
    if (problems.isEmpty()) {
        if (m_problems->problems().isEmpty())
            m_problemsDock->hide();
        return;
    }
    const bool hasError = std::any_of(problems.cbegin(), problems.cend(), [](const Problem& problem) {
        return problem.severity == Problem::Severity::Error;
    });
    const QString found = problems.size() == 1
                              ? problems.constFirst().text()
                              : coreText("%n problem was found.", "%n problems were found.", int(problems.size()));
    const QString text = consequence.isEmpty() ? found : consequence + QLatin1Char(' ') + found;
    m_messages->showMessage(text, hasError ? MessageBar::Kind::Error : MessageBar::Kind::Warning, coreText("Details"),
                            [this] {
                                m_problemsDock->show();
                                m_problems->setFocus();
                            });
}

void MainWindow::addProblems(const QList<Problem>& problems)
{
    if (!problems.isEmpty())
        showProblems(m_problems->problems() + problems);
}

void MainWindow::showCommands()
{
    m_commands->open(CommandSource::actions(this) + CommandSource::insertions(m_palette)
                     + CommandSource::places(m_workspace.get()) + CommandSource::recentProjects(m_file));
}

void MainWindow::updateTitle()
{
    setWindowTitle(coreText("%1[*] – Meridane Designer").arg(m_document->name()));
    setWindowModified(m_document->isModified());
}

} // namespace Korvex::Meridane::Designer
