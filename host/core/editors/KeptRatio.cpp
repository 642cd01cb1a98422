#include "host/core/editors/KeptRatio.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

double rounded(double value)
{
    constexpr double Scale = 1e6;
    return std::round(value * Scale) / Scale;
}

} // namespace

double keptRatio(const DesignerObject* object)
{
    if (!object)
        return 0;
    for (const auto& property : object->properties()) {
        if (property->editor() != QLatin1String("KeepRatioEditor"))
            continue;
        bool ok = false;
        const double ratio = ValueConversion::toReal(property->valueString(), &ok);
        return ok && ratio > 0 ? ratio : 0;
    }
    return 0;
}

double outerRatio(const DesignerObject* object)
{
    const auto property = object ? object->getProperty(QStringLiteral("boundingSize")) : nullptr;
    bool ok = false;
    const QSizeF size = property ? ValueConversion::toSize(property->valueString(), &ok) : QSizeF();
    return ok && size.width() > 0 && size.height() > 0 ? size.width() / size.height() : 0;
}

QSizeF sizeCompletedToRatio(const QSizeF& present, const QSizeF& wanted, double ratio, const QSizeF& minimum)
{
    // Exact comparison: an edit of one dimension hands the other one on as it stands.
    const bool widthDiffers = wanted.width() != present.width();
    const bool heightDiffers = wanted.height() != present.height();
    if (!(ratio > 0) || (!widthDiffers && !heightDiffers))
        return wanted;
    QSizeF size = wanted;
    if (widthDiffers)
        size.setHeight(size.width() / ratio);
    else
        size.setWidth(size.height() * ratio);
    if (size.height() < minimum.height())
        size = QSizeF(minimum.height() * ratio, minimum.height());
    if (size.width() < minimum.width())
        size = QSizeF(minimum.width(), minimum.width() / ratio);
    return {rounded(size.width()), rounded(size.height())};
}

} // namespace Korvex::Meridane::Designer
