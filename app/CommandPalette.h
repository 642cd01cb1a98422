#pragma once

#include "app/CommandSearch.h"

#include <QFrame>
#include <QPointer>

class QLabel;
class QLineEdit;
class QListView;

namespace Korvex::Meridane::Designer {

class CommandModel;

/**
 * A field over the window that finds commands by a few letters of their names.
 *
 * Up and Down choose, Enter does what is chosen, Escape or a click elsewhere closes the palette. It gives the focus back
 * before anything is done, so that a command works on what the user worked on. A command that cannot be done at the moment is
 * dimmed, and choosing it does nothing. What was used last comes first; the settings remember it.
 */
class CommandPalette : public QFrame
{
    Q_OBJECT

public:
    /// The palette of \a window, over whose upper middle it opens.
    explicit CommandPalette(QWidget* window);
    ~CommandPalette() override;

    /// Opens with \a commands, all of which stay possible while it is open.
    void open(QList<Command> commands);
    /// Closes and gives the focus back; nothing is done.
    void dismiss();

    [[nodiscard]] QLineEdit* field() const { return m_field; }
    [[nodiscard]] QListView* list() const { return m_list; }
    /// What is found, the best first.
    [[nodiscard]] QList<Command> found() const;

    /// The ids of the commands that were used last, the newest first.
    [[nodiscard]] static QStringList recentCommands();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool handleKey(int key);
    void search();
    void place();
    void runChosen();
    void onFocusChanged(QWidget* old, QWidget* now);
    static void remember(const QString& id);

    CommandSearch m_search;
    CommandModel* m_model;
    QLineEdit* m_field;
    QListView* m_list;
    QLabel* m_nothing;
    QPointer<QWidget> m_focusBefore;
};

} // namespace Korvex::Meridane::Designer
