#include "runtime/PointList.h"

#include <cmath>

namespace Korvex::Meridane::Display {
std::optional<double> toNumber(const QVariant& value)
{
    double number = 0;
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        number = value.toDouble();
        break;
    default:
        return std::nullopt;
    }
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<QPolygonF> toPolygon(const QVariantList& points)
{
    QPolygonF polygon;
    polygon.reserve(points.size());
    for (const QVariant& entry : points) {
        const QVariantList pair = entry.toList();
        if (pair.size() != 2) {
            return std::nullopt;
        }
        const std::optional<double> x = toNumber(pair.at(0));
        const std::optional<double> y = toNumber(pair.at(1));
        if (!x || !y) {
            return std::nullopt;
        }
        polygon.append(QPointF(*x, *y));
    }
    return polygon;
}
} // namespace Korvex::Meridane::Display
