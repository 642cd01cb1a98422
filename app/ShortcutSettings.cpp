#include "app/ShortcutSettings.h"

#include "app/AppSettings.h"
#include "app/CoreText.h"
#include "app/MenuText.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>

namespace Korvex::Meridane::Designer {

namespace {

const QString Group = QStringLiteral("shortcuts/");

QStringList textsOf(const QList<QKeySequence>& shortcuts)
{
    QStringList texts;
    for (const QKeySequence& keys : shortcuts)
        texts.append(keys.toString(QKeySequence::PortableText));
    return texts;
}

/// Keys that the canvas and every list and field use for themselves, as they are and with Shift.
bool isKeyOfWidgets(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

/// The keys that elements on the canvas use together with Alt.
bool isKeyOfElements(int key)
{
    return key == Qt::Key_Minus || key == Qt::Key_Plus || key == Qt::Key_Equal
           || (key < 128 && QString(MenuText::ReservedLetters).contains(QChar(key).toLower()));
}

} // namespace

ShortcutSettings::ShortcutSettings(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{}

void ShortcutSettings::load()
{
    const QList<QAction*> actions = m_window->findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->objectName().contains(QLatin1Char('.')) && !action->menu() && !m_places.contains(action)) {
            m_places.insert(action, m_entries.size());
            m_entries.append({action, action->shortcuts()});
        }
    }
    const AppSettings settings;
    for (const Entry& entry : std::as_const(m_entries)) {
        const QString key = Group + entry.action->objectName();
        if (!settings.contains(key))
            continue;
        QList<QKeySequence> shortcuts;
        const QStringList texts = settings.value(key).toStringList();
        for (const QString& text : texts) {
            // What a newer or older program has given away may be in the way.
            const QKeySequence keys(text, QKeySequence::PortableText);
            if (!keys.isEmpty() && refusal(entry.action, keys).isEmpty()) {
                take(keys, entry.action);
                shortcuts.append(keys);
            }
        }
        entry.action->setShortcuts(shortcuts);
    }
}

QList<QAction*> ShortcutSettings::actions() const
{
    QList<QAction*> actions;
    for (const Entry& entry : m_entries) {
        if (entry.action)
            actions.append(entry.action);
    }
    return actions;
}

QList<QKeySequence> ShortcutSettings::ownShortcuts(const QAction* action) const
{
    const auto place = m_places.constFind(action);
    return place == m_places.cend() ? QList<QKeySequence>() : m_entries.at(*place).own;
}

bool ShortcutSettings::isChanged(const QAction* action) const
{
    return action->shortcuts() != ownShortcuts(action);
}

QString ShortcutSettings::refusal(const QAction* action, const QKeySequence& keys) const
{
    if (keys.isEmpty() || ownShortcuts(action).contains(keys))
        return {};
    const QKeyCombination first = keys[0];
    const Qt::KeyboardModifiers modifiers = first.keyboardModifiers() & ~Qt::KeypadModifier;
    const int key = first.key();
    const QString name = keys.toString(QKeySequence::NativeText);
    if (key == 0 || key == Qt::Key_unknown)
        return coreText("This key has no name that can be kept.");
    if ((modifiers & ~Qt::ShiftModifier) == Qt::NoModifier) {
        if (isKeyOfWidgets(key))
            return coreText("%1 is a key of the canvas and of lists and fields.").arg(name);
        if (key >= Qt::Key_Space && key <= Qt::Key_ydiaeresis)
            return coreText("%1 is needed for typing. Add Ctrl or Alt to it.").arg(name);
    }
    if (modifiers == Qt::AltModifier) {
        if (isKeyOfElements(key))
            return coreText("%1 is a key of elements on the canvas.").arg(name);
        const QList<QAction*> menus = m_window->menuBar()->actions();
        for (const QAction* menu : menus) {
            if (QKeySequence::mnemonic(menu->text()) == keys)
                return coreText("%1 opens the menu %2.").arg(name, MenuText::plain(menu->text()));
        }
    }
    return {};
}

QAction* ShortcutSettings::user(const QKeySequence& keys, const QAction* action) const
{
    if (keys.isEmpty())
        return nullptr;
    for (const Entry& entry : m_entries) {
        if (entry.action && entry.action != action && entry.action->shortcuts().contains(keys))
            return entry.action;
    }
    return nullptr;
}

void ShortcutSettings::assign(QAction* action, const QKeySequence& keys)
{
    take(keys, action);
    setShortcuts(action, keys.isEmpty() ? QList<QKeySequence>() : QList<QKeySequence>{keys});
    Q_EMIT changed();
}

void ShortcutSettings::reset(QAction* action)
{
    const QList<QKeySequence> own = ownShortcuts(action);
    for (const QKeySequence& keys : own)
        take(keys, action);
    setShortcuts(action, own);
    Q_EMIT changed();
}

void ShortcutSettings::resetAll()
{
    for (const Entry& entry : std::as_const(m_entries)) {
        if (entry.action)
            entry.action->setShortcuts(entry.own);
    }
    AppSettings().remove(Group.chopped(1));
    Q_EMIT changed();
}

void ShortcutSettings::setShortcuts(QAction* action, const QList<QKeySequence>& shortcuts) const
{
    action->setShortcuts(shortcuts);
    AppSettings settings;
    const QString key = Group + action->objectName();
    if (isChanged(action))
        settings.setValue(key, textsOf(shortcuts));
    else
        settings.remove(key);
}

void ShortcutSettings::take(const QKeySequence& keys, const QAction* except) const
{
    while (QAction* former = user(keys, except)) {
        QList<QKeySequence> rest = former->shortcuts();
        rest.removeAll(keys);
        setShortcuts(former, rest);
    }
}

} // namespace Korvex::Meridane::Designer
