#include "runtime/BorderedItem.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Display {
BorderedItem::BorderedItem(QQuickItem* parent)
    : DisplayItem(parent)
{}

QColor BorderedItem::color() const
{
    return m_color;
}

void BorderedItem::setColor(const QColor& color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    contentChanged();
    Q_EMIT colorChanged();
}

int BorderedItem::borderWidth() const
{
    return m_borderWidth;
}

void BorderedItem::setBorderWidth(int width)
{
    if (width == m_borderWidth) {
        return;
    }
    m_borderWidth = width;
    contentChanged();
    Q_EMIT borderWidthChanged();
}

QColor BorderedItem::borderColor() const
{
    return m_borderColor;
}

void BorderedItem::setBorderColor(const QColor& color)
{
    if (color == m_borderColor) {
        return;
    }
    m_borderColor = color;
    contentChanged();
    Q_EMIT borderColorChanged();
}

QRectF BorderedItem::outerRect() const
{
    if (width() <= 0 || height() <= 0) {
        return QRectF();
    }
    return Common::PaintHelper::getBoundingRect(width(), height(), m_borderWidth);
}

QPen BorderedItem::pen() const
{
    return QPen(m_borderColor, qMax(m_borderWidth, 0));
}
} // namespace Korvex::Meridane::Display
