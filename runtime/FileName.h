#pragma once

#include <QtCore/QString>

namespace Korvex::Meridane::Display {
/** True for the name of a file of its own: what comes from a project never leads out of the folder of the export. */
[[nodiscard]] bool isFileName(const QString& name);
} // namespace Korvex::Meridane::Display
