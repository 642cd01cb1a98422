#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Meridane::Designer {

/// Paints the cards of a CardGrid. The picture keeps its sides' ratio; what the mouse or the keyboard points at is framed.
class CardDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// The size of a card around a picture of \a picture pixels and two lines of text.
    [[nodiscard]] static QSize cardSize(const QSize& picture, const QFontMetrics& metrics);
};

} // namespace Korvex::Meridane::Designer
