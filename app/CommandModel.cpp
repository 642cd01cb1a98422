#include "app/CommandModel.h"

#include "app/CoreText.h"

#include <QGuiApplication>
#include <QPalette>

namespace Korvex::Meridane::Designer {

void CommandModel::setCommands(QList<Command> commands)
{
    beginResetModel();
    m_commands = std::move(commands);
    endResetModel();
}

int CommandModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_commands.size());
}

QVariant CommandModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Command& command = m_commands.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return command.text;
    case Qt::DecorationRole:
        return command.icon;
    case Qt::AccessibleDescriptionRole:
        return command.enabled ? QStringList{command.path, command.shortcut}.join(QLatin1Char(' ')).trimmed()
                               : coreText("Not possible at the moment");
    case Qt::ForegroundRole:
        return command.enabled ? QVariant() : QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    case PathRole:
        return command.path;
    case ShortcutRole:
        return command.shortcut;
    default:
        return {};
    }
}

Qt::ItemFlags CommandModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

} // namespace Korvex::Meridane::Designer
