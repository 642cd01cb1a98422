#include "host/core/objects/BoundingSizeReaction.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// Exact, and false where a value is not a number.
bool differs(double a, double b)
{
    return a < b || a > b;
}

/// Whether \a size is what an editor makes of one typed dimension: the other one has been completed and rounded, and
/// deriving it anew would take the typed one away again.
bool keepsRatio(const QSizeF& size, double ratio)
{
    constexpr double Rounding = 1e-6;
    return std::abs(size.height() * ratio - size.width()) <= Rounding
           || std::abs(size.width() / ratio - size.height()) <= Rounding;
}

QSizeF heightFollows(double width, double ratio, double smallest)
{
    const double height = width / ratio;
    return height < smallest ? QSizeF(smallest * ratio, smallest) : QSizeF(width, height);
}

QSizeF widthFollows(double height, double ratio, double smallest)
{
    const double width = height * ratio;
    return width < smallest ? QSizeF(smallest, smallest / ratio) : QSizeF(width, height);
}

} // namespace

std::optional<QSizeF> reactToBoundingSize(const QSizeF& before, const QSizeF& wanted, double smallest, double ratio)
{
    const bool keep = ratio > 0;
    const bool widthChanged = differs(before.width(), wanted.width());
    const bool heightChanged = differs(before.height(), wanted.height());
    const double width = widthChanged ? std::max(wanted.width(), smallest) : wanted.width();
    const double height = heightChanged ? std::max(wanted.height(), smallest) : wanted.height();
    if (keep && widthChanged && heightChanged && keepsRatio({width, height}, ratio))
        return QSizeF(width, height);
    if (widthChanged)
        return keep ? heightFollows(width, ratio, smallest) : QSizeF(width, height);
    if (heightChanged)
        return keep ? widthFollows(height, ratio, smallest) : QSizeF(width, height);
    return std::nullopt;
}

void followBoundingSize(DesignerObject* element, const DesignerProperty* boundingSize, const QString& oldValue,
                        double border, double smallest)
{
    const auto keepRatio = element->getProperty(QStringLiteral("keepRatio"));
    bool ratioOk = false;
    const double ratio = keepRatio ? ValueConversion::toReal(keepRatio->valueString(), &ratioOk) : 0;
    const auto outer =
        reactToBoundingSize(ValueConversion::toSize(oldValue), ValueConversion::toSize(boundingSize->valueString()),
                            smallest, ratioOk ? ratio : 0);
    if (!outer || !std::isfinite(outer->width()) || !std::isfinite(outer->height())) {
        qDebug("Should not reach here");
        return;
    }
    element->changePropertyValue(element->getProperty(QStringLiteral("size")),
                                 ValueConversion::toString(*outer - QSizeF(border, border)));
}

} // namespace Korvex::Meridane::Designer
