#include "app/ScreenTabs.h"

#include "app/CoreText.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <QContextMenuEvent>
#include <QScopedValueRollback>

namespace Korvex::Meridane::Designer {

ScreenTabs::ScreenTabs(EditSession* session, QWidget* parent)
    : QTabBar(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("ScreenTabs"));
    setAccessibleName(coreText("Screens"));
    setDocumentMode(true);
    setExpanding(false);
    setMovable(true);
    setDrawBase(false);
    setElideMode(Qt::ElideRight);
    setUsesScrollButtons(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    const Project* project = session->project();
    connect(project, &Project::objectAdded, this, &ScreenTabs::refillLater);
    connect(project, &Project::objectRemoved, this, &ScreenTabs::refillLater);
    connect(project, &Project::objectReordered, this, &ScreenTabs::refillLater);
    connect(project, &Project::objectRenamed, this, &ScreenTabs::refillLater);
    connect(project, &Project::projectBrowserUpdateRequested, this, &ScreenTabs::refillLater);
    connect(session, &EditSession::currentScreenChanged, this, &ScreenTabs::refill);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (!m_following && screenAt(index))
            m_session->setCurrentScreen(screenAt(index));
    });
    refill();
}

Screen* ScreenTabs::screenAt(int index) const
{
    return index < 0 ? nullptr : m_session->project()->screen(tabData(index).toString());
}

void ScreenTabs::step(int steps)
{
    if (count() > 0)
        setCurrentIndex(((currentIndex() + steps) % count() + count()) % count());
}

QSize ScreenTabs::sizeHint() const
{
    // A bar of exactly the width of its tabs takes the last one for cut off and shows scroll buttons.
    return QTabBar::sizeHint() + QSize(1, 0);
}

QSize ScreenTabs::minimumSizeHint() const
{
    return {sizeHint().height(), QTabBar::minimumSizeHint().height()};
}

void ScreenTabs::mouseReleaseEvent(QMouseEvent* event)
{
    QTabBar::mouseReleaseEvent(event);
    // The drag has changed only the tabs; where it ended is one step.
    Screen* dragged = screenAt(currentIndex());
    const auto place = dragged ? m_session->project()->screens().indexOf(dragged) : -1;
    if (place < 0 || place == currentIndex())
        return;
    m_session->reorder(dragged, currentIndex());
    refillLater();
}

void ScreenTabs::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const int tab = isKeyboard ? currentIndex() : tabAt(event->pos());
    Q_EMIT menuRequested(screenAt(tab), isKeyboard ? mapToGlobal(tabRect(tab).bottomLeft()) : event->globalPos());
}

void ScreenTabs::refill()
{
    const QScopedValueRollback<bool> following(m_following, true);
    m_refillPending = false;
    const QVector<Screen*> screens = m_session->project()->screens();
    while (count() > screens.size())
        removeTab(count() - 1);
    for (int i = 0; i < screens.size(); ++i) {
        const Screen* screen = screens.at(i);
        const QString& id = screen->getIdName();
        if (i >= count())
            addTab(id);
        else if (tabText(i) != id)
            setTabText(i, id);
        setTabData(i, id);
        setTabToolTip(i, screen->contentError());
        setTabIcon(i, screen->contentError().isEmpty() ? QIcon() : ThemedIcon::named(QStringLiteral("warning")));
        if (screen == m_session->currentScreen())
            setCurrentIndex(i);
    }
}

void ScreenTabs::refillLater()
{
    // Adding thousands of elements announces each; the tabs look once.
    if (m_refillPending)
        return;
    m_refillPending = true;
    QMetaObject::invokeMethod(this, &ScreenTabs::refill, Qt::QueuedConnection);
}

} // namespace Korvex::Meridane::Designer
