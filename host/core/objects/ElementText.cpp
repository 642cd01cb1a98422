#include "host/core/objects/ElementText.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

QString elementText(const char* english)
{
    return Common::LocalizationHelper::visualDesignerString(QString::fromUtf8(english));
}

} // namespace Korvex::Meridane::Designer
