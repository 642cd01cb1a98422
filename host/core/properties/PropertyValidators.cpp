#include "host/core/properties/PropertyValidators.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

bool PropertyValidators::validLinkValidator(const DesignerProperty* property, QString& message)
{
    message.clear();
    const QString text = property->valueString();
    bool ok = false;
    const ObjectLinkInfo link = ValueConversion::toLinkInfo(text, &ok);
    if (ok && link.isValid())
        return property->validateObjectValue(message);
    message = Common::LocalizationHelper::coreString(
                  QStringLiteral("\"%1\" is not the name of an object or of a file in the project's images folder."))
                  .arg(text);
    return false;
}

} // namespace Korvex::Meridane::Designer
