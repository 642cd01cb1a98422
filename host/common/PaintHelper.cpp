#include "host/common/PaintHelper.h"

#include "host/common/FrameResize.h"
#include "host/common/PolygonFill.h"
#include "host/common/RegularPolygonGeometry.h"

#include <QtGui/QBrush>
#include <QtGui/QPainter>
#include <QtGui/QPen>

namespace Korvex::Meridane::Common {
namespace {
/** Far above what the sharpest regular corner (60 degrees, one pen width) needs. */
constexpr double MitreLimit = 10;

/** Sets @p painter up for a shape; false when neither pen nor brush counts. */
bool preparePainter(const QPen& pen, const QBrush& brush, QPainter* painter)
{
    const bool filled = brush.style() != Qt::NoBrush && brush.color().isValid();
    const bool stroked = PaintHelper::penCounts(pen);
    QPen mitred(pen);
    mitred.setJoinStyle(Qt::MiterJoin);
    mitred.setMiterLimit(MitreLimit);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(stroked ? mitred : QPen(Qt::NoPen));
    painter->setBrush(filled ? brush : QBrush(Qt::NoBrush));
    return filled || stroked;
}

bool isDrawable(const QSizeF& size)
{
    return size.width() > 0 && size.height() > 0;
}
} // namespace

bool PaintHelper::penCounts(const QPen& pen)
{
    return pen.style() != Qt::NoPen && pen.widthF() > 0 && pen.color().isValid();
}

QColor PaintHelper::contrastColor(const QColor& color)
{
    const auto contrast = [](int channel) { return channel > 127 ? 0 : 255; };
    return QColor(contrast(color.red()), contrast(color.green()), contrast(color.blue()));
}

QRectF PaintHelper::getBoundingRect(double width, double height, int borderWidth)
{
    const double border = qMax(borderWidth, 0);
    return QRectF(-0.5 * border, -0.5 * border, width + border, height + border);
}

QRectF PaintHelper::getPolygonBoundingRect(int edges, double edgeLength, int borderWidth)
{
    return regularPolygonBoundingRect(edges, edgeLength, borderWidth);
}

void PaintHelper::paintRectangle(const QSizeF& size, int cornerRadius, const QPen& pen, const QBrush& brush,
                                 QPainter* painter)
{
    if (!isDrawable(size)) {
        return;
    }
    painter->save();
    if (preparePainter(pen, brush, painter)) {
        const QRectF content(QPointF(0, 0), size);
        const double radius = qMin<double>(cornerRadius, 0.5 * qMin(size.width(), size.height()));
        if (radius > 0) {
            painter->drawRoundedRect(content, radius, radius);
        } else {
            painter->drawRect(content);
        }
    }
    painter->restore();
}

void PaintHelper::paintEllipse(const QSizeF& size, const QPen& pen, const QBrush& brush, QPainter* painter)
{
    if (!isDrawable(size)) {
        return;
    }
    painter->save();
    if (preparePainter(pen, brush, painter)) {
        painter->drawEllipse(QRectF(QPointF(0, 0), size));
    }
    painter->restore();
}

QPolygonF PaintHelper::paintPolygon(const double& edgeLength, const int& edges, const QPen& pen, const QBrush& brush,
                                    QPainter* painter)
{
    const QPolygonF polygon = regularPolygon(edges, edgeLength);
    if (polygon.isEmpty()) {
        return polygon;
    }
    painter->save();
    if (preparePainter(pen, brush, painter)) {
        painter->drawPolygon(polygon);
    }
    painter->restore();
    return polygon;
}

void PaintHelper::paintIrregularPolygon(const QPolygonF& polygon, const QBrush& brush, QPainter* painter)
{
    painter->save();
    if (preparePainter(QPen(Qt::NoPen), brush, painter)) {
        fillPolygon(polygon, painter);
    }
    painter->restore();
}

void PaintHelper::paintDot(const QPointF& center, const double& diameter, const QColor& color, QPainter* painter)
{
    if (!(diameter > 0)) {
        return;
    }
    painter->save();
    if (preparePainter(QPen(Qt::NoPen), color, painter)) {
        painter->drawEllipse(center, 0.5 * diameter, 0.5 * diameter);
    }
    painter->restore();
}

void PaintHelper::resizeShape(TransformOrigin fixedOrigin, int handle, QSizeF& size, QPointF& position)
{
    const QSizeF present(position.x(), position.y());
    if (!isFrameHandle(handle)) {
        size = present;
        position = QPointF(0, 0);
        return;
    }
    size = size.expandedTo(QSizeF(0, 0));
    position = resizedFrame(fixedOrigin, QRectF(QPointF(0, 0), present), size).topLeft();
    if (fixedOrigin == Center) {
        return;
    }
    const QPointF fractions = originFractions(fixedOrigin);
    if (!handleChangesWidth(handle) && fractions.x() == 0.5) {
        position.setX(0);
    }
    if (!handleChangesHeight(handle) && fractions.y() == 0.5) {
        position.setY(0);
    }
}
} // namespace Korvex::Meridane::Common
