#pragma once

#include <QListView>

namespace Korvex::Meridane::Designer {

class EditSession;
class HistoryModel;

/// The undo history as a list; a click goes to the state after that step, the canvas and the selection following.
/// Disabled while a gesture is running.
class HistoryPanel : public QListView
{
    Q_OBJECT

public:
    /// \a session outlives the panel.
    explicit HistoryPanel(EditSession* session, QWidget* parent = nullptr);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void showCurrentState();

    EditSession* m_session;
    HistoryModel* m_model;
    bool m_following = false; // the list follows the history, not the other way round
    bool m_showing = false; // the present state is about to be shown
};

} // namespace Korvex::Meridane::Designer
