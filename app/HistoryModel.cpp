#include "app/HistoryModel.h"

#include "app/CoreText.h"

#include "host/core/commands/UndoStack.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPalette>
#include <QSize>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int RowPadding = 6; // pixels, so that rows are as high as those of the project tree

} // namespace

HistoryModel::HistoryModel(UndoStack* stack, QObject* parent)
    : QAbstractListModel(parent)
    , m_stack(stack)
{
    // A push also drops the steps that were taken back, so that the rows are read anew with each change.
    connect(stack, &QUndoStack::indexChanged, this, &HistoryModel::update);
    connect(stack, &QUndoStack::undoTextChanged, this, &HistoryModel::update);
    connect(stack, &QUndoStack::cleanChanged, this, &HistoryModel::update);
}

QModelIndex HistoryModel::currentState() const
{
    return index(m_stack->index());
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_stack->count() + 1;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole: {
        if (row == 0)
            return coreText("Beginning");
        const QString step = m_stack->text(row - 1);
        return row == m_stack->cleanIndex() ? coreText("%1 (saved)").arg(step) : step;
    }
    case Qt::ForegroundRole:
        // What has been taken back can still be repeated.
        if (row > m_stack->index())
            return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    case Qt::SizeHintRole:
        return QSize(0, QFontMetrics(QGuiApplication::font()).height() + RowPadding);
    default:
        return {};
    }
}

void HistoryModel::update()
{
    beginResetModel();
    endResetModel();
    Q_EMIT currentStateChanged();
}

} // namespace Korvex::Meridane::Designer
