#pragma once

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

/// The text \a english (UTF-8) of the application in the user's language.
[[nodiscard]] inline QString coreText(const char* english)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(english));
}

/// The text for \a count things in the user's language; the English forms \a singular and \a plural (UTF-8) both have
/// `%n` where the number stands.
[[nodiscard]] inline QString coreText(const char* singular, const char* plural, int count)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(singular), QString::fromUtf8(plural), count);
}

} // namespace Korvex::Meridane::Designer
