// The menus, tool bar and status bar of the main window: which actions stand where.

#include "app/ArrangeActions.h"
#include "app/CanvasActions.h"
#include "app/CoreText.h"
#include "app/EditActions.h"
#include "app/FileActions.h"
#include "app/HelpActions.h"
#include "app/ImageActions.h"
#include "app/MainWindow.h"
#include "app/MenuText.h"
#include "app/NavigationActions.h"
#include "app/OutputActions.h"
#include "app/ProblemIndicator.h"
#include "app/ProjectPanels.h"
#include "app/ResultPanels.h"
#include "app/SheetActions.h"
#include "app/StatusReadout.h"
#include "app/ViewActions.h"
#include "app/WindowPanels.h"
#include "app/ZoomBox.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

namespace Korvex::Meridane::Designer {

void MainWindow::makeMenus()
{
    const auto addMenu = [this](const QString& title) {
        return menuBar()->addMenu(MenuText::withoutReservedMnemonic(title));
    };
    QMenu* file = addMenu(coreText("&File"));
    m_file->addTo(file);
    file->addSeparator();
    m_images->addTo(file);
    file->addSeparator();
    m_output->addTo(file);
    file->addSeparator();
    m_file->addEndTo(file);
    QMenu* edit = addMenu(coreText("&Edit"));
    m_edit->addTo(edit);
    edit->addSeparator();
    edit->addAction(m_edit->addScreenAction());
    m_projectPanels->addTo(edit);
    m_sheetActions->addTo(edit);
    m_arrange->addTo(addMenu(coreText("&Arrange")), m_edit->orderActions());

    QMenu* view = addMenu(coreText("&View"));
    m_view->addTo(view);
    m_canvas->addTo(view);
    view->addSeparator();
    m_results->addTo(view);
    m_panels->addTo(view->addMenu(coreText("&Panels")));
    view->addSeparator();
    m_navigation->addTo(view);
    view->addSeparator();
    m_view->addEndTo(view);

    m_help->addTo(addMenu(coreText("&Help")));
    const QList<QAction*> menus = menuBar()->actions();
    for (const QAction* menu : menus)
        MenuText::makeMnemonicsUnique(menu->menu());
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
    bar->addActions({m_arrange->groupAction(), m_arrange->ungroupAction()});
    bar->addActions(m_arrange->alignActions());
    bar->addSeparator();
    bar->addActions({m_canvas->snapAction(), m_canvas->gridAction()});
    bar->addSeparator();
    bar->addActions({m_view->zoomOutAction(), m_view->zoomInAction(), m_view->fitAction()});
    bar->addSeparator();
    bar->addActions({m_output->checkAction(), m_output->previewAction(), m_output->exportAction()});
}

void MainWindow::makeStatusBar()
{
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addPermanentWidget(m_projectPanels->indicator());
    statusBar()->addPermanentWidget(m_readout);
    statusBar()->addPermanentWidget(m_zoomBox);
}

} // namespace Korvex::Meridane::Designer
