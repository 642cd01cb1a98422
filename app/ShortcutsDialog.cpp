#include "app/ShortcutsDialog.h"

#include "app/CoreText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

/// A key that is no shortcut of a menu, and what it does.
struct ListedKey
{
    const char* keys;
    const char* effect;
};

namespace {

QString withoutMark(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String("\n"));
    text.remove(QLatin1Char('&'));
    text.remove(QChar(0x2026));
    return text.replace(QLatin1Char('\n'), QLatin1Char('&'));
}

constexpr ListedKey CanvasKeys[] = {
    {QT_TRANSLATE_NOOP("Core", "Arrow keys"),
     QT_TRANSLATE_NOOP("Core", "Move the selection by one pixel, with Shift by ten")},
    {QT_TRANSLATE_NOOP("Core", "Escape"),
     QT_TRANSLATE_NOOP("Core", "Take the running drag back; leave the placing of an element")},
    {QT_TRANSLATE_NOOP("Core", "Drag"),
     QT_TRANSLATE_NOOP("Core", "Move elements; on empty ground, select with a frame")},
    {QT_TRANSLATE_NOOP("Core", "Drag a handle"), QT_TRANSLATE_NOOP("Core", "Resize, or move a point")},
    {QT_TRANSLATE_NOOP("Core", "Ctrl+Click, Shift+Click"),
     QT_TRANSLATE_NOOP("Core", "Add an element to the selection or take it out")},
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

ShortcutsDialog::ShortcutsDialog(QMainWindow* window)
    : QDialog(window)
    , m_list(new QTreeWidget)
{
    setWindowTitle(coreText("Keyboard Shortcuts"));
    m_list->setColumnCount(2);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setFocusPolicy(Qt::NoFocus);
    const QList<QAction*> menus = window->menuBar()->actions();
    for (const QAction* menu : menus)
        addMenu(menu->menu(), withoutMark(menu->text()));
    addKeys(coreText("Canvas"), CanvasKeys, int(std::size(CanvasKeys)));
    addKeys(coreText("Images"), ImageKeys, int(std::size(ImageKeys)));
    m_list->expandAll();
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(620, 560);
}

void ShortcutsDialog::addMenu(const QMenu* menu, const QString& title)
{
    auto* group = new QTreeWidgetItem({title});
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions) {
        // The first is the one that people use; others are for old or rare keyboards.
        if (!action->shortcut().isEmpty()) {
            group->addChild(new QTreeWidgetItem(
                {action->shortcut().toString(QKeySequence::NativeText), withoutMark(action->text())}));
        }
    }
    if (group->childCount() > 0)
        m_list->addTopLevelItem(group);
    else
        delete group;
}

void ShortcutsDialog::addKeys(const QString& title, const ListedKey* keys, int count)
{
    auto* group = new QTreeWidgetItem({title});
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
    for (int i = 0; i < count; ++i)
        group->addChild(new QTreeWidgetItem({coreText(keys[i].keys), coreText(keys[i].effect)}));
    m_list->addTopLevelItem(group);
}

} // namespace Korvex::Meridane::Designer
