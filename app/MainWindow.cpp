#include "app/MainWindow.h"

#include "app/AppSettings.h"
#include "app/CanvasImageDrop.h"
#include "app/CanvasPanel.h"
#include "app/CoreText.h"
#include "app/EditActions.h"
#include "app/ElementPalette.h"
#include "app/ElementPicture.h"
#include "app/FileActions.h"
#include "app/HelpActions.h"
#include "app/HistoryPanel.h"
#include "app/ImageActions.h"
#include "app/ImagePanel.h"
#include "app/MenuText.h"
#include "app/MessageBar.h"
#include "app/OutputActions.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectDocument.h"
#include "app/ProjectTree.h"
#include "app/ScreenTabs.h"
#include "app/StatusReadout.h"
#include "app/ViewActions.h"
#include "app/WindowAction.h"
#include "app/WindowLayout.h"
#include "app/Workspace.h"
#include "app/ZoomBox.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/widgets/RecentColors.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int LeftWidth = 272;
constexpr int RightWidth = 320;
constexpr int ReadingDelay = 200; // ms

} // namespace

MainWindow::MainWindow(UserPrompts* prompts, QWidget* parent)
    : QMainWindow(parent)
    , m_document(std::make_unique<ProjectDocument>())
    , m_palette(new ElementPalette)
    , m_problems(new ProblemsPanel)
    , m_messages(new MessageBar)
    , m_readout(new StatusReadout)
    , m_zoomBox(new ZoomBox)
    , m_file(new FileActions(m_document.get(), prompts, m_messages, this))
    , m_edit(new EditActions(m_messages, this))
    , m_view(new ViewActions(this))
    , m_output(new OutputActions(m_document.get(), prompts, m_messages, this))
    , m_images(new ImageActions(prompts, m_messages, this))
    , m_help(new HelpActions(this))
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
    makePanels();
    makeMenus();
    makeToolBar();
    makeStatusBar();

    connect(m_document.get(), &ProjectDocument::sessionAboutToClose, this, &MainWindow::detach);
    connect(m_document.get(), &ProjectDocument::sessionChanged, this, &MainWindow::attach);
    connect(m_document.get(), &ProjectDocument::titleChanged, this, &MainWindow::updateTitle);
    connect(m_file, &FileActions::problemsFound, this, &MainWindow::showProblems);
    connect(m_file->quitAction(), &QAction::triggered, this, &QWidget::close);
    connect(m_output, &OutputActions::problemsFound, this, &MainWindow::showProblems);
    connect(m_problems, &ProblemsPanel::objectRequested, this,
            [this](const QString& object) { m_workspace->goTo(object); });
    connect(m_edit, &EditActions::renameRequested, this, [this] {
        reveal(m_treeDock);
        m_workspace->tree()->renameCurrent();
    });
    connect(m_edit, &EditActions::imagesPasted, m_images, &ImageActions::placeData);
    connect(m_images, &ImageActions::imported, this, [this] { reveal(m_imagesDock); });
    connect(m_zoomBox, &ZoomBox::zoomRequested, m_view, &ViewActions::setZoom);
    connect(m_zoomBox, &ZoomBox::fitRequested, m_view, &ViewActions::fit);

    RecentColors::shared().load(AppSettings());
    arrangePanels();
    m_document->create(ProjectDocument::untitledName(), ProjectDocument::DefaultDisplaySize);
}

MainWindow::~MainWindow()
{
    m_document->disconnect(this);
    detach();
}

bool MainWindow::openProject(const QString& path)
{
    return m_file->openPath(path);
}

QSize MainWindow::sizeHint() const
{
    return QSize(1280, 800).boundedTo(screen()->availableSize());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_workspace->canvas()->cancelGesture();
    if (!m_file->mayClose()) {
        event->ignore();
        return;
    }
    WindowLayout::store(this);
    AppSettings settings;
    RecentColors::shared().save(settings);
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
        const QList<QWidget*> widgets = findChildren<QWidget*>();
        for (QWidget* widget : widgets)
            widget->update();
    }
}

