#pragma once

#include "host/core/output/WorkProgress.h"
#include "host/core/project/Problem.h"

namespace Korvex::Meridane::Designer {

class Project;

/**
 * Writes a project as QML that a display runs: `Main.qml`, `screens/<id>.qml`, the images and fonts used, and
 * `.meridane-export`, which lists the fingerprints of all these files.
 */
class MERIDANE_CORE_EXPORT QmlExporter
{
public:
    QmlExporter() = delete;

    /**
     * Exports into \a folder, which is made, is empty, or holds an earlier export that nobody has changed; anything else
     * is refused. Screens that cannot be read, elements of unknown classes and images that are missing are refused too:
     * the display would lack them. On problems nothing is written. Empty: done. The result is the same, byte for byte,
     * for the same project. Nothing is written either when \a progress ends it.
     */
    [[nodiscard]] static QList<Problem> exportProject(Project* project, const QString& folder,
                                                      const WorkProgress& progress = {});
};

} // namespace Korvex::Meridane::Designer
