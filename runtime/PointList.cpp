#include "runtime/PointList.h"

#include <cmath>

namespace Korvex::Meridane::Display {
namespace {
/** As QML does for a property of a number, nothing but a number is taken for one: no text and no truth value. */
std::optional<double> toNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}
} // namespace

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
        if (!x || !y || !std::isfinite(*x) || !std::isfinite(*y)) {
            return std::nullopt;
        }
        polygon.append(QPointF(*x, *y));
    }
    return polygon;
}
} // namespace Korvex::Meridane::Display
