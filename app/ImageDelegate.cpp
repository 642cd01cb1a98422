#include "app/ImageDelegate.h"

#include "app/Appearance.h"
#include "app/CoreText.h"
#include "app/ImageListModel.h"
#include "app/ThemedIcon.h"

#include <QAbstractItemView>
#include <QFileInfo>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Side = ImageListModel::ThumbnailSide;
constexpr int Margin = 6; // pixels around the content of a row
constexpr int Gap = 10; // between thumbnail and text
constexpr double Radius = 5; // of the ground's corners
constexpr double FrameRadius = 3; // of the thumbnail's

QColor mixed(const QColor& one, const QColor& other, double share)
{
    return QColor::fromRgbF(float(one.redF() + (other.redF() - one.redF()) * share),
                            float(one.greenF() + (other.greenF() - one.greenF()) * share),
                            float(one.blueF() + (other.blueF() - one.blueF()) * share));
}

QRect thumbnailRect(const QRect& row)
{
    return {row.left() + Margin + 2, row.center().y() - Side / 2 + 1, Side, Side};
}

/// The line of the name and the one below it, together.
/// The ground on which transparent pictures stand; white and black ones are seen on it.
void paintGround(QPainter* painter, const QRectF& rect, const QPalette& palette)
{
    constexpr int Square = 5;
    const bool isDark = Appearance::isDark(palette);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    painter->fillRect(rect, mixed(base, text, isDark ? 0.52 : 0.14));
    const QColor other = mixed(base, text, isDark ? 0.42 : 0.26);
    for (int row = 0; row * Square < rect.height(); ++row) {
        for (int column = row % 2; column * Square < rect.width(); column += 2) {
            const QPointF corner(rect.left() + column * Square, rect.top() + row * Square);
            painter->fillRect(QRectF(corner, QSizeF(Square, Square)).intersected(rect), other);
        }
    }
}

void paintThumbnail(QPainter* painter, const QRect& rect, const QModelIndex& index, const QPalette& palette)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.08));
    painter->drawRoundedRect(rect, FrameRadius, FrameRadius);
    const auto picture = index.data(ImageListModel::ThumbnailRole).value<QImage>();
    if (picture.isNull()) {
        if (index.data(ImageListModel::FaultRole).toBool())
            ThemedIcon::named(QStringLiteral("warning")).paint(painter, rect.adjusted(10, 10, -10, -10));
        return;
    }
    QSizeF size = picture.size();
    if (size.width() > Side || size.height() > Side)
        size.scale(Side, Side, Qt::KeepAspectRatio);
    const QRectF shown(QPointF(rect.left() + (Side - size.width()) / 2, rect.top() + (Side - size.height()) / 2), size);
    QPainterPath frame;
    frame.addRoundedRect(rect, FrameRadius, FrameRadius);
    painter->save();
    painter->setClipPath(frame, Qt::IntersectClip);
    if (picture.hasAlphaChannel())
        paintGround(painter, shown, palette);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(shown, picture);
    painter->restore();
}

} // namespace

void ImageDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const bool hovered = item.state.testFlag(QStyle::State_MouseOver);
    const bool active = item.state.testFlag(QStyle::State_Active);
    const QPalette::ColorGroup group = active ? QPalette::Active : QPalette::Inactive;
    QColor ground = item.palette.color(group, QPalette::Highlight);
    if (!selected)
        ground.setAlphaF(hovered ? 0.14F : 0);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool hasKeyboard =
        item.state.testFlag(QStyle::State_HasFocus) && item.state.testFlag(QStyle::State_KeyboardFocusChange);
    painter->setPen(hasKeyboard ? QPen(item.palette.color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
    painter->setBrush(ground);
    painter->drawRoundedRect(QRectF(item.rect).adjusted(3, 1, -3, -1), Radius, Radius);
    paintThumbnail(painter, thumbnailRect(item.rect), index, item.palette);

    const auto* view = qobject_cast<const QAbstractItemView*>(item.widget);
    if (view && view->isPersistentEditorOpen(index)) { // any editor; it stands where the text would
        painter->restore();
        return;
    }
    const QRect text = textRect(item.rect, item.fontMetrics);
    const QColor ink = item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor dim = selected ? mixed(ink, ground, 0.2) : item.palette.color(QPalette::PlaceholderText);
    painter->setFont(item.font);
    painter->setPen(ink);
    // The end of a name tells as much as its beginning.
    painter->drawText(text, Qt::AlignLeft | Qt::AlignTop,
                      item.fontMetrics.elidedText(item.text, Qt::ElideMiddle, text.width()));

    painter->setPen(dim);
    const QString uses = index.data(ImageListModel::UsesRole).toString();
    const QString detail = index.data(ImageListModel::DetailRole).toString();
    const int usesWidth = uses.isEmpty() ? 0 : item.fontMetrics.horizontalAdvance(uses);
    painter->drawText(text, Qt::AlignRight | Qt::AlignBottom, uses);
    const int detailWidth = text.width() - usesWidth - (uses.isEmpty() ? 0 : Gap);
    painter->drawText(text, Qt::AlignLeft | Qt::AlignBottom,
                      item.fontMetrics.elidedText(detail, Qt::ElideRight, std::max(0, detailWidth)));
    painter->restore();
}

QSize ImageDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {120, std::max(Side, 2 * option.fontMetrics.height() + 3) + 2 * Margin};
}

QWidget* ImageDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    auto* line = new QLineEdit(parent);
    line->setAccessibleName(coreText("Name of the image"));
    const QString name = index.data(Qt::EditRole).toString();
    const auto base = int(QFileInfo(name).completeBaseName().size());
    // The view selects everything when it has shown the editor.
    QMetaObject::invokeMethod(
        line,
        [line, name, base] {
            if (line->text() == name)
                line->setSelection(0, base);
        },
        Qt::QueuedConnection);
    return line;
}

QRect ImageDelegate::textRect(const QRect& row, const QFontMetrics& metrics) const
{
    const int left = thumbnailRect(row).right() + 1 + Gap;
    const int height = 2 * metrics.height() + 3;
    return {left, row.center().y() - height / 2 + 1, row.right() - Margin - 2 - left, height};
}

} // namespace Korvex::Meridane::Designer
