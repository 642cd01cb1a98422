#pragma once

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

/// The text \a english (UTF-8) of the application in the user's language.
[[nodiscard]] inline QString coreText(const char* english)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(english));
}

} // namespace Korvex::Meridane::Designer
