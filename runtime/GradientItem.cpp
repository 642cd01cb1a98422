#include "runtime/GradientItem.h"

#include "host/common/GradientStops.h"
#include "runtime/PointList.h"

#include <QtGui/QColor>
#include <QtQml/QQmlInfo>

#include <optional>

namespace Korvex::Meridane::Display {
namespace {
std::optional<QGradientStops> toStops(const QVariantList& list)
{
    QGradientStops stops;
    for (const QVariant& entry : list) {
        const QVariantList pair = entry.toList();
        const std::optional<double> position = pair.size() == 2 ? toNumber(pair.at(0)) : std::nullopt;
        const QColor color = pair.size() == 2 ? pair.at(1).value<QColor>() : QColor();
        if (!position || !color.isValid()) {
            return std::nullopt;
        }
        stops.append({*position, color});
    }
    return stops;
}
} // namespace

GradientItem::GradientItem(QQuickItem* parent)
    : PointsItem(parent)
    , m_gradientStops({QVariantList{0.33, QColor(248, 151, 29)}, QVariantList{0.67, QColor(Qt::white)}})
    , m_stops({{0.33, QColor(248, 151, 29)}, {0.67, QColor(Qt::white)}})
{}

QVariantList GradientItem::gradientStops() const
{
    return m_gradientStops;
}

void GradientItem::setGradientStops(const QVariantList& stops)
{
    const std::optional<QGradientStops> converted = toStops(stops);
    if (!converted) {
        qmlWarning(this) << "gradientStops: not a list of [position, color]";
        return;
    }
    if (stops == m_gradientStops) {
        return;
    }
    m_gradientStops = stops;
    m_stops = Common::drawableStops(*converted);
    contentChanged();
    Q_EMIT gradientStopsChanged();
}
} // namespace Korvex::Meridane::Display
