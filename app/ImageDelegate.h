#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Meridane::Designer {

/// Draws the rows of the image list: the thumbnail on a checkerboard, the name, and below it size, kind and uses.
class ImageDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// A line for the name; what is selected in it leaves the ending out.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Leaves what has been typed alone when another part of the row changes.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

} // namespace Korvex::Meridane::Designer
