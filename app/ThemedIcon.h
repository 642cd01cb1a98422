#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QPalette>

namespace Korvex::Meridane::Designer {

/**
 * A line icon in the colour of the text around it.
 *
 * The drawing is an SVG in one colour whose alpha alone counts. It is drawn anew for every size and scale, and in the
 * colour that the application's palette has at that moment, so that it is legible on light and dark and sharp on every
 * screen.
 */
class ThemedIcon : public QIconEngine
{
public:
    /// \a role: the palette's colour for the drawing.
    explicit ThemedIcon(const QString& file, QPalette::ColorRole role = QPalette::WindowText);

    /// The icon drawn in app/icons/\a name.svg, in the palette's colour for \a role.
    [[nodiscard]] static QIcon named(const QString& name, QPalette::ColorRole role = QPalette::WindowText);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    [[nodiscard]] QIconEngine* clone() const override;

private:
    [[nodiscard]] QColor color(QIcon::Mode mode) const;
    [[nodiscard]] QPixmap drawn(const QSize& pixels, QIcon::Mode mode) const;

    QString m_file;
    QPalette::ColorRole m_role;
};

} // namespace Korvex::Meridane::Designer
