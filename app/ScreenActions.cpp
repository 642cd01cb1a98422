#include "app/ScreenActions.h"

#include "app/CoreText.h"
#include "app/MessageBar.h"
#include "app/PendingEdit.h"
#include "app/ThemedIcon.h"
#include "app/UserPrompts.h"
#include "app/WindowAction.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <QMenu>

#include <functional>

namespace Korvex::Meridane::Designer {

ScreenActions::ScreenActions(UserPrompts* prompts, MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_prompts(prompts)
    , m_messages(messages)
    , m_duplicate(make("screen.duplicate", "screen-duplicate", "Du&plicate Screen", &ScreenActions::duplicate))
    , m_rename(make("screen.rename", "rename", "Re&name Screen", &ScreenActions::renameRequested))
    , m_resize(make("screen.resize", "screen-resize", "Resi&ze Screen…", &ScreenActions::resize))
    , m_earlier(new WindowAction({}, coreText("Move Screen &Forward"), QList<QKeySequence>(), this))
    , m_later(new WindowAction({}, coreText("Move Screen Bac&k"), QList<QKeySequence>(), this))
    , m_remove(make("screen.remove", "delete", "Re&move Screen", &ScreenActions::remove))
{
    m_earlier->setObjectName(QStringLiteral("screen.moveForward"));
    m_later->setObjectName(QStringLiteral("screen.moveBack"));
    connect(m_earlier, &QAction::triggered, this, [this] {
        if (m_session)
            move(m_session->currentScreen(), -1);
    });
    connect(m_later, &QAction::triggered, this, [this] {
        if (m_session)
            move(m_session->currentScreen(), 1);
    });
    update();
}

QAction* ScreenActions::make(const char* name, const char* icon, const char* text, void (ScreenActions::*run)(Screen*))
{
    auto* action = new WindowAction(QString::fromLatin1(icon), coreText(text), QList<QKeySequence>(), this);
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, [this, run] {
        if (m_session && m_session->currentScreen())
            (this->*run)(m_session->currentScreen());
    });
    return action;
}

void ScreenActions::addTo(QMenu* menu)
{
    menu->addActions({m_duplicate, m_rename, m_resize, m_earlier, m_later, m_remove});
}

void ScreenActions::setSession(EditSession* session)
{
    if (m_session) {
        m_session->disconnect(this);
        m_session->undoStack()->disconnect(this);
        m_session->project()->disconnect(this);
    }
    m_session = session;
    if (session) {
        connect(session, &EditSession::currentScreenChanged, this, &ScreenActions::update);
        connect(session->undoStack(), &UndoStack::blockedChanged, this, &ScreenActions::update);
        connect(session->undoStack(), &QUndoStack::indexChanged, this, &ScreenActions::update);
    }
    update();
}

void ScreenActions::showMenu(Screen* screen, const QPoint& globalPos)
{
    QMenu menu;
    fillMenu(&menu, screen);
    menu.exec(globalPos);
}

void ScreenActions::fillMenu(QMenu* menu, Screen* screen)
{
    const auto entry = [&](const char* icon, const QString& text, bool enabled, const std::function<void()>& run) {
        QAction* action = menu->addAction(ThemedIcon::named(QString::fromLatin1(icon)), text);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, run);
    };
    const bool free = m_session && !m_session->undoStack()->isBlocked();
    entry("screen-add", coreText("Add a Screen"), free, [this] { add(); });
    if (!screen)
        return;
    const QPointer<Screen> about = screen;
    const auto with = [about](auto run) {
        return [about, run] {
            // The history keeps screens that have been removed.
            if (about && about->parentObject())
                run(about.data());
        };
    };
    const bool readable = free && screen->contentError().isEmpty();
    menu->addSeparator();
    entry("screen-duplicate", coreText("Duplicate"), readable, with([this](Screen* it) { duplicate(it); }));
    entry("rename", coreText("Rename"), readable, with([this](Screen* it) { Q_EMIT renameRequested(it); }));
    entry("screen-resize", coreText("Resize…"), readable, with([this](Screen* it) { resize(it); }));
    menu->addSeparator();
    entry("order-forward", coreText("Move Forward"), free && canMove(screen, -1),
          with([this](Screen* it) { move(it, -1); }));
    entry("order-backward", coreText("Move Back"), free && canMove(screen, 1),
          with([this](Screen* it) { move(it, 1); }));
    menu->addSeparator();
    entry("delete", coreText("Remove"), free, with([this](Screen* it) { remove(it); }));
}

void ScreenActions::add()
{
    PendingEdit::finish();
    if (m_session)
        report(m_session->addScreen());
}

void ScreenActions::duplicate(Screen* screen)
{
    PendingEdit::finish();
    if (m_session)
        report(m_session->duplicateScreen(screen));
}

void ScreenActions::resize(Screen* screen)
{
    PendingEdit::finish();
    const QPointer<Screen> about = screen;
    const std::optional<ScreenSize> wanted =
        m_prompts->askScreenSize(screen->getIdName(), ScreenSize{screen->size(), false});
    if (!wanted || !m_session || !about)
        return;
    report(m_session->resizeScreen(screen, wanted->size,
                                   wanted->scales ? ScreenEdits::Content::Scale : ScreenEdits::Content::Leave));
}

void ScreenActions::remove(Screen* screen)
{
    PendingEdit::finish();
    if (m_session)
        report(m_session->removeScreen(screen));
}

void ScreenActions::move(Screen* screen, int steps)
{
    PendingEdit::finish();
    if (m_session && screen && canMove(screen, steps))
        report(m_session->reorder(screen, int(m_session->project()->screens().indexOf(screen)) + steps));
}

void ScreenActions::update()
{
    Screen* screen = m_session ? m_session->currentScreen() : nullptr;
    const bool free = screen && !m_session->undoStack()->isBlocked();
    const bool readable = free && screen->contentError().isEmpty();
    for (QAction* action : {m_duplicate, m_rename, m_resize})
        action->setEnabled(readable);
    m_remove->setEnabled(free);
    m_earlier->setEnabled(free && canMove(screen, -1));
    m_later->setEnabled(free && canMove(screen, 1));
}

void ScreenActions::report(const EditResult& result)
{
    if (!result.accepted && !result.message.isEmpty())
        m_messages->showMessage(result.message, MessageBar::Kind::Error);
}

bool ScreenActions::canMove(const Screen* screen, int steps) const
{
    const QVector<Screen*> screens = m_session->project()->screens();
    const auto target = screens.indexOf(const_cast<Screen*>(screen)) + steps;
    return target >= 0 && target < screens.size();
}

} // namespace Korvex::Meridane::Designer
