#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Meridane::Designer {

/// Paints a command as a row: icon, name, dimmed the place where it is found otherwise, and its keys at the far end.
class CommandDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Korvex::Meridane::Designer
