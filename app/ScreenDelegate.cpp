#include "app/ScreenDelegate.h"

#include "app/CoreText.h"
#include "app/ScreenListModel.h"
#include "app/ThemedIcon.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Width = ScreenListModel::ThumbnailSide;
constexpr int Height = 64; // of the room for a thumbnail
constexpr int Margin = 6;
constexpr int Gap = 10;
constexpr double Radius = 5;

QRect thumbnailRoom(const QRect& row)
{
    return {row.left() + Margin + 2, row.center().y() - Height / 2 + 1, Width, Height};
}

void paintThumbnail(QPainter* painter, const QRect& room, const QModelIndex& index, const QPalette& palette)
{
    const auto picture = index.data(ScreenListModel::ThumbnailRole).value<QImage>();
    if (index.data(ScreenListModel::FaultRole).toBool() || picture.isNull()) {
        QColor ground = palette.color(QPalette::Text);
        ground.setAlphaF(0.08F);
        painter->fillRect(room, ground);
        if (index.data(ScreenListModel::FaultRole).toBool()) {
            QRect icon(0, 0, 24, 24);
            icon.moveCenter(room.center());
            ThemedIcon::named(QStringLiteral("warning")).paint(painter, icon);
        }
        return;
    }
    QRectF shown(QPointF(0, 0), QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio));
    shown.moveCenter(QRectF(room).center());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(shown, picture);
    QColor frame = palette.color(QPalette::Text);
    frame.setAlphaF(0.35F);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(frame);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(shown.toAlignedRect().adjusted(0, 0, -1, -1));
    painter->setRenderHint(QPainter::Antialiasing);
}

} // namespace

void ScreenDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    QColor ground = item.palette.color(group, QPalette::Highlight);
    if (!selected)
        ground.setAlphaF(item.state.testFlag(QStyle::State_MouseOver) ? 0.14F : 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool hasKeyboard =
        item.state.testFlag(QStyle::State_HasFocus) && item.state.testFlag(QStyle::State_KeyboardFocusChange);
    painter->setPen(hasKeyboard ? QPen(item.palette.color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
    painter->setBrush(ground);
    painter->drawRoundedRect(QRectF(item.rect).adjusted(3, 1, -3, -1), Radius, Radius);
    paintThumbnail(painter, thumbnailRoom(item.rect), index, item.palette);

    const auto* view = qobject_cast<const QAbstractItemView*>(item.widget);
    if (!view || !view->isPersistentEditorOpen(index)) { // any editor; it stands where the text would
        const QFontMetrics metrics(item.font);
        const QRect text = textRect(item.rect, metrics);
        painter->setFont(item.font);
        painter->setPen(item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(text, Qt::AlignLeft | Qt::AlignTop,
                          metrics.elidedText(item.text, Qt::ElideMiddle, text.width()));
        painter->setFont(option.font);
        if (!selected)
            painter->setPen(item.palette.color(QPalette::PlaceholderText));
        painter->drawText(text, Qt::AlignLeft | Qt::AlignBottom,
                          option.fontMetrics.elidedText(index.data(ScreenListModel::DetailRole).toString(),
                                                        Qt::ElideRight, text.width()));
    }
    painter->restore();
}

QSize ScreenDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {Width + 80, qMax(Height, 2 * option.fontMetrics.height() + 3) + 2 * Margin};
}

QWidget* ScreenDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* line = new QLineEdit(parent);
    line->setAccessibleName(coreText("Name of the screen"));
    return line;
}

QRect ScreenDelegate::textRect(const QRect& row, const QFontMetrics& metrics) const
{
    const int left = thumbnailRoom(row).right() + 1 + Gap;
    const int height = 2 * metrics.height() + 3;
    return {left, row.center().y() - height / 2 + 1, row.right() - Margin - left, height};
}

} // namespace Korvex::Meridane::Designer
