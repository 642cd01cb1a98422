#pragma once

#include "host/core/project/Problem.h"

namespace Korvex::Meridane::Designer {

class Project;

/// Writes a project as QML that a display runs: `Main.qml`, `screens/<id>.qml`, the images and fonts used.
class MERIDANE_CORE_EXPORT QmlExporter
{
public:
    /// Exports into \a folder, which is made or holds an earlier export; what an export did not write is never
    /// overwritten. On problems nothing is left half-written. Empty: done. The result is the same for the same project.
    [[nodiscard]] static QList<Problem> exportProject(Project* project, const QString& folder);
};

} // namespace Korvex::Meridane::Designer
