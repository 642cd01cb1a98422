#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Meridane::Designer {

/// Draws the tiles of the palette: a picture above a name of up to two lines, on a rounded ground that shows which tile
/// is under the mouse, chosen, or has the keyboard.
class TileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Korvex::Meridane::Designer
