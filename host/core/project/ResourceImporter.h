#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class Project;

/// Brings image files into a project. While a project is open its images folder only gains files; the history needs
/// no step for an import, because a resource that nothing names goes with the next save.
class MERIDANE_CORE_EXPORT ResourceImporter
{
public:
    /// Copies \a file into the project's images folder and offers it as a resource. The result is the resource's file
    /// name: that of the file where it is free and plain, else one made of it. Empty with a message, which names the
    /// file, when the file cannot be read or no reader can decode it, or when the copy cannot be written.
    static QString importImage(Project* project, const QString& file, QString* message);
};

} // namespace Korvex::Meridane::Designer
