#include "host/core/objects/ElementText.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

QString elementText(const char* english)
{
    return Common::LocalizationHelper::visualDesignerString(QString::fromUtf8(english));
}

QString elementText(const char* singular, const char* plural, int count)
{
    return Common::LocalizationHelper::visualDesignerString(QString::fromUtf8(singular), QString::fromUtf8(plural),
                                                            count);
}

} // namespace Korvex::Meridane::Designer