QDockWidget* MainWindow::addPanel(const QString& name, const QString& title, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(MenuText::withoutReservedMnemonic(title), this);
    dock->setObjectName(name);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::makePanels()
{
    m_paletteDock = addPanel(QStringLiteral("PaletteDock"), coreText("Elements"), Qt::LeftDockWidgetArea);
    m_treeDock = addPanel(QStringLiteral("TreeDock"), coreText("Project"), Qt::LeftDockWidgetArea);
    m_imagesDock = addPanel(QStringLiteral("ImagesDock"), coreText("Images"), Qt::LeftDockWidgetArea);
    tabifyDockWidget(m_treeDock, m_imagesDock);
    m_sheetDock = addPanel(QStringLiteral("SheetDock"), coreText("Properties"), Qt::RightDockWidgetArea);
    m_historyDock = addPanel(QStringLiteral("HistoryDock"), coreText("History"), Qt::RightDockWidgetArea);
    m_problemsDock = addPanel(QStringLiteral("ProblemsDock"), coreText("Problems"), Qt::BottomDockWidgetArea);
    m_paletteDock->setWidget(m_palette);
    m_problemsDock->setWidget(m_problems);
    m_problemsDock->hide();
}

void MainWindow::makeMenus()
{
    const auto addMenu = [this](const char* title) {
        return menuBar()->addMenu(MenuText::withoutReservedMnemonic(coreText(title)));
    };
    QMenu* file = addMenu("&File");
    m_file->addTo(file);
    file->addSeparator();
    m_images->addTo(file);
    m_output->addTo(file);
    file->addSeparator();
    m_file->addEndTo(file);
    m_edit->addTo(addMenu("&Edit"));

    QMenu* view = addMenu("&View");
    m_view->addTo(view);
    QMenu* panels = view->addMenu(coreText("&Panels"));
    for (const QDockWidget* dock :
         {m_paletteDock, m_treeDock, m_imagesDock, m_sheetDock, m_historyDock, m_problemsDock})
        panels->addAction(dock->toggleViewAction());
    view->addSeparator();
    const auto add = [this, view](const char* text, const QKeySequence& shortcut, auto run) {
        auto* action = new WindowAction({}, coreText(text), {shortcut}, this);
        connect(action, &QAction::triggered, this, run);
        view->addAction(action);
    };
    add("Edit P&roperties", QKeySequence(Qt::Key_F4), [this] { editProperties(); });
    add("&Go to Canvas", QKeySequence(Qt::Key_F6), [this] { m_workspace->canvas()->setFocus(); });
    add("&Next Screen", QKeySequence(Qt::CTRL | Qt::Key_Tab), [this] { m_workspace->canvasPanel()->tabs()->step(1); });
    add("Pre&vious Screen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
        [this] { m_workspace->canvasPanel()->tabs()->step(-1); });

    m_help->addTo(addMenu("&Help"));
}

void MainWindow::makeToolBar()
{
    QToolBar* bar = addToolBar(coreText("Tool Bar"));
    bar->setObjectName(QStringLiteral("ToolBar"));
    bar->setMovable(false);
    bar->setIconSize(QSize(20, 20));
    bar->addActions({m_file->newAction(), m_file->openAction(), m_file->saveAction()});
    bar->addSeparator();
    bar->addActions({m_edit->undoAction(), m_edit->redoAction()});
    bar->addSeparator();
    bar->addActions({m_edit->duplicateAction(), m_edit->deleteAction()});
    bar->addSeparator();
    bar->addActions(m_edit->orderActions());
    bar->addSeparator();
    bar->addActions({m_view->zoomOutAction(), m_view->zoomInAction(), m_view->fitAction()});
    bar->addSeparator();
    bar->addActions({m_output->checkAction(), m_output->previewAction(), m_output->exportAction()});
}

void MainWindow::makeStatusBar()
{
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addPermanentWidget(m_readout);
    statusBar()->addPermanentWidget(m_zoomBox);
}

void MainWindow::arrangePanels()
{
    resize(sizeHint());
    if (WindowLayout::restore(this))
        return;
    resizeDocks({m_paletteDock, m_sheetDock}, {LeftWidth, RightWidth}, Qt::Horizontal);
    resizeDocks({m_paletteDock, m_treeDock}, {380, 300}, Qt::Vertical);
    resizeDocks({m_sheetDock, m_historyDock}, {500, 180}, Qt::Vertical);
    m_treeDock->raise();
}

void MainWindow::attach(EditSession* session)
{
    m_workspace = std::make_unique<Workspace>(session, m_palette);
    CanvasView* canvas = m_workspace->canvas();
    centralWidget()->layout()->addWidget(m_workspace->canvasPanel());
    m_treeDock->setWidget(m_workspace->tree());
    ImagePanel* images = m_workspace->images();
    m_imagesDock->setWidget(images);
    m_historyDock->setWidget(m_workspace->history());
    // Last: the sheet's rows come and go and are appended to the order of the Tab key, where they follow its heading.
    m_sheetDock->setWidget(m_workspace->sheet());
    m_workspace->tree()->addActions(m_edit->treeActions());
    m_edit->setSession(session);
    m_images->setWorkspace(m_workspace.get());
    m_view->setCanvas(canvas);
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
    for (QWidget* panel : {static_cast<QWidget*>(m_workspace->tree()), static_cast<QWidget*>(images),
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
    Project* project = m_document->project();
    const QList<Problem> problems = ProjectStore::readAllScreens(project);
    project->notifyUpdateProjectBrowser();
    addProblems(problems);
}

void MainWindow::showWholeScreen()
{
    // Only a window that is laid out has room to fit a screen into.
    const auto show = [this] {
        if (isVisible() && !std::exchange(m_fitted, true))
            m_view->showWhole();
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void MainWindow::detach()
{
    m_edit->setSession(nullptr);
    m_images->setWorkspace(nullptr);
    m_view->setCanvas(nullptr);
    m_workspace.reset();
}

void MainWindow::showProblems(const QList<Problem>& problems, const QString& consequence)
{
    m_problems->setProblems(problems);
    if (problems.isEmpty()) {
        m_problemsDock->hide();
        return;
    }
    const bool hasError = std::any_of(problems.cbegin(), problems.cend(), [](const Problem& problem) {
        return problem.severity == Problem::Severity::Error;
    });
    const QString found =
        problems.size() == 1 ? problems.constFirst().text() : coreText("%1 problems were found.").arg(problems.size());
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

void MainWindow::updateTitle()
{
    setWindowTitle(coreText("%1[*] – Meridane Designer").arg(m_document->name()));
    setWindowModified(m_document->isModified());
}

void MainWindow::reveal(QDockWidget* dock)
{
    dock->show();
    dock->raise();
}

void MainWindow::editProperties()
{
    reveal(m_sheetDock);
    // The first editor of the sheet; its rows come before whatever follows in the window's order.
    PropertySheet* sheet = m_workspace->sheet();
    for (QWidget* widget = sheet->nextInFocusChain(); widget && widget != sheet; widget = widget->nextInFocusChain()) {
        if (sheet->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus)) {
            widget->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

} // namespace Korvex::Meridane::Designer
