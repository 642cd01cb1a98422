#include "app/ResultPanels.h"

#include "app/CoreText.h"
#include "app/DevicePanel.h"
#include "app/LivePreviewPanel.h"
#include "app/QmlPanel.h"
#include "app/WindowAction.h"
#include "app/WindowPanels.h"
#include "app/Workspace.h"

#include "host/core/objects/DesignerObject.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

namespace Korvex::Meridane::Designer {

namespace {

/// Gives \a dock at least as much height as it needs to show something: it may have been opened in the place of a low panel.
/// The highest panel of the column gives it away.
void makeRoom(QDockWidget* dock)
{
    constexpr int Smallest = 300; // pixels: a wide display at the width of a column, with what stands above it
    auto* window = qobject_cast<QMainWindow*>(dock->parentWidget());
    if (!window || dock->isFloating() || !dock->isVisible())
        return;
    QDockWidget* highest = nullptr;
    const QList<QDockWidget*> docks = window->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget* other : docks) {
        const bool isAboveOrBelow = other != dock && !other->isFloating() && !other->visibleRegion().isEmpty()
                                    && window->dockWidgetArea(other) == window->dockWidgetArea(dock)
                                    && other->x() == dock->x();
        if (isAboveOrBelow && (!highest || other->height() > highest->height()))
            highest = other;
    }
    const int missing = Smallest - dock->height();
    if (missing > 0 && highest && highest->height() - missing >= Smallest / 2)
        window->resizeDocks({highest, dock}, {highest->height() - missing, Smallest}, Qt::Vertical);
}

} // namespace

ResultPanels::ResultPanels(WindowPanels* panels, QObject* parent)
    : QObject(parent)
    , m_qmlDock(panels->add(QStringLiteral("QmlDock"), coreText("QML"), Qt::BottomDockWidgetArea))
    , m_previewDock(panels->add(QStringLiteral("PreviewDock"), coreText("Live Preview"), Qt::RightDockWidgetArea))
    , m_deviceDock(panels->add(QStringLiteral("DeviceDock"), coreText("As on the Panel"), Qt::RightDockWidgetArea))
{
    m_actions = {
        makeAction("view.showLivePreview", "preview-live", coreText("&Live Preview"),
                   QKeySequence(Qt::SHIFT | Qt::Key_F5), m_previewDock),
        makeAction("view.showAsOnPanel", "panel", coreText("As on the Pan&el"), QKeySequence(Qt::CTRL | Qt::Key_F5),
                   m_deviceDock),
        makeAction("view.showQml", "qml", coreText("&QML"), QKeySequence(Qt::CTRL | Qt::Key_U), m_qmlDock),
    };
}

QAction* ResultPanels::makeAction(const char* name, const char* icon, const QString& text, const QKeySequence& shortcut,
                                  QDockWidget* dock)
{
    auto* action = new WindowAction(QLatin1String(icon), text, {shortcut}, this);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    connect(action, &QAction::triggered, dock, [dock](bool checked) {
        if (!checked) {
            dock->hide();
            return;
        }
        WindowPanels::reveal(dock);
        QTimer::singleShot(0, dock, [dock] { makeRoom(dock); }); // when the layout has shown it
    });
    // A panel behind another tab is open as well, so that its visibility is not what counts.
    connect(dock->toggleViewAction(), &QAction::toggled, action, &QAction::setChecked);
    return action;
}

void ResultPanels::arrange(QDockWidget* side, QDockWidget* below)
{
    auto* window = qobject_cast<QMainWindow*>(side->parentWidget());
    if (!window)
        return;
    window->tabifyDockWidget(side, m_previewDock);
    window->tabifyDockWidget(m_previewDock, m_deviceDock);
    window->tabifyDockWidget(below, m_qmlDock);
    for (QDockWidget* dock : {m_qmlDock, m_previewDock, m_deviceDock})
        dock->hide();
}

void ResultPanels::addTo(QMenu* menu)
{
    menu->addActions(m_actions);
}

void ResultPanels::setWorkspace(Workspace* workspace)
{
    delete std::exchange(m_qml, nullptr);
    delete std::exchange(m_preview, nullptr);
    delete std::exchange(m_device, nullptr);
    if (!workspace)
        return;
    m_qml = new QmlPanel(workspace->session(), workspace->canvas());
    m_preview = new LivePreviewPanel(workspace->session(), workspace->canvas());
    m_device = new DevicePanel(workspace->session(), workspace->canvas());
    m_qmlDock->setWidget(m_qml);
    m_previewDock->setWidget(m_preview);
    m_deviceDock->setWidget(m_device);
    connect(m_qml, &QmlPanel::objectChosen, workspace,
            [workspace](DesignerObject* object) { workspace->show({object}); });
}

} // namespace Korvex::Meridane::Designer
