#include "app/ThemedIcon.h"

#include "host/core/widgets/IconTint.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace Korvex::Meridane::Designer {

ThemedIcon::ThemedIcon(const QString& file, QPalette::ColorRole role)
    : m_file(file)
    , m_role(role)
{}

QIcon ThemedIcon::named(const QString& name, QPalette::ColorRole role)
{
    return QIcon(new ThemedIcon(QStringLiteral(":/meridane/designer/icons/%1.svg").arg(name), role));
}

void ThemedIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const qreal scale = painter->device() ? painter->device()->devicePixelRatio() : 1;
    painter->drawPixmap(rect, drawn(rect.size() * scale, mode));
}

QPixmap ThemedIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    return drawn(size, mode);
}

QPixmap ThemedIcon::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal)
{
    return drawn(size, mode);
}

QIconEngine* ThemedIcon::clone() const
{
    return new ThemedIcon(*this);
}

QColor ThemedIcon::color(QIcon::Mode mode) const
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected)
        return palette.color(QPalette::HighlightedText);
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, m_role);
}

QPixmap ThemedIcon::drawn(const QSize& pixels, QIcon::Mode mode) const
{
    const QColor ink = color(mode);
    const QString key = QStringLiteral("meridane-icon:%1:%2x%3:%4")
                            .arg(m_file)
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(ink.rgba(), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(pixels);
    pixmap.fill(Qt::transparent);
    if (!pixmap.isNull()) {
        QPainter painter(&pixmap);
        const int side = qMin(pixels.width(), pixels.height());
        QSvgRenderer(m_file).render(&painter,
                                    QRectF((pixels.width() - side) / 2., (pixels.height() - side) / 2., side, side));
        painter.end();
        pixmap = IconTint::tinted(pixmap, ink);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace Korvex::Meridane::Designer
