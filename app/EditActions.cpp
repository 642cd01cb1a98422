#include "app/EditActions.h"

#include "app/CoreText.h"
#include "app/ImageData.h"
#include "app/MessageBar.h"
#include "app/WindowAction.h"

#include "host/core/arrange/ElementClipboard.h"
#include "host/core/arrange/SiblingOrder.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Element.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// Whether \a screen has an element that can be selected on the canvas.
bool hasReachable(const Screen* screen)
{
    const auto& elements = screen->childList()->items();
    return screen->isContentRead()
           && std::any_of(elements.cbegin(), elements.cend(), [](const DesignerObject* element) {
                  return !EditorMarks::isLocked(element) && !EditorMarks::isHidden(element);
              });
}

/// Enables those of \a orders that would change the order of \a elements.
void enableOrders(const QList<QAction*>& orders, const QList<DesignerObject*>& elements)
{
    for (QAction* order : orders)
        order->setEnabled(SiblingOrder::canMove(elements, SiblingOrder::Move(order->data().toInt())));
}

} // namespace

EditActions::EditActions(MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_messages(messages)
{
    const auto keys = [](QKeySequence::StandardKey key) { return QKeySequence::keyBindings(key); };
    m_undo = make("edit.undo", "undo", "Un&do", keys(QKeySequence::Undo), &EditActions::undo);
    m_redo =
        make("edit.redo", "redo", "&Redo",
             {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}, &EditActions::redo);
    m_cut = make("edit.cut", "cut", "Cu&t", keys(QKeySequence::Cut), &EditActions::cut);
    m_copy = make("edit.copy", "copy", "&Copy", keys(QKeySequence::Copy), &EditActions::copy);
    m_paste = make("edit.paste", "paste", "&Paste", keys(QKeySequence::Paste), &EditActions::paste);
    m_pasteInPlace = make("edit.pasteInPlace", "paste-in-place", "Paste in Place",
                          {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V)}, &EditActions::pasteInPlace);
    m_duplicate = make("edit.duplicate", "duplicate", "Dup&licate", {QKeySequence(Qt::CTRL | Qt::Key_D)},
                       &EditActions::duplicate);
    m_delete = make("edit.delete", "delete", "D&elete", {QKeySequence(Qt::Key_Delete)}, &EditActions::remove);
    m_selectAll =
        make("edit.selectAll", "select-all", "Select &All", keys(QKeySequence::SelectAll), &EditActions::selectAll);
    m_rename = make("edit.rename", "rename", "Rena&me", {QKeySequence(Qt::Key_F2)}, &EditActions::renameRequested);
    m_addScreen = make("screen.add", "screen-add", "Add &New Screen", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)},
                       &EditActions::addScreen);

    struct Order
    {
        const char* name;
        const char* icon;
        const char* text;
        QKeySequence shortcut;
        SiblingOrder::Move move;
    };
    const Order orders[] = {
        {"arrange.bringToFront", "order-front", QT_TRANSLATE_NOOP("Core", "Bring to &Front"),
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_PageUp), SiblingOrder::Move::ToFront},
        {"arrange.bringForward", "order-forward", QT_TRANSLATE_NOOP("Core", "Brin&g Forward"),
         QKeySequence(Qt::CTRL | Qt::Key_PageUp), SiblingOrder::Move::Forward},
        {"arrange.sendBackward", "order-backward", QT_TRANSLATE_NOOP("Core", "Send Back&ward"),
         QKeySequence(Qt::CTRL | Qt::Key_PageDown), SiblingOrder::Move::Backward},
        {"arrange.sendToBack", "order-back", QT_TRANSLATE_NOOP("Core", "Send to Bac&k"),
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_PageDown), SiblingOrder::Move::ToBack},
    };
    for (const Order& order : orders) {
        auto* action = new WindowAction(QString::fromLatin1(order.icon), coreText(order.text), {order.shortcut}, this);
        action->setObjectName(QLatin1String(order.name));
        connect(action, &QAction::triggered, this, [this, move = order.move] {
            if (m_session)
                report(SiblingOrder::move(m_session->project(), elements(), move));
        });
        action->setData(int(order.move));
        m_order.append(action);
    }
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &EditActions::updateSelection);
    setSession(nullptr);
}

