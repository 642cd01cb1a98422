#include "runtime/Line.h"

#include "host/common/LineGeometry.h"
#include "host/common/PaintHelper.h"

#include <QtGui/QBrush>

namespace Korvex::Meridane::Display {
Line::Line(QQuickItem* parent)
    : OutlinedItem(parent)
{}

QColor Line::color() const
{
    return m_color;
}

void Line::setColor(const QColor& color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    contentChanged();
    Q_EMIT colorChanged();
}

double Line::length() const
{
    return m_length;
}

void Line::setLength(double length)
{
    if (length == m_length) {
        return;
    }
    m_length = length;
    outlineChanged();
    Q_EMIT lengthChanged();
}

double Line::angle() const
{
    return m_angle;
}

void Line::setAngle(double angle)
{
    if (angle == m_angle) {
        return;
    }
    m_angle = angle;
    outlineChanged();
    Q_EMIT angleChanged();
}

int Line::lineWidth() const
{
    return m_lineWidth;
}

void Line::setLineWidth(int width)
{
    if (width == m_lineWidth) {
        return;
    }
    m_lineWidth = width;
    outlineChanged();
    Q_EMIT lineWidthChanged();
}

QRectF Line::outerRect() const
{
    return outline().boundingRect();
}

QRectF Line::contentRect() const
{
    return QRectF();
}

void Line::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintIrregularPolygon(outline(), m_color, painter);
}

QPolygonF Line::outline() const
{
    return Common::lineOutline(m_length, m_angle, m_lineWidth);
}
} // namespace Korvex::Meridane::Display
