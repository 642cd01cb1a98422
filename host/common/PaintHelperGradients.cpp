#include "host/common/PaintHelper.h"

#include <QtGui/QBrush>
#include <QtGui/QPainter>

#include <cmath>

namespace Korvex::Meridane::Common {
namespace {
/** @p percent (0 … 100 from left to right and from top to bottom) as a point of @p bounds. */
QPointF percentPoint(const QPointF& percent, const QRectF& bounds)
{
    return QPointF(bounds.x() + percent.x() / 100 * bounds.width(), bounds.y() + percent.y() / 100 * bounds.height());
}

void fillPolygon(const QPolygonF& polygon, QGradient& gradient, QPainter* painter)
{
    gradient.setCoordinateMode(QGradient::LogicalMode);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->drawPolygon(polygon, Qt::OddEvenFill);
    painter->restore();
}
} // namespace

void PaintHelper::paintGradientItem(const QPolygonF& polygon, const QLinearGradient& gradient, QPainter* painter)
{
    const QRectF bounds = polygon.boundingRect();
    QLinearGradient mapped(gradient);
    mapped.setStart(percentPoint(gradient.start(), bounds));
    mapped.setFinalStop(percentPoint(gradient.finalStop(), bounds));
    fillPolygon(polygon, mapped, painter);
}

void PaintHelper::paintGradientItem(const QPolygonF& polygon, const QRadialGradient& gradient, QPainter* painter)
{
    // Only this constructor moves a focal point outside the circle onto it; the setters keep it where it is.
    QRadialGradient adjusted(gradient.center(), gradient.radius(), gradient.focalPoint());
    adjusted.setStops(gradient.stops());
    adjusted.setSpread(gradient.spread());
    fillPolygon(polygon, adjusted, painter);
}

void PaintHelper::paintGradientItem(const QPolygonF& polygon, const QConicalGradient& gradient, QPainter* painter)
{
    QConicalGradient mapped(gradient);
    mapped.setCenter(percentPoint(gradient.center(), polygon.boundingRect()));
    // Clockwise degrees; those of a QConicalGradient run the other way.
    mapped.setAngle(std::fmod(360 - gradient.angle(), 360));
    fillPolygon(polygon, mapped, painter);
}
} // namespace Korvex::Meridane::Common
