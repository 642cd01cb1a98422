#pragma once

#include <QDialog>

class QAction;
class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QMainWindow;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Korvex::Meridane::Designer {

struct ListedKey;
class ShortcutSettings;

/**
 * Shows the keys of all actions, and what mouse and keys do on the canvas and in the lists, and lets the user change the
 * keys of actions.
 *
 * A key is recorded in the field below the list for the action that is chosen there. One that belongs to another action is
 * taken from it only when the user says so. Changes take effect at once.
 */
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    /// The actions are grouped by the menus of \a window. \a settings outlives the dialog.
    ShortcutsDialog(QMainWindow* window, ShortcutSettings* settings);

    /// Chooses \a action in the list.
    void choose(const QAction* action);

    [[nodiscard]] QKeySequenceEdit* recorder() const { return m_recorder; }
    /// What is said about the keys that were recorded last; empty when there is nothing to say.
    [[nodiscard]] QString message() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill(QMainWindow* window);
    QTreeWidgetItem* addGroup(const QString& title);
    void addKeys(const QString& title, const ListedKey* keys, int count);
    void filter(const QString& text);
    void refresh();
    void showChosen();
    void record();
    void takeOver();
    void say(const QString& message, bool offersTakeOver = false);
    [[nodiscard]] QAction* chosen() const;

    ShortcutSettings* m_settings;
    QLineEdit* m_search;
    QTreeWidget* m_list;
    QLabel* m_name;
    QKeySequenceEdit* m_recorder;
    QPushButton* m_clear;
    QPushButton* m_reset;
    QLabel* m_message;
    QPushButton* m_takeOver;
};

} // namespace Korvex::Meridane::Designer
