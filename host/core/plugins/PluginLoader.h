#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class IDesignerFactory;

/// Loads plug-in libraries. A library that does not fit this program is refused before any of its objects is made.
class MERIDANE_CORE_EXPORT PluginLoader
{
public:
    /// The factory of the plug-in in \a file, which stays loaded to the end of the program; null with a message that
    /// names the file and what is wrong with it.
    [[nodiscard]] static IDesignerFactory* load(const QString& file, QString* message);
};

} // namespace Korvex::Meridane::Designer