QAction* EditActions::make(const char* name, const char* icon, const char* text, const QList<QKeySequence>& shortcuts,
                           void (EditActions::*run)())
{
    auto* action = new WindowAction(QString::fromLatin1(icon), coreText(text), shortcuts, this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void EditActions::addTo(QMenu* menu)
{
    menu->addActions({m_undo, m_redo});
    menu->addSeparator();
    menu->addActions({m_cut, m_copy, m_paste, m_pasteInPlace, m_duplicate, m_delete});
    menu->addSeparator();
    menu->addAction(m_selectAll);
    menu->addAction(m_rename);
}

QList<QAction*> EditActions::contextActions() const
{
    return QList<QAction*>{m_cut, m_copy, m_paste, m_duplicate, m_delete, nullptr, m_rename, nullptr} + m_order;
}

void EditActions::setSession(EditSession* session)
{
    if (m_session) {
        m_session->disconnect(this);
        m_session->undoStack()->disconnect(this);
        m_session->project()->disconnect(this);
    }
    m_session = session;
    m_duplicates = {};
    if (session) {
        UndoStack* stack = session->undoStack();
        connect(stack, &QUndoStack::indexChanged, this, &EditActions::updateHistory);
        connect(stack, &QUndoStack::indexChanged, this, [this] {
            enableOrders(m_order, m_session->undoStack()->isBlocked() ? QList<DesignerObject*>() : elements());
        });
        connect(stack, &QUndoStack::undoTextChanged, this, &EditActions::updateHistory);
        connect(stack, &UndoStack::blockedChanged, this, &EditActions::updateHistory);
        connect(stack, &UndoStack::blockedChanged, this, &EditActions::updateSelection);
        connect(session, &EditSession::selectionChanged, this, &EditActions::updateSelection);
        connect(session->project(), &Project::objectMarked, this, &EditActions::updateSelection);
        connect(session, &EditSession::currentScreenChanged, this, [this](Screen*) { updateSelection(); });
    }
    updateHistory();
    updateSelection();
}

void EditActions::undo()
{
    if (m_session)
        report(m_session->undo());
}

void EditActions::redo()
{
    if (m_session)
        report(m_session->redo());
}

void EditActions::cut()
{
    copy();
    if (m_session)
        report(m_session->removeElements(removable()));
}

void EditActions::copy()
{
    const QByteArray data = m_session ? ElementClipboard::write(m_session, m_session->selection()) : QByteArray();
    if (data.isEmpty())
        return;
    auto* content = new QMimeData;
    content->setData(ElementClipboard::mimeType(), data);
    // For other programs; in which format is told by what they ask for.
    if (const QImage picture = ElementClipboard::picture(m_session, m_session->selection()); !picture.isNull())
        content->setImageData(picture);
    QGuiApplication::clipboard()->setMimeData(content);
}

void EditActions::paste()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (!m_session || !content)
        return;
    if (!content->hasFormat(ElementClipboard::mimeType()) && ImageData::holdsImages(content))
        Q_EMIT imagesPasted(content);
    else
        report(ElementClipboard::insert(m_session, content->data(ElementClipboard::mimeType()), coreText("Paste")));
}

void EditActions::pasteInPlace()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (!m_session || !content || !content->hasFormat(ElementClipboard::mimeType()))
        return;
    report(ElementClipboard::insert(m_session, content->data(ElementClipboard::mimeType()), coreText("Paste in Place"),
                                    ElementClipboard::Placement::InPlace));
}

void EditActions::duplicate()
{
    if (m_session)
        report(m_duplicates.duplicate(m_session, m_session->selection()));
}

void EditActions::remove()
{
    if (!m_session)
        return;
    const QList<DesignerObject*> removed = elements();
    if (!removed.isEmpty()) {
        report(m_session->removeElements(removable()));
        return;
    }
    const QList<DesignerObject*> selection = m_session->selection();
    for (DesignerObject* object : selection) {
        if (auto* screen = qobject_cast<Screen*>(object)) {
            report(m_session->removeScreen(screen));
            return;
        }
    }
}

void EditActions::selectAll()
{
    Screen* screen = m_session ? m_session->currentScreen() : nullptr;
    if (!screen)
        return;
    m_session->setSelection(m_session->scene(screen)->selectableElements());
}

void EditActions::addScreen()
{
    if (m_session)
        report(m_session->addScreen());
}

void EditActions::updateHistory()
{
    const UndoStack* stack = m_session ? m_session->undoStack() : nullptr;
    const bool free = stack && !stack->isBlocked();
    const bool canUndo = free && stack->canUndo();
    const bool canRedo = free && stack->canRedo();
    m_undo->setEnabled(canUndo);
    m_redo->setEnabled(canRedo);
    // Step texts name objects and are no menu texts: an ampersand in them marks nothing.
    const auto named = [](const QString& pattern, QString step) {
        return pattern.arg(step.replace(QLatin1Char('&'), QLatin1String("&&")));
    };
    m_undo->setText(canUndo ? named(coreText("Un&do %1"), stack->undoText()) : coreText("Un&do"));
    m_redo->setText(canRedo ? named(coreText("&Redo %1"), stack->redoText()) : coreText("&Redo"));
}

void EditActions::updateSelection()
{
    const bool free = m_session && !m_session->undoStack()->isBlocked();
    const QList<DesignerObject*> selection = m_session ? m_session->selection() : QList<DesignerObject*>();
    const bool hasElements = free && !elements().isEmpty();
    const bool isScreen = free && selection.size() == 1 && qobject_cast<Screen*>(selection.constFirst());
    const bool hasScreen = free && m_session->currentScreen();
    const bool hasRemovable = hasElements && !removable().isEmpty();
    for (QAction* action : {m_copy, m_duplicate})
        action->setEnabled(hasElements);
    m_cut->setEnabled(hasRemovable);
    enableOrders(m_order, free ? elements() : QList<DesignerObject*>());
    m_delete->setEnabled(hasRemovable || isScreen);
    m_rename->setEnabled(free && selection.size() == 1);
    m_selectAll->setEnabled(hasScreen && hasReachable(m_session->currentScreen()));
    m_addScreen->setEnabled(free);
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    const bool holdsElements = content && content->hasFormat(ElementClipboard::mimeType());
    m_paste->setEnabled(hasScreen && (holdsElements || (content && ImageData::holdsImages(content))));
    m_pasteInPlace->setEnabled(hasScreen && holdsElements);
}

/// The selected elements that are not locked.
QList<DesignerObject*> EditActions::removable() const
{
    QList<DesignerObject*> removable = ElementClipboard::copyable(elements());
    removable.removeIf([](const DesignerObject* object) { return EditorMarks::isLocked(object); });
    return removable;
}

void EditActions::report(const EditResult& result)
{
    if (!result.accepted)
        m_messages->showMessage(result.message, MessageBar::Kind::Error);
}

QList<DesignerObject*> EditActions::elements() const
{
    QList<DesignerObject*> elements;
    if (!m_session)
        return elements;
    const QList<DesignerObject*> selection = m_session->selection();
    for (DesignerObject* object : selection) {
        if (qobject_cast<Element*>(object))
            elements.append(object);
    }
    return elements;
}

} // namespace Korvex::Meridane::Designer
