#pragma once

#include "app/Command.h"

#include <QAbstractListModel>

namespace Korvex::Meridane::Designer {

/// The commands that a search has found, as rows of a list.
class CommandModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        PathRole = Qt::UserRole,
        ShortcutRole
    };

    using QAbstractListModel::QAbstractListModel;

    void setCommands(QList<Command> commands);
    [[nodiscard]] const QList<Command>& commands() const { return m_commands; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// Also commands that cannot be done can be chosen: the keyboard goes through all rows.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QList<Command> m_commands;
};

} // namespace Korvex::Meridane::Designer
