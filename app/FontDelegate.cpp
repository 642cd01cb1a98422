#include "app/FontDelegate.h"

#include "app/CoreText.h"

#include <QPainter>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Margin = 8;
constexpr int SampleHeight = 28; // pixels
constexpr int SampleSize = 18; // of its letters
constexpr double Radius = 5;

} // namespace

void FontDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    QColor ground = item.palette.color(group, QPalette::Highlight);
    if (!selected)
        ground.setAlphaF(item.state.testFlag(QStyle::State_MouseOver) ? 0.14F : 0);
    const QColor ink = item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QStringList families = index.data(FamiliesRole).toStringList();

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool hasKeyboard =
        item.state.testFlag(QStyle::State_HasFocus) && item.state.testFlag(QStyle::State_KeyboardFocusChange);
    painter->setPen(hasKeyboard ? QPen(item.palette.color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
    painter->setBrush(ground);
    painter->drawRoundedRect(QRectF(item.rect).adjusted(3, 1, -3, -1), Radius, Radius);

    const QRect text = item.rect.adjusted(Margin + 3, Margin / 2, -Margin - 3, -Margin / 2);
    painter->setPen(ink);
    QFont sample(families.value(0, item.font.family()));
    sample.setPixelSize(SampleSize);
    painter->setFont(sample);
    const QString line = families.isEmpty() ? coreText("cannot be shown") : coreText("Ag 21.5 °C The quick brown fox");
    painter->drawText(QRect(text.left(), text.top(), text.width(), SampleHeight), Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(sample).elidedText(line, Qt::ElideRight, text.width()));
    painter->setFont(item.font);
    if (!selected)
        painter->setPen(item.palette.color(QPalette::PlaceholderText));
    QString detail = item.text;
    if (!families.isEmpty())
        detail = coreText("%1 · %2").arg(families.join(QLatin1String(", ")), item.text);
    painter->drawText(text, Qt::AlignLeft | Qt::AlignBottom,
                      item.fontMetrics.elidedText(detail, Qt::ElideMiddle, text.width()));
    painter->restore();
}

QSize FontDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {120, SampleHeight + option.fontMetrics.height() + Margin};
}

} // namespace Korvex::Meridane::Designer
