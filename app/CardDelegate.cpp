#include "app/CardDelegate.h"

#include "app/CardGrid.h"

#include <QPainter>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Gap = 12; // between the cards, pixels
constexpr int Padding = 8; // around picture and text
constexpr int TextGap = 8; // between them
constexpr int SymbolSide = 44; // pixels
constexpr double Radius = 6; // of the corners

} // namespace

void CardDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool dimmed = index.data(CardGrid::DimmedRole).toBool();
    const bool hovered = item.state.testFlag(QStyle::State_MouseOver);
    const bool focused = item.state.testFlag(QStyle::State_HasFocus);
    const QPalette& palette = item.palette;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF card = QRectF(item.rect).adjusted(1, 1, -Gap, -Gap);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    painter->setPen(focused ? QPen(highlight, 2)
                            : QPen(hovered ? highlight : palette.color(QPalette::Active, QPalette::Mid), 1));
    painter->setBrush(palette.color(QPalette::Active, QPalette::Base));
    painter->drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);

    const QRectF inner = card.adjusted(Padding, Padding, -Padding, -Padding);
    const QRectF place(inner.topLeft(), QSizeF(inner.width(), option.decorationSize.height()));
    if (dimmed)
        painter->setOpacity(0.45);
    QRect picture = place.toRect();
    if (index.data(CardGrid::SymbolRole).toBool())
        picture = QRect(picture.center() - QPoint(SymbolSide, SymbolSide) / 2, QSize(SymbolSide, SymbolSide));
    item.icon.paint(painter, picture, Qt::AlignCenter);
    painter->setOpacity(1);

    const QFontMetrics metrics(item.font);
    QRectF line(inner.left(), place.bottom() + TextGap, inner.width(), metrics.height());
    painter->setFont(item.font);
    painter->setPen(palette.color(dimmed ? QPalette::Disabled : QPalette::Active, QPalette::Text));
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(item.text, Qt::ElideRight, int(line.width())));
    line.translate(0, metrics.lineSpacing());
    painter->setPen(dimmed ? palette.color(QPalette::Active, QPalette::Link)
                           : palette.color(QPalette::Active, QPalette::PlaceholderText));
    painter->drawText(
        line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics.elidedText(index.data(CardGrid::DetailRole).toString(), Qt::ElideMiddle, int(line.width())));
    painter->restore();
}

QSize CardDelegate::cardSize(const QSize& picture, const QFontMetrics& metrics)
{
    return {picture.width() + 2 * Padding + Gap + 1,
            picture.height() + TextGap + 2 * metrics.lineSpacing() + 2 * Padding + Gap + 1};
}

} // namespace Korvex::Meridane::Designer
