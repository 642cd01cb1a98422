#include "app/ShortcutsDialog.h"

#include "app/CommandSource.h"
#include "app/CoreText.h"
#include "app/MenuText.h"
#include "app/ShortcutSettings.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Korvex::Meridane::Designer {

/// A key that is no shortcut of a menu, and what it does.
struct ListedKey
{
    const char* keys;
    const char* effect;
};

namespace {

constexpr int ActionRole = Qt::UserRole; // the place in the settings' list of actions, of rows that can be changed

constexpr ListedKey CanvasKeys[] = {
    {QT_TRANSLATE_NOOP("Core", "Arrow keys"),
     QT_TRANSLATE_NOOP("Core", "Move the selection by one pixel, with Shift by ten")},
    {QT_TRANSLATE_NOOP("Core", "Escape"),
     QT_TRANSLATE_NOOP("Core", "Take the running drag back; leave the placing of an element")},
    {QT_TRANSLATE_NOOP("Core", "Drag"),
     QT_TRANSLATE_NOOP("Core", "Move elements; on empty ground, select with a frame")},
    {QT_TRANSLATE_NOOP("Core", "Drag a handle"), QT_TRANSLATE_NOOP("Core", "Resize, or move a point")},
    {QT_TRANSLATE_NOOP("Core", "Shift+Click"),
     QT_TRANSLATE_NOOP("Core", "Add an element to the selection or take it out")},
    {QT_TRANSLATE_NOOP("Core", "Ctrl+Click"),
     QT_TRANSLATE_NOOP("Core", "Select what lies beneath the selected element")},
    {QT_TRANSLATE_NOOP("Core", "Space+Drag, middle button"), QT_TRANSLATE_NOOP("Core", "Scroll")},
    {QT_TRANSLATE_NOOP("Core", "Ctrl+Wheel"), QT_TRANSLATE_NOOP("Core", "Zoom at the pointer")},
};

constexpr ListedKey ImageKeys[] = {
    {QT_TRANSLATE_NOOP("Core", "Enter"), QT_TRANSLATE_NOOP("Core", "Place the image in the middle of the view")},
    {QT_TRANSLATE_NOOP("Core", "F2"), QT_TRANSLATE_NOOP("Core", "Rename the image; the elements that show it follow")},
    {QT_TRANSLATE_NOOP("Core", "Del"), QT_TRANSLATE_NOOP("Core", "Remove the image, unless an element shows it")},
    {QT_TRANSLATE_NOOP("Core", "Ctrl+V"),
     QT_TRANSLATE_NOOP("Core", "Import the image files or the picture on the clipboard")},
    {QT_TRANSLATE_NOOP("Core", "Drag"),
     QT_TRANSLATE_NOOP("Core", "Place the image on the screen, or give it to an element's source")},
};

} // namespace

