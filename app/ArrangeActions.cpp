#include "app/ArrangeActions.h"

#include "app/CoreText.h"
#include "app/MessageBar.h"
#include "app/WindowAction.h"

#include "host/core/arrange/Alignment.h"
#include "host/core/arrange/ElementPlaces.h"
#include "host/core/arrange/Grouping.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QMenu>

namespace Korvex::Meridane::Designer {

namespace {

void collectMarked(const DesignerObject* owner, const QString& mark, QList<DesignerObject*>& found)
{
    const ObjectListProperty* list = owner->childList();
    if (!list)
        return;
    for (DesignerObject* child : list->items()) {
        if (child->editorMark(mark) == EditorMarks::setValue())
            found.append(child);
        collectMarked(child, mark, found);
    }
}

} // namespace

ArrangeActions::ArrangeActions(MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_messages(messages)
{
    m_group = make("arrange.group", "group", "Grou&p", QKeySequence(Qt::CTRL | Qt::Key_G),
                   [this] { return Grouping::group(m_session, selection()); });
    m_ungroup = make("arrange.ungroup", "ungroup", "Ung&roup", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G),
                     [this] { return Grouping::ungroup(m_session, selection()); });
    makeAlignment();
    makeSightAndLock();
    setSession(nullptr);
}

template <typename Run>
QAction* ArrangeActions::make(const char* name, const char* icon, const char* text, const QKeySequence& shortcut,
                              Run run)
{
    QList<QKeySequence> shortcuts;
    if (!shortcut.isEmpty())
        shortcuts.append(shortcut);
    auto* action = new WindowAction(QString::fromLatin1(icon), coreText(text), shortcuts, this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, [this, run] {
        if (m_session)
            report(run());
    });
    return action;
}

void ArrangeActions::makeAlignment()
{
    const auto align = [this](const char* name, const char* icon, const char* text, AlignEdge edge) {
        m_align.append(
            make(name, icon, text, {}, [this, edge] { return Alignment::align(m_session, selection(), edge); }));
    };
    align("arrange.alignLeft", "align-left", "Align &Left", AlignEdge::Left);
    align("arrange.alignCenter", "align-center", "Align &Center", AlignEdge::Center);
    align("arrange.alignRight", "align-right", "Align &Right", AlignEdge::Right);
    align("arrange.alignTop", "align-top", "Align To&p", AlignEdge::Top);
    align("arrange.alignMiddle", "align-middle", "Align &Middle", AlignEdge::Middle);
    align("arrange.alignBottom", "align-bottom", "Align Bo&ttom", AlignEdge::Bottom);

    const auto distribute = [this](const char* name, const char* icon, const char* text, Qt::Orientation orientation,
                                   SpacingKind kind) {
        m_distribute.append(make(name, icon, text, {}, [this, orientation, kind] {
            return Alignment::distribute(m_session, selection(), orientation, kind);
        }));
    };
    distribute("arrange.distributeHorizontally", "distribute-horizontal", "Distribute &Horizontally", Qt::Horizontal,
               SpacingKind::Gaps);
    distribute("arrange.distributeVertically", "distribute-vertical", "Distribute &Vertically", Qt::Vertical,
               SpacingKind::Gaps);
    distribute("arrange.distributeCentersHorizontally", "distribute-centers-horizontal",
               "Distribute &Centers Horizontally", Qt::Horizontal, SpacingKind::Centers);
    distribute("arrange.distributeCentersVertically", "distribute-centers-vertical", "Distribute C&enters Vertically",
               Qt::Vertical, SpacingKind::Centers);

    const auto same = [this](const char* name, const char* icon, const char* text, Alignment::Dimension dimension) {
        m_sameSize.append(make(name, icon, text, {}, [this, dimension] {
            return Alignment::makeSameSize(m_session, selection(), dimension);
        }));
    };
    same("arrange.makeSameWidth", "same-width", "Make Same &Width", Alignment::Dimension::Width);
    same("arrange.makeSameHeight", "same-height", "Make Same &Height", Alignment::Dimension::Height);
    same("arrange.makeSameSize", "same-size", "Make Same Si&ze", Alignment::Dimension::Both);
    m_center = make("arrange.centerOnScreen", "center-screen", "&Center on Screen", {},
                    [this] { return Alignment::centerOnScreen(m_session, selection()); });
}

void ArrangeActions::makeSightAndLock()
{
    m_lock = make("arrange.lock", "padlock", "&Lock", QKeySequence(Qt::CTRL | Qt::Key_L),
                  [this] { return m_session->setLocked(selectedWithout(EditorMarks::locked()), true); });
    m_unlockAll =
        make("arrange.unlockAll", "padlock-open", "U&nlock All", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L),
             [this] { return m_session->setLocked(marked(EditorMarks::locked()), false); });
    m_hide = make("arrange.hide", "eye-off", "&Hide", QKeySequence(Qt::CTRL | Qt::Key_H),
                  [this] { return m_session->setHidden(selectedWithout(EditorMarks::hidden()), true); });
    m_showAll = make("arrange.showAll", "eye", "Show All Hidd&en", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H),
                     [this] { return m_session->setHidden(marked(EditorMarks::hidden()), false); });
}

