#include "host/core/objects/OutlineReaction.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/GraphicsOutline.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDebug>
#include <QScopeGuard>
#include <QTransform>

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double SmallestSide = 1;

/// 1 where there is nothing to scale, or no number of times to scale it by.
double factor(double before, double after)
{
    const double times = after / before;
    return before > 0 && std::isfinite(times) && times > 0 ? times : 1;
}

std::optional<QSizeF> both(double times)
{
    return QSizeF(times, times);
}

} // namespace

std::optional<QSizeF> outlineFactors(const QSizeF& before, const QSizeF& wanted, double ratio)
{
    const bool widthChanged = wanted.width() != before.width();
    const bool heightChanged = wanted.height() != before.height();
    if (!widthChanged && !heightChanged)
        return std::nullopt;
    const double horizontal = widthChanged ? factor(before.width(), wanted.width()) : 1;
    const double vertical = heightChanged ? factor(before.height(), wanted.height()) : 1;
    if (!(ratio > 0))
        return QSizeF(horizontal, vertical);
    if (widthChanged && wanted.width() / ratio >= SmallestSide)
        return both(horizontal);
    if (heightChanged && wanted.height() * ratio >= SmallestSide)
        return both(vertical);
    return std::nullopt;
}

QPolygonF scaledOutline(const QPolygonF& outline, const QSizeF& factors)
{
    if (factors.width() == 1 && factors.height() == 1)
        return outline;
    QPolygonF scaled = QTransform::fromScale(factors.width(), factors.height()).map(outline);
    for (QPointF& point : scaled)
        point = withoutNoise(point);
    return scaled;
}

void followBoundingSizeWithPoints(DesignerObject* element, const DesignerProperty* boundingSize,
                                  const QString& oldValue)
{
    auto* item = dynamic_cast<GraphicsOutline*>(element->graphicsItem());
    if (!item || item->isChangingSize())
        return;
    const QSizeF before = ValueConversion::toSize(oldValue);
    const QSizeF wanted = ValueConversion::toSize(boundingSize->valueString());
    if (before.width() == wanted.width() && before.height() == wanted.height()) {
        qDebug("Should not reach here");
        return;
    }
    bool ratioOk = false;
    const auto keepRatio = element->getProperty(QStringLiteral("keepRatio"));
    const double ratio = keepRatio ? ValueConversion::toReal(keepRatio->valueString(), &ratioOk) : 0;
    const auto factors = outlineFactors(before, wanted, ratioOk ? ratio : 0);
    if (!factors) {
        element->changePropertyValue(element->getProperty(boundingSize->id()), oldValue);
        return;
    }
    item->setKeepsOuterSize(true);
    const auto done = qScopeGuard([item] { item->setKeepsOuterSize(false); });
    const QPointF corner = item->polygon().boundingRect().topLeft();
    const QPolygonF scaled = scaledOutline(item->polygon(), *factors);
    element->changePropertyValue(element->getProperty(QStringLiteral("points")), ValueConversion::toString(scaled));
    const QPointF shift = corner - scaled.boundingRect().topLeft();
    const auto position = element->getProperty(QStringLiteral("position"));
    bool positionOk = false;
    const QPointF place = position ? ValueConversion::toPoint(position->valueString(), &positionOk) : QPointF();
    if (positionOk && (shift.x() != 0 || shift.y() != 0))
        element->changePropertyValue(position, ValueConversion::toString(withoutNoise(place + shift)));
}

} // namespace Korvex::Meridane::Designer
