#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

/// Whether \a id may stand behind "id:" in QML: a lower-case ASCII letter or underscore first, then ASCII letters,
/// digits and underscores, at most 100 characters, and no reserved word of JavaScript. \a reason (when given) says
/// what is wrong, in a sentence for the user.
[[nodiscard]] MERIDANE_CORE_EXPORT bool isQmlIdentifier(const QString& id, QString* reason = nullptr);

} // namespace Korvex::Meridane::Designer
