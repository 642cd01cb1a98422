#include "runtime/Rectangle2.h"

#include "host/common/PaintHelper.h"

#include <QtGui/QBrush>
#include <QtGui/QPen>

namespace Korvex::Meridane::Display {
using Common::PaintHelper;

Rectangle2::Rectangle2(QQuickItem* parent)
    : DisplayItem(parent)
{}

QColor Rectangle2::color() const
{
    return m_color;
}

void Rectangle2::setColor(const QColor& color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    contentChanged();
    Q_EMIT colorChanged();
}

int Rectangle2::cornerRadius() const
{
    return m_cornerRadius;
}

void Rectangle2::setCornerRadius(int radius)
{
    if (radius == m_cornerRadius) {
        return;
    }
    m_cornerRadius = radius;
    contentChanged();
    Q_EMIT cornerRadiusChanged();
}

int Rectangle2::borderWidth() const
{
    return m_borderWidth;
}

void Rectangle2::setBorderWidth(int width)
{
    if (width == m_borderWidth) {
        return;
    }
    m_borderWidth = width;
    contentChanged();
    Q_EMIT borderWidthChanged();
}

QColor Rectangle2::borderColor() const
{
    return m_borderColor;
}

void Rectangle2::setBorderColor(const QColor& color)
{
    if (color == m_borderColor) {
        return;
    }
    m_borderColor = color;
    contentChanged();
    Q_EMIT borderColorChanged();
}

QRectF Rectangle2::outerRect() const
{
    if (width() <= 0 || height() <= 0) {
        return QRectF();
    }
    return PaintHelper::getBoundingRect(width(), height(), m_borderWidth);
}

void Rectangle2::paintContent(QPainter* painter) const
{
    PaintHelper::paintRectangle(size(), m_cornerRadius, QPen(m_borderColor, qMax(m_borderWidth, 0)), m_color, painter);
}
} // namespace Korvex::Meridane::Display
