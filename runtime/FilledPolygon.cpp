#include "runtime/FilledPolygon.h"

#include "host/common/PaintHelper.h"

#include <QtGui/QBrush>

namespace Korvex::Meridane::Display {
FilledPolygon::FilledPolygon(QQuickItem* parent)
    : PointsItem(parent)
{}

QColor FilledPolygon::color() const
{
    return m_color;
}

void FilledPolygon::setColor(const QColor& color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    contentChanged();
    Q_EMIT colorChanged();
}

void FilledPolygon::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintIrregularPolygon(polygon(), m_color, painter);
}
} // namespace Korvex::Meridane::Display
