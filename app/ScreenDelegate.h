#pragma once

#include "app/NameEditDelegate.h"

namespace Korvex::Meridane::Designer {

/// Paints a row of the screen list: the thumbnail, beside it the name and below that the size.
class ScreenDelegate : public NameEditDelegate
{
    Q_OBJECT

public:
    using NameEditDelegate::NameEditDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    [[nodiscard]] QRect textRect(const QRect& row, const QFontMetrics& metrics) const override;
};

} // namespace Korvex::Meridane::Designer