ShortcutsDialog::ShortcutsDialog(QMainWindow* window, ShortcutSettings* settings)
    : QDialog(window)
    , m_settings(settings)
    , m_search(new QLineEdit)
    , m_list(new QTreeWidget)
    , m_name(new QLabel)
    , m_recorder(new QKeySequenceEdit)
    , m_clear(new QPushButton(coreText("Clear")))
    , m_reset(new QPushButton(coreText("Reset")))
    , m_message(new QLabel)
    , m_takeOver(new QPushButton(coreText("Use It Here Instead")))
{
    setWindowTitle(coreText("Keyboard Shortcuts"));
    m_search->setPlaceholderText(coreText("Search by name or key"));
    m_search->setAccessibleName(coreText("Search shortcuts"));
    m_search->setClearButtonEnabled(true);
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({coreText("Command"), coreText("Shortcut")});
    m_list->setAccessibleName(coreText("Shortcuts"));
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_recorder->setAccessibleName(coreText("New shortcut"));
    m_clear->setToolTip(coreText("Leave the command without a shortcut"));
    m_reset->setToolTip(coreText("Go back to the shortcut that the command comes with"));
    m_name->setBuddy(m_recorder);
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    for (QPushButton* button : {m_clear, m_reset, m_takeOver})
        button->setAutoDefault(false);

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_name, 1);
    row->addWidget(m_recorder, 1);
    row->addWidget(m_clear);
    row->addWidget(m_reset);
    auto* words = new QHBoxLayout;
    words->setSpacing(8);
    words->addWidget(m_message, 1);
    words->addWidget(m_takeOver);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* resetAll = buttons->addButton(coreText("Reset All"), QDialogButtonBox::ResetRole);
    resetAll->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(10);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addLayout(row);
    layout->addLayout(words);
    layout->addWidget(buttons);

    fill(window);
    m_list->expandAll();
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_list->installEventFilter(this);
    m_search->installEventFilter(this);
    m_recorder->installEventFilter(this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(resetAll, &QPushButton::clicked, m_settings, &ShortcutSettings::resetAll);
    connect(m_search, &QLineEdit::textChanged, this, &ShortcutsDialog::filter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &ShortcutsDialog::showChosen);
    connect(m_list, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem*, int column) {
        if (column == 1 && chosen())
            m_recorder->setFocus();
    });
    connect(m_clear, &QPushButton::clicked, this, [this] { m_settings->assign(chosen(), {}); });
    connect(m_reset, &QPushButton::clicked, this, [this] { m_settings->reset(chosen()); });
    connect(m_takeOver, &QPushButton::clicked, this, &ShortcutsDialog::takeOver);
    connect(m_settings, &ShortcutSettings::changed, this, [this] {
        refresh();
        showChosen();
    });
    refresh();
    showChosen();
    m_search->setFocus();
    resize(640, 620);
}

void ShortcutsDialog::choose(const QAction* action)
{
    const auto place = m_settings->actions().indexOf(const_cast<QAction*>(action));
    for (QTreeWidgetItemIterator item(m_list); *item; ++item) {
        if ((*item)->data(0, ActionRole).isValid() && (*item)->data(0, ActionRole).toInt() == place)
            m_list->setCurrentItem(*item);
    }
}

QString ShortcutsDialog::message() const
{
    return m_message->text();
}

bool ShortcutsDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_list && (isEnter || key == Qt::Key_F2)) {
        if (chosen())
            m_recorder->setFocus();
        return true;
    }
    if (watched == m_search && (key == Qt::Key_Down || isEnter)) {
        m_list->setFocus();
        return true;
    }
    // Escape is no shortcut: it leads back to the list, and Tab further on.
    if (watched == m_recorder && key == Qt::Key_Escape) {
        showChosen();
        m_list->setFocus();
        return true;
    }
    // The field itself would wait for more keys to follow.
    const bool isModifier = key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
    if (watched == m_recorder && !isModifier)
        QMetaObject::invokeMethod(this, &ShortcutsDialog::record, Qt::QueuedConnection);
    return QDialog::eventFilter(watched, event);
}

void ShortcutsDialog::fill(QMainWindow* window)
{
    // Under the menus in which they stand, the others after them.
    const QList<QAction*> actions = m_settings->actions();
    QHash<QString, QTreeWidgetItem*> groups;
    const auto group = [this, &groups](const QString& title) {
        QTreeWidgetItem*& item = groups[title];
        return item ? item : item = addGroup(title);
    };
    const QList<Command> commands = CommandSource::actions(window);
    for (const Command& command : commands) {
        const auto known = std::find_if(actions.cbegin(), actions.cend(), [&command](const QAction* action) {
            return command.id == QLatin1String("action:") + action->objectName();
        });
        if (known == actions.cend())
            continue;
        auto* item = new QTreeWidgetItem(group(command.path.isEmpty() ? coreText("Other") : command.path));
        item->setText(0, command.text);
        item->setIcon(0, command.icon);
        item->setData(0, ActionRole, int(known - actions.cbegin()));
    }
    addKeys(coreText("Canvas"), CanvasKeys, int(std::size(CanvasKeys)));
    addKeys(coreText("Images"), ImageKeys, int(std::size(ImageKeys)));
}

QTreeWidgetItem* ShortcutsDialog::addGroup(const QString& title)
{
    auto* group = new QTreeWidgetItem(m_list, {title});
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
    group->setFlags(Qt::ItemIsEnabled);
    return group;
}