void ArrangeActions::addTo(QMenu* menu, const QList<QAction*>& order)
{
    menu->addActions({m_group, m_ungroup});
    menu->addSeparator();
    menu->addActions(order);
    menu->addSeparator();
    menu->addMenu(coreText("&Align"))->addActions(m_align);
    menu->addMenu(coreText("&Distribute"))->addActions(m_distribute);
    menu->addMenu(coreText("&Make Same Size"))->addActions(m_sameSize);
    menu->addAction(m_center);
    menu->addSeparator();
    menu->addActions({m_lock, m_unlockAll, m_hide, m_showAll});
}

QList<QAction*> ArrangeActions::contextActions() const
{
    return {m_group, m_ungroup, nullptr, m_lock, m_hide};
}

void ArrangeActions::setSession(EditSession* session)
{
    if (m_session) {
        m_session->disconnect(this);
        m_session->undoStack()->disconnect(this);
        m_session->project()->disconnect(this);
    }
    m_session = session;
    if (session) {
        connect(session, &EditSession::selectionChanged, this, &ArrangeActions::update);
        connect(session, &EditSession::currentScreenChanged, this, &ArrangeActions::update);
        connect(session->undoStack(), &QUndoStack::indexChanged, this, &ArrangeActions::update);
        connect(session->undoStack(), &UndoStack::blockedChanged, this, &ArrangeActions::update);
    }
    update();
}

void ArrangeActions::update()
{
    const bool free = m_session && !m_session->undoStack()->isBlocked();
    const QList<DesignerObject*> selected = free ? selection() : QList<DesignerObject*>();
    m_group->setEnabled(!Grouping::groupable(selected).isEmpty());
    m_ungroup->setEnabled(!Grouping::ungroupable(selected).isEmpty());
    const bool canAlign = Alignment::canAlign(selected);
    for (QAction* action : std::as_const(m_align))
        action->setEnabled(canAlign);
    m_center->setEnabled(canAlign);
    const bool canDistribute = Alignment::canDistribute(selected);
    for (QAction* action : std::as_const(m_distribute))
        action->setEnabled(canDistribute);
    const bool canMakeSameSize = Alignment::canMakeSameSize(selected);
    for (QAction* action : std::as_const(m_sameSize))
        action->setEnabled(canMakeSameSize);
    m_lock->setEnabled(free && !selectedWithout(EditorMarks::locked()).isEmpty());
    m_hide->setEnabled(free && !selectedWithout(EditorMarks::hidden()).isEmpty());
    m_unlockAll->setEnabled(free && !marked(EditorMarks::locked()).isEmpty());
    m_showAll->setEnabled(free && !marked(EditorMarks::hidden()).isEmpty());
}

void ArrangeActions::report(const EditResult& result)
{
    if (!result.accepted)
        m_messages->showMessage(result.message, MessageBar::Kind::Error);
}

QList<DesignerObject*> ArrangeActions::selection() const
{
    return m_session ? m_session->selection() : QList<DesignerObject*>();
}

/// The elements of the current screen that have \a mark themselves.
QList<DesignerObject*> ArrangeActions::marked(const QString& mark) const
{
    QList<DesignerObject*> found;
    const Screen* screen = m_session ? m_session->currentScreen() : nullptr;
    if (screen && screen->isContentRead())
        collectMarked(screen, mark, found);
    return found;
}

/// The selected elements that can have \a mark and do not.
QList<DesignerObject*> ArrangeActions::selectedWithout(const QString& mark) const
{
    QList<DesignerObject*> objects = selection();
    objects.removeIf([&mark](const DesignerObject* object) {
        return !object->editorMarkKeys().contains(mark) || object->editorMark(mark) == EditorMarks::setValue();
    });
    return objects;
}

} // namespace Korvex::Meridane::Designer
