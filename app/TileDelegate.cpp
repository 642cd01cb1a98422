#include "app/TileDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Padding = 6; // pixels above the picture
constexpr int Gap = 4; // between picture and name
constexpr double Radius = 5; // of the ground's corners

/// Draws \a text centred in \a rect, broken between words into two lines at most, the second one elided.
void drawName(QPainter* painter, const QRect& rect, const QString& text, const QFont& font)
{
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(QTextOption::WordWrap);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    const QFontMetrics metrics(font);
    layout.beginLayout();
    QTextLine first = layout.createLine();
    first.setLineWidth(rect.width());
    layout.endLayout();
    const QString firstText = text.left(first.textLength()).trimmed();
    const QString rest = text.mid(first.textLength()).trimmed();
    painter->setFont(font);
    painter->drawText(QRect(rect.topLeft(), QSize(rect.width(), metrics.height())), Qt::AlignHCenter,
                      metrics.elidedText(firstText, Qt::ElideRight, rect.width()));
    if (!rest.isEmpty()) {
        painter->drawText(rect.adjusted(0, metrics.lineSpacing(), 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                          metrics.elidedText(rest, Qt::ElideRight, rect.width()));
    }
}

} // namespace

void TileDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const bool hovered = item.state.testFlag(QStyle::State_MouseOver);
    QColor ground = item.palette.color(QPalette::Highlight);
    if (!selected)
        ground.setAlphaF(hovered ? 0.14F : 0);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF tile = QRectF(item.rect).adjusted(2, 1, -2, -1);
    if (item.state.testFlag(QStyle::State_HasFocus) && item.state.testFlag(QStyle::State_KeyboardFocusChange))
        painter->setPen(QPen(item.palette.color(QPalette::Highlight), 1.5));
    else
        painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    painter->drawRoundedRect(tile, Radius, Radius);

    const QSize picture = item.decorationSize;
    const QRect place(item.rect.center().x() - picture.width() / 2, item.rect.top() + Padding, picture.width(),
                      picture.height());
    item.icon.paint(painter, place, Qt::AlignCenter,
                    item.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled);
    painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    drawName(painter, item.rect.adjusted(4, Padding + picture.height() + Gap, -4, -2), item.text, item.font);
    painter->restore();
}

} // namespace Korvex::Meridane::Designer
