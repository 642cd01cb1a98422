#include "app/HistoryPanel.h"

#include "app/CoreText.h"
#include "app/HistoryModel.h"

#include "host/core/canvas/EditSession.h"

#include <QScopedValueRollback>

#include <utility>

namespace Korvex::Meridane::Designer {

HistoryPanel::HistoryPanel(EditSession* session, QWidget* parent)
    : QListView(parent)
    , m_session(session)
    , m_model(new HistoryModel(session->undoStack(), this))
{
    setObjectName(QStringLiteral("HistoryPanel"));
    setAccessibleName(coreText("History"));
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setModel(m_model);
    // Once for all steps of a turn: the view lays out all its rows for it.
    connect(m_model, &HistoryModel::currentStateChanged, this, [this] {
        if (!std::exchange(m_showing, true))
            QMetaObject::invokeMethod(this, &HistoryPanel::showCurrentState, Qt::QueuedConnection);
    });
    connect(session->undoStack(), &UndoStack::blockedChanged, this, [this](bool blocked) { setEnabled(!blocked); });
    showCurrentState();
}

void HistoryPanel::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    if (m_following || !current.isValid())
        return;
    // The list is rebuilt by the step, which must not happen inside the view's own handling of the click.
    QMetaObject::invokeMethod(
        this, [this, row = current.row()] { m_session->undoStack()->goTo(row); }, Qt::QueuedConnection);
}

QSize HistoryPanel::sizeHint() const
{
    return {260, 160};
}

void HistoryPanel::showCurrentState()
{
    m_showing = false;
    const QScopedValueRollback<bool> following(m_following, true);
    setCurrentIndex(m_model->currentState());
    scrollTo(m_model->currentState());
}

} // namespace Korvex::Meridane::Designer
