#include "host/common/PaintHelper.h"
#include "host/common/PolygonFill.h"

#include <QtGui/QBrush>
#include <QtGui/QPainter>

#include <cmath>

namespace Korvex::Meridane::Common {
namespace {
/**
 * Farther away no gradient looks any different, while the painter's arithmetic would leave its numbers, and with a radial
 * gradient the memory of its colours.
 */
constexpr double Farthest = 1e9;

/** A circle without a radius has no colours; the smallest one leaves the last colour to everything. */
constexpr double SmallestRadius = 0.001;

double limited(double length)
{
    return qBound(-Farthest, length, Farthest);
}

QPointF limited(const QPointF& point)
{
    return QPointF(limited(point.x()), limited(point.y()));
}

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/** @p percent (0 … 100 from left to right and from top to bottom) as a point of @p bounds. */
QPointF percentPoint(const QPointF& percent, const QRectF& bounds)
{
    return limited(
        QPointF(bounds.x() + percent.x() / 100 * bounds.width(), bounds.y() + percent.y() / 100 * bounds.height()));
}

void fillPolygon(const QPolygonF& polygon, QGradient& gradient, QPainter* painter)
{
    gradient.setCoordinateMode(QGradient::LogicalMode);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    Common::fillPolygon(polygon, painter);
    painter->restore();
}
} // namespace

void PaintHelper::paintGradientItem(const QPolygonF& polygon, const QLinearGradient& gradient, QPainter* painter)
{
    if (!isFinite(gradient.start()) || !isFinite(gradient.finalStop())) {
        return;
    }
    const QRectF bounds = polygon.boundingRect();
    QLinearGradient mapped(gradient);
    mapped.setStart(percentPoint(gradient.start(), bounds));
    mapped.setFinalStop(percentPoint(gradient.finalStop(), bounds));
    fillPolygon(polygon, mapped, painter);
}

void PaintHelper::paintGradientItem(const QPolygonF& polygon, const QRadialGradient& gradient, QPainter* painter)
{
    if (!isFinite(gradient.center()) || !isFinite(gradient.focalPoint()) || !std::isfinite(gradient.radius())) {
        return;
    }
    // Only this constructor moves a focal point outside the circle onto it; the setters keep it where it is.
    QRadialGradient adjusted(limited(gradient.center()), qBound(SmallestRadius, gradient.radius(), Farthest),
                             limited(gradient.focalPoint()));
    adjusted.setStops(gradient.stops());
    adjusted.setSpread(gradient.spread());
    fillPolygon(polygon, adjusted, painter);
}

void PaintHelper::paintGradientItem(const QPolygonF& polygon, const QConicalGradient& gradient, QPainter* painter)
{
    if (!isFinite(gradient.center()) || !std::isfinite(gradient.angle())) {
        return;
    }
    QConicalGradient mapped(gradient);
    mapped.setCenter(percentPoint(gradient.center(), polygon.boundingRect()));
    // Clockwise degrees; those of a QConicalGradient run the other way.
    mapped.setAngle(std::fmod(360 - gradient.angle(), 360));
    fillPolygon(polygon, mapped, painter);
}
} // namespace Korvex::Meridane::Common
