#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QString>

namespace Korvex::Meridane::Common {
/** Text forms. */
class MERIDANE_COMMON_EXPORT TextHelper
{
public:
    TextHelper() = delete;

    /**
     * @p text escaped for the inside of a string in double quotes in a QML file; the quotes are the caller's. A QML
     * engine reads back exactly @p text, whatever it holds: quotes, backslashes, control characters, line and
     * paragraph separators and lone surrogates (which UTF-8 cannot carry) are escaped.
     */
    [[nodiscard]] static QString toQmlValueString(const QString& text);
};
} // namespace Korvex::Meridane::Common
