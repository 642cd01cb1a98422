#include "host/core/project/EditorRange.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QVariant>

#include <limits>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QString adviceForSize(const DesignerProperty& property, const QSizeF& minimum)
{
    const QSizeF size = ValueConversion::toSize(property.valueString());
    if (size.width() >= minimum.width() && size.height() >= minimum.height())
        return {};
    return LocalizationHelper::coreString(
               QStringLiteral("%1 is smaller than %2, the smallest size that can be entered; the element may not be "
                              "visible. Enlarge it or remove it."))
        .arg(property.valueString(), ValueConversion::toString(minimum));
}

QString adviceForNumber(const DesignerProperty& property)
{
    const QMap<QString, QVariant>& parameters = property.editorParameters();
    const QVariant minimum = parameters.value(QStringLiteral("minimum"));
    const QVariant maximum = parameters.value(QStringLiteral("maximum"));
    bool ok = false;
    const double number = ValueConversion::toReal(property.valueString(), &ok);
    if (!ok || (!minimum.isValid() && !maximum.isValid()))
        return {};
    constexpr double Unlimited = std::numeric_limits<double>::infinity();
    const bool tooSmall = number < (minimum.isValid() ? minimum.toDouble() : -Unlimited);
    const bool tooLarge = number > (maximum.isValid() ? maximum.toDouble() : Unlimited);
    if (!tooSmall && !tooLarge)
        return {};
    const QString text = tooSmall ? LocalizationHelper::coreString(
                             QStringLiteral("%1 is below %2, the smallest value that can be entered. Correct it."))
                                  : LocalizationHelper::coreString(QStringLiteral(
                                      "%1 is above %2, the largest value that can be entered. Correct it."));
    return text.arg(property.valueString(),
                    ValueConversion::toString(tooSmall ? minimum.toDouble() : maximum.toDouble()));
}

} // namespace

QString editorRangeAdvice(const DesignerProperty& property)
{
    if (!property.hasFlag(Stored) || !property.isConverted())
        return {};
    const QVariant smallestSize = property.editorParameters().value(QStringLiteral("minimumValue"));
    if (smallestSize.isValid() && dynamic_cast<const SizeProperty*>(&property))
        return adviceForSize(property, smallestSize.toSizeF());
    return adviceForNumber(property);
}

} // namespace Korvex::Meridane::Designer
