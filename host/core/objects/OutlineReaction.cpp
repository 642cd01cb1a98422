#include "host/core/objects/OutlineReaction.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/GraphicsOutline.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/RealComparison.h"

#include <QDebug>
#include <QScopeGuard>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double SmallestSide = 1;

/// Nothing where no number of times makes \a after of \a before.
std::optional<double> factor(double before, double after)
{
    if (!(after > 0))
        return std::nullopt;
    if (!(before > 0))
        return 1;
    const double times = after / before;
    return std::isfinite(times) && times > 0 ? std::optional(times) : std::nullopt;
}

std::optional<QSizeF> both(const std::optional<double>& times)
{
    return times ? std::optional(QSizeF(*times, *times)) : std::nullopt;
}

bool isFinite(const QPolygonF& polygon)
{
    return std::all_of(polygon.cbegin(), polygon.cend(),
                       [](const QPointF& point) { return std::isfinite(point.x()) && std::isfinite(point.y()); });
}

/// The length of the outline for which the outer length \a written stands: outer lengths are written with fewer decimals
/// than points have. Where none stands for it, or none can be measured by, it is the outline's own.
double measured(double written, double outline)
{
    constexpr int Decimals = 6;
    return written > 0 && !Common::equalToDecimals(written, outline, Decimals) ? written : outline;
}

double keptRatio(const DesignerObject* element)
{
    const auto keepRatio = element->getProperty(QStringLiteral("keepRatio"));
    bool ok = false;
    const double ratio = keepRatio ? ValueConversion::toReal(keepRatio->valueString(), &ok) : 0;
    return ok ? ratio : 0;
}

/// Moves \a element so that the corner of its outline, which lay at \a before in its coordinates and lies at \a after
/// now, stays in place.
void keepCorner(DesignerObject* element, const QPointF& before, const QPointF& after)
{
    const QPointF shift = before - after;
    const auto position = element->getProperty(QStringLiteral("position"));
    bool ok = false;
    const QPointF place = position ? ValueConversion::toPoint(position->valueString(), &ok) : QPointF();
    if (!ok || (shift.x() == 0 && shift.y() == 0))
        return;
    const QPointF there(shift.x() == 0 ? place.x() : withoutNoise(place.x() + shift.x()),
                        shift.y() == 0 ? place.y() : withoutNoise(place.y() + shift.y()));
    if (std::isfinite(there.x()) && std::isfinite(there.y()))
        element->changePropertyValue(position, ValueConversion::toString(there));
}

} // namespace

std::optional<QSizeF> outlineFactors(const QSizeF& before, const QSizeF& wanted, double ratio)
{
    const bool widthChanged = wanted.width() != before.width();
    const bool heightChanged = wanted.height() != before.height();
    if (!widthChanged && !heightChanged)
        return std::nullopt;
    if (ratio > 0) {
        if (widthChanged && wanted.width() / ratio >= SmallestSide)
            return both(factor(before.width(), wanted.width()));
        if (heightChanged && wanted.height() * ratio >= SmallestSide)
            return both(factor(before.height(), wanted.height()));
        return std::nullopt;
    }
    const auto horizontal = widthChanged ? factor(before.width(), wanted.width()) : 1;
    const auto vertical = heightChanged ? factor(before.height(), wanted.height()) : 1;
    return horizontal && vertical ? std::optional(QSizeF(*horizontal, *vertical)) : std::nullopt;
}

std::optional<QPolygonF> scaledOutline(const QPolygonF& outline, const QSizeF& factors)
{
    if (factors.width() == 1 && factors.height() == 1)
        return outline;
    QPolygonF scaled = outline;
    for (QPointF& point : scaled) {
        // What is not scaled keeps its very numbers.
        point = {factors.width() == 1 ? point.x() : withoutNoise(factors.width() * point.x()),
                 factors.height() == 1 ? point.y() : withoutNoise(factors.height() * point.y())};
    }
    if (!isFinite(scaled))
        return std::nullopt;
    const QSizeF before = outline.boundingRect().size();
    const QSizeF after = scaled.boundingRect().size();
    const bool vanishes =
        (before.width() > 0 && !(after.width() > 0)) || (before.height() > 0 && !(after.height() > 0));
    return vanishes ? std::nullopt : std::optional(scaled);
}

void followBoundingSizeWithPoints(DesignerObject* element, const DesignerProperty* boundingSize,
                                  const QString& oldValue)
{
    auto* item = dynamic_cast<GraphicsOutline*>(element->graphicsItem());
    if (!item || item->isChangingSize())
        return;
    bool hadSize = false;
    const QSizeF old = ValueConversion::toSize(oldValue, &hadSize);
    const QSizeF typed = ValueConversion::toSize(boundingSize->valueString());
    const bool widthChanged = !hadSize || typed.width() != old.width();
    const bool heightChanged = !hadSize || typed.height() != old.height();
    if (!widthChanged && !heightChanged) {
        qDebug("Should not reach here");
        return;
    }

    const QRectF outline = item->polygon().boundingRect();
    const QSizeF before(measured(old.width(), outline.width()), measured(old.height(), outline.height()));
    const QSizeF wanted(widthChanged ? typed.width() : before.width(),
                        heightChanged ? typed.height() : before.height());
    if (wanted.width() == before.width() && wanted.height() == before.height())
        return; // the outline is that large already
    const auto factors = outlineFactors(before, wanted, keptRatio(element));
    const auto scaled = factors ? scaledOutline(item->polygon(), *factors) : std::nullopt;
    if (!scaled) {
        element->changePropertyValue(element->getProperty(boundingSize->id()), oldValue);
        return;
    }
    item->setKeepsOuterSize(true);
    const auto done = qScopeGuard([item] { item->setKeepsOuterSize(false); });
    element->changePropertyValue(element->getProperty(QStringLiteral("points")), ValueConversion::toString(*scaled));
    keepCorner(element, outline.topLeft(), scaled->boundingRect().topLeft());
}

} // namespace Korvex::Meridane::Designer