void ShortcutsDialog::addKeys(const QString& title, const ListedKey* keys, int count)
{
    QTreeWidgetItem* group = addGroup(coreText("%1: mouse and fixed keys").arg(title));
    for (int i = 0; i < count; ++i)
        group->addChild(new QTreeWidgetItem({coreText(keys[i].effect), coreText(keys[i].keys)}));
}

void ShortcutsDialog::filter(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* group = m_list->topLevelItem(i);
        bool any = false;
        for (int row = 0; row < group->childCount(); ++row) {
            QTreeWidgetItem* item = group->child(row);
            const QString content =
                item->text(0) + QLatin1Char(' ') + item->text(1) + QLatin1Char(' ') + group->text(0);
            const bool shown = std::all_of(words.cbegin(), words.cend(), [&content](const QString& word) {
                return content.contains(word, Qt::CaseInsensitive);
            });
            item->setHidden(!shown);
            any |= shown;
        }
        group->setHidden(!any);
    }
    // What is chosen can be seen: otherwise keys would be recorded for something else.
    if (!m_list->currentItem() || m_list->currentItem()->isHidden()) {
        QTreeWidgetItem* first = nullptr;
        for (QTreeWidgetItemIterator item(m_list, QTreeWidgetItemIterator::NotHidden); *item && !first; ++item)
            first = (*item)->data(0, ActionRole).isValid() ? *item : nullptr;
        m_list->setCurrentItem(first);
    }
}

void ShortcutsDialog::refresh()
{
    const QList<QAction*> actions = m_settings->actions();
    for (QTreeWidgetItemIterator item(m_list); *item; ++item) {
        if (!(*item)->data(0, ActionRole).isValid())
            continue;
        const QAction* action = actions.value((*item)->data(0, ActionRole).toInt());
        // The first is the one that people use; others are for old or rare keyboards.
        (*item)->setText(1, action->shortcut().toString(QKeySequence::NativeText));
        (*item)->setToolTip(1, QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText));
        QFont font = this->font();
        font.setBold(m_settings->isChanged(action)); // what the user has changed stands out
        (*item)->setFont(1, font);
    }
}

void ShortcutsDialog::showChosen()
{
    const QAction* action = chosen();
    const QSignalBlocker blocker(m_recorder);
    m_recorder->setKeySequence(action ? action->shortcut() : QKeySequence());
    m_name->setText(action ? coreText("Shortcut of \"%1\":").arg(MenuText::plain(action->text()))
                           : coreText("Choose a command to change its shortcut."));
    m_recorder->setEnabled(action);
    m_clear->setEnabled(action && !action->shortcuts().isEmpty());
    m_reset->setEnabled(action && m_settings->isChanged(action));
    say({});
}

void ShortcutsDialog::record()
{
    QAction* action = chosen();
    if (!action)
        return;
    // One key with its modifiers; a second one would only be waited for.
    const QKeySequence all = m_recorder->keySequence();
    const QKeySequence keys = all.isEmpty() ? QKeySequence() : QKeySequence(all[0]);
    if (keys.isEmpty() || action->shortcuts().contains(keys)) {
        showChosen();
        return;
    }
    const QSignalBlocker blocker(m_recorder);
    m_recorder->setKeySequence(keys);
    const QString refusal = m_settings->refusal(action, keys);
    if (!refusal.isEmpty()) {
        m_recorder->setKeySequence(action->shortcut());
        say(refusal);
    } else if (const QAction* user = m_settings->user(keys, action)) {
        say(coreText("%1 belongs to \"%2\".")
                .arg(keys.toString(QKeySequence::NativeText), MenuText::plain(user->text())),
            true);
    } else {
        m_settings->assign(action, keys);
    }
}

void ShortcutsDialog::takeOver()
{
    if (QAction* action = chosen())
        m_settings->assign(action, m_recorder->keySequence());
    m_recorder->setFocus();
}

void ShortcutsDialog::say(const QString& message, bool offersTakeOver)
{
    m_message->setText(message);
    m_takeOver->setVisible(offersTakeOver);
}

QAction* ShortcutsDialog::chosen() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item && item->data(0, ActionRole).isValid() ? m_settings->actions().value(item->data(0, ActionRole).toInt())
                                                       : nullptr;
}

} // namespace Korvex::Meridane::Designer
