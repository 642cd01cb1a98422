#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class Project;

/// The names of image resources, which are the names of their files in the project's images folder. See ResourceNames.
class MERIDANE_CORE_EXPORT ImageNames
{
public:
    ImageNames() = delete;

    /// A free name for a new image of \a project, made of \a base (a file name without its ending) and \a suffix.
    [[nodiscard]] static QString freeName(const Project& project, const QString& base, const QString& suffix);
    /// \a name with the ending of \a image appended where it has none that names a picture format.
    [[nodiscard]] static QString completed(const QString& name, const QString& image);
    /// Why the resource \a image of \a project cannot be called \a name; empty when it can, and for its own name.
    [[nodiscard]] static QString fault(const Project& project, const QString& image, const QString& name);
};

} // namespace Korvex::Meridane::Designer
