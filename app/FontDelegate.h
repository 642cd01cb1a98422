#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Meridane::Designer {

/// Paints a row of the font list: a sample line in the font, below it the file's name and its families.
class FontDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int FamiliesRole = Qt::UserRole; ///< QStringList

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Korvex::Meridane::Designer
