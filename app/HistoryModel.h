#pragma once

#include <QAbstractListModel>

namespace Korvex::Meridane::Designer {

class UndoStack;

/// The steps of an undo history as rows: the state at the beginning, then the state after each step.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// \a stack outlives the model.
    explicit HistoryModel(UndoStack* stack, QObject* parent = nullptr);

    /// The row of the present state.
    [[nodiscard]] QModelIndex currentState() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// The present state is another one, or the history itself has changed.
    void currentStateChanged();

private:
    void update();

    UndoStack* m_stack;
};

} // namespace Korvex::Meridane::Designer
