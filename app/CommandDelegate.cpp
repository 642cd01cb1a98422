#include "app/CommandDelegate.h"

#include "app/CommandModel.h"

#include <QPainter>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Padding = 5; // pixels above and below
constexpr int Margin = 10; // at both ends
constexpr int Gap = 10; // between icon, name, path and keys
constexpr int IconSide = 18;
constexpr double Radius = 4; // of the ground's corners

} // namespace

void CommandDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const bool dimmed = index.data(Qt::ForegroundRole).isValid();
    const QPalette::ColorGroup group = dimmed ? QPalette::Disabled : QPalette::Active;
    const QColor strong = selected ? item.palette.color(QPalette::Active, QPalette::HighlightedText)
                                   : item.palette.color(group, QPalette::Text);
    QColor weak = selected ? strong : item.palette.color(group, QPalette::PlaceholderText);
    weak.setAlphaF(selected ? 0.8F : weak.alphaF());

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (selected) {
        QColor ground = item.palette.color(QPalette::Active, QPalette::Highlight);
        // What cannot be done is not offered as loudly.
        ground.setAlphaF(dimmed ? 0.6F : 1);
        painter->setPen(Qt::NoPen);
        painter->setBrush(ground);
        painter->drawRoundedRect(QRectF(item.rect).adjusted(2, 0, -2, 0), Radius, Radius);
    }
    QRect rest = item.rect.adjusted(Margin, 0, -Margin, 0);
    const QRect icon(rest.left(), rest.center().y() - IconSide / 2 + 1, IconSide, IconSide);
    const QIcon::Mode mode = selected ? QIcon::Selected : dimmed ? QIcon::Disabled : QIcon::Normal;
    item.icon.paint(painter, icon, Qt::AlignCenter, mode);
    rest.setLeft(icon.right() + 1 + Gap);

    painter->setFont(item.font);
    const QFontMetrics metrics(item.font);
    const QString keys = index.data(CommandModel::ShortcutRole).toString();
    painter->setPen(weak);
    painter->drawText(rest, Qt::AlignRight | Qt::AlignVCenter, keys);
    if (!keys.isEmpty())
        rest.setRight(rest.right() - metrics.horizontalAdvance(keys) - Gap);

    painter->setPen(strong);
    const QString name = metrics.elidedText(item.text, Qt::ElideMiddle, rest.width());
    painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
    rest.setLeft(rest.left() + metrics.horizontalAdvance(name) + Gap);
    if (rest.width() > 2 * Gap) {
        painter->setPen(weak);
        painter->drawText(
            rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            metrics.elidedText(index.data(CommandModel::PathRole).toString(), Qt::ElideRight, rest.width()));
    }
    painter->restore();
}

QSize CommandDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {200, qMax(IconSide, option.fontMetrics.height()) + 2 * Padding};
}

} // namespace Korvex::Meridane::Designer
