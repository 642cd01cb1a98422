#include "app/WindowPanels.h"

#include "app/CoreText.h"
#include "app/MenuText.h"
#include "app/WindowAction.h"
#include "app/WindowLayout.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int LeftWidth = 272;
constexpr int RightWidth = 320;

/// Whether \a dock stands in the window and can be seen: not closed, not floating, not behind another tab.
bool isSeen(const QDockWidget* dock)
{
    return dock->isVisible() && !dock->isFloating() && !dock->visibleRegion().isEmpty();
}

/// The widget that Tab would reach first in \a panel; null where there is none.
QWidget* firstFocus(QWidget* panel)
{
    for (QWidget* widget = panel->nextInFocusChain(); widget && widget != panel; widget = widget->nextInFocusChain()) {
        if (panel->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus))
            return widget;
    }
    return nullptr;
}

} // namespace

WindowPanels::WindowPanels(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &WindowPanels::followFocus);
}

QDockWidget* WindowPanels::add(const QString& name, const QString& title, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(MenuText::withoutReservedMnemonic(title), m_window);
    dock->setObjectName(name);
    dock->toggleViewAction()->setObjectName(QStringLiteral("panels.show") + name);
    m_window->addDockWidget(area, dock);
    dock->installEventFilter(this);
    m_docks.append(dock);
    return dock;
}

void WindowPanels::addTo(QMenu* menu)
{
    for (const QDockWidget* dock : std::as_const(m_docks))
        menu->addAction(dock->toggleViewAction());
    menu->addSeparator();
    auto* action =
        new WindowAction(QStringLiteral("layout-reset"), coreText("&Reset Layout"), QList<QKeySequence>(), this);
    action->setObjectName(QStringLiteral("view.resetLayout"));
    connect(action, &QAction::triggered, this, &WindowPanels::reset);
    menu->addAction(action);
}

void WindowPanels::arrange()
{
    m_initialState = m_window->saveState();
    if (!WindowLayout::restore(m_window))
        arrangeAsTheProgramComes();
}

void WindowPanels::reset()
{
    m_stateBeforeHiding.clear();
    m_window->restoreState(m_initialState);
    arrangeAsTheProgramComes();
}

void WindowPanels::setAllHidden(bool hidden)
{
    if (hidden == !m_stateBeforeHiding.isEmpty())
        return;
    if (!hidden) {
        m_window->restoreState(std::exchange(m_stateBeforeHiding, {}));
        return;
    }
    m_stateBeforeHiding = m_window->saveState();
    for (QDockWidget* dock : std::as_const(m_docks))
        dock->hide();
}

void WindowPanels::store()
{
    setAllHidden(false);
    WindowLayout::store(m_window);
}

void WindowPanels::reveal(QDockWidget* dock)
{
    dock->show();
    dock->raise();
}

void WindowPanels::stepFocus(QWidget* center, int steps)
{
    const QList<QWidget*> ring = focusRing(center);
    const QWidget* focused = QApplication::focusWidget();
    qsizetype next = ring.indexOf(center); // where the way leads from elsewhere
    for (qsizetype i = 0; i < ring.size(); ++i) {
        if (focused && (ring.at(i) == focused || ring.at(i)->isAncestorOf(focused)))
            next = (i + steps + ring.size()) % ring.size();
    }
    for (qsizetype tried = 0; tried < ring.size(); ++tried) {
        QWidget* target = center;
        if (auto* dock = qobject_cast<QDockWidget*>(ring.at(next))) {
            QWidget* last = m_lastFocus.value(dock);
            target = last && last->isVisible() && last->isEnabled() ? last : firstFocus(dock);
        }
        if (target) {
            target->setFocus(Qt::TabFocusReason);
            return;
        }
        next = (next + steps + ring.size()) % ring.size();
    }
}

bool WindowPanels::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window) {
        // The layout has been at work already when this event is seen.
        if (event->type() == QEvent::Resize)
            QTimer::singleShot(0, this, &WindowPanels::growBack);
    } else if (event->type() == QEvent::Resize && m_window->isVisible() && m_window->size() == m_arrangedSize) {
        // Not the window has changed its size: somebody has moved the edge of the panel.
        if (auto* dock = qobject_cast<QDockWidget*>(watched); dock && !dock->isFloating())
            m_widths.insert(dock, dock->width());
    }
    return QObject::eventFilter(watched, event);
}

void WindowPanels::arrangeAsTheProgramComes()
{
    m_widths.clear();
    const auto dock = [this](const char* name) {
        return m_window->findChild<QDockWidget*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
    };
    QDockWidget* palette = dock("PaletteDock");
    QDockWidget* tree = dock("TreeDock");
    QDockWidget* sheet = dock("SheetDock");
    QDockWidget* history = dock("HistoryDock");
    m_window->resizeDocks({palette, sheet}, {LeftWidth, RightWidth}, Qt::Horizontal);
    m_window->resizeDocks({palette, tree}, {380, 300}, Qt::Vertical);
    m_window->resizeDocks({sheet, history}, {500, 180}, Qt::Vertical);
    tree->raise();
}

void WindowPanels::growBack()
{
    QList<QDockWidget*> small;
    QList<int> widths;
    for (QDockWidget* dock : std::as_const(m_docks)) {
        const Qt::DockWidgetArea area = m_window->dockWidgetArea(dock);
        const int width = m_widths.value(dock, 0);
        if ((area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea) && isSeen(dock)
            && dock->width() < width) {
            small.append(dock);
            widths.append(width);
        }
    }
    if (!small.isEmpty())
        m_window->resizeDocks(small, widths, Qt::Horizontal);
    m_arrangedSize = m_window->size();
    for (QDockWidget* dock : std::as_const(m_docks)) {
        if (!dock->isFloating() && isSeen(dock) && dock->width() > m_widths.value(dock, 0))
            m_widths.insert(dock, dock->width());
    }
}

QList<QWidget*> WindowPanels::focusRing(QWidget* center) const
{
    QList<QWidget*> ring{center};
    for (QDockWidget* dock : m_docks) {
        if (dock->widget() && (isSeen(dock) || (dock->isFloating() && dock->isVisible())))
            ring.append(dock);
    }
    // Column by column, as one reads.
    const auto place = [](const QWidget* widget) {
        const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
        return std::pair(corner.x(), corner.y());
    };
    std::sort(ring.begin(), ring.end(), [&place](const QWidget* a, const QWidget* b) { return place(a) < place(b); });
    return ring;
}

void WindowPanels::followFocus(QWidget* old, QWidget* now)
{
    for (QDockWidget* dock : std::as_const(m_docks)) {
        const bool left = old && dock->isAncestorOf(old);
        if (left)
            m_lastFocus.insert(dock, old);
        // Its title shows that it has the focus.
        if (left != (now && dock->isAncestorOf(now)))
            dock->update();
    }
}

} // namespace Korvex::Meridane::Designer
