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
constexpr int SmallestCenter = 120; // pixels that are left to the canvas when panels grow back

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
    switch (event->type()) {
    case QEvent::Resize:
        // The layout has been at work already when this is seen, and is not always done.
        QTimer::singleShot(0, this, &WindowPanels::growBack);
        break;
    case QEvent::MouseButtonPress: // on the edge of a panel, which is no widget of its own
        m_widthsAtPress.clear();
        for (QDockWidget* dock : std::as_const(m_docks))
            m_widthsAtPress.insert(dock, dock->width());
        break;
    case QEvent::MouseButtonRelease:
        QTimer::singleShot(0, this, &WindowPanels::rememberMovedEdges);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowPanels::rememberMovedEdges()
{
    for (auto before = m_widthsAtPress.cbegin(); before != m_widthsAtPress.cend(); ++before) {
        if (before.key()->width() != before.value() && !before.key()->isFloating())
            m_widths.insert(before.key(), before.key()->width());
    }
    m_widthsAtPress.clear();
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
    QTimer::singleShot(0, this, &WindowPanels::growBack);
}

void WindowPanels::growBack()
{
    // One panel of each column that has become too narrow.
    QHash<int, QDockWidget*> narrow;
    int missing = 0;
    for (QDockWidget* dock : std::as_const(m_docks)) {
        const Qt::DockWidgetArea area = m_window->dockWidgetArea(dock);
        const int lost = m_widths.value(dock, 0) - dock->width();
        if ((area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea) && isSeen(dock) && lost > 0
            && !narrow.contains(dock->x())) {
            narrow.insert(dock->x(), dock);
            missing += lost;
        }
    }
    const QWidget* center = m_window->centralWidget();
    const int room = center->width() - qMax(center->minimumSizeHint().width(), SmallestCenter);
    if (missing > 0 && room > 0) {
        QList<QDockWidget*> docks;
        QList<int> widths;
        for (QDockWidget* dock : std::as_const(narrow)) {
            const int lost = m_widths.value(dock) - dock->width();
            docks.append(dock);
            widths.append(dock->width() + int(qint64(lost) * qMin(missing, room) / missing));
        }
        m_window->resizeDocks(docks, widths, Qt::Horizontal);
    }
    for (QDockWidget* dock : std::as_const(m_docks)) {
        if (!m_widths.contains(dock) && !dock->isFloating() && isSeen(dock))
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
