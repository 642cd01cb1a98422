#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Meridane::Designer {

/// The editing of a row's name in place, for lists with a picture and two lines of text in each row.
class NameEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Leaves what has been typed alone when another part of the row changes.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Beside the picture, in the middle of the row.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    /// Where the text of a row stands: of \a row, with letters of \a metrics.
    [[nodiscard]] virtual QRect textRect(const QRect& row, const QFontMetrics& metrics) const = 0;
};

} // namespace Korvex::Meridane::Designer
