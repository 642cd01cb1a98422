#include "host/core/sheet/DefaultValues.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {

namespace {

/// The types of the properties that the size of an element may follow from.
constexpr std::array SizingTypes{"SizeProperty", "PointListProperty", "RealProperty", "IntegerProperty"};

bool ownValueDiffers(const DesignerProperty& property)
{
    const QString& declared = property.defaultValueString();
    return property.valueString() != declared && !property.equalsValue(declared);
}

bool isSizing(const DesignerProperty& property)
{
    const QString type = property.className();
    return property.hasFlag(Stored) && std::any_of(SizingTypes.begin(), SizingTypes.end(), [&type](const char* name) {
               return type == QLatin1String(name);
           });
}

} // namespace

bool isDerivedSize(const DesignerProperty& property)
{
    return !property.hasFlag(Stored) && property.className() == QLatin1String("SizeProperty");
}

bool hasDefaultValue(const DesignerProperty& property)
{
    if (!ownValueDiffers(property))
        return true;
    if (!isDerivedSize(property) || !property.parentObject())
        return false;
    const auto& all = property.parentObject()->properties();
    return std::none_of(all.begin(), all.end(),
                        [](const auto& each) { return isSizing(*each) && ownValueDiffers(*each); });
}

} // namespace Korvex::Meridane::Designer
