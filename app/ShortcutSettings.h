#pragma once

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QMainWindow;

namespace Korvex::Meridane::Designer {

/**
 * The keys of the window's actions, as the program comes with them and as the user has changed them.
 *
 * An action is known by its object name, under which the settings keep what differs from the program's own. Changes are
 * saved and take effect at once.
 */
class ShortcutSettings : public QObject
{
    Q_OBJECT

public:
    explicit ShortcutSettings(QMainWindow* window);

    /// Takes in all actions of the window that have a name, and gives them the user's keys. Actions that are made later
    /// keep the keys that they come with.
    void load();

    /// The actions whose keys can be changed.
    [[nodiscard]] QList<QAction*> actions() const;
    /// The keys that \a action comes with.
    [[nodiscard]] QList<QKeySequence> ownShortcuts(const QAction* action) const;
    [[nodiscard]] bool isChanged(const QAction* action) const;

    /// Why \a action cannot have \a keys, whoever else uses them; empty when it can.
    [[nodiscard]] QString refusal(const QAction* action, const QKeySequence& keys) const;
    /// The action other than \a action that \a keys belong to, or null.
    [[nodiscard]] QAction* user(const QKeySequence& keys, const QAction* action) const;

    /// Gives \a action \a keys in place of those that it has (none when empty), and takes them from whoever had them.
    void assign(QAction* action, const QKeySequence& keys);
    /// Gives \a action the keys that it comes with, and takes them from whoever has them.
    void reset(QAction* action);
    void resetAll();

Q_SIGNALS:
    void changed();

private:
    void setShortcuts(QAction* action, const QList<QKeySequence>& shortcuts) const;
    void take(const QKeySequence& keys, const QAction* except) const;

    struct Entry
    {
        QPointer<QAction> action;
        QList<QKeySequence> own;
    };
    QMainWindow* m_window;
    QList<Entry> m_entries;
    QHash<const QAction*, qsizetype> m_places; // in the list
};

} // namespace Korvex::Meridane::Designer
