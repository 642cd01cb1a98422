#pragma once

#include "app/NameEditDelegate.h"

namespace Korvex::Meridane::Designer {

/// Draws the rows of the image list: the thumbnail on a checkerboard, the name, and below it size, kind and uses.
class ImageDelegate : public NameEditDelegate
{
    Q_OBJECT

public:
    using NameEditDelegate::NameEditDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// A line for the name; what is selected in it leaves the ending out.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    [[nodiscard]] QRect textRect(const QRect& row, const QFontMetrics& metrics) const override;
};

} // namespace Korvex::Meridane::Designer
