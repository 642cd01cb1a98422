#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QString>

namespace Korvex::Meridane::Designer {

/// Something wrong with a project, named so that the user can find it.
struct MERIDANE_CORE_EXPORT Problem {
    enum class Severity { Warning, Error };

    Severity severity = Severity::Error;
    QString file; ///< path relative to the project's folder, or absolute when there is no folder
    QString object; ///< "screen/id", the screen's id, or empty
    QString property; ///< the property's id, or empty
    QString message; ///< what is wrong and what to do, a sentence

    /// One line: "file: object.property: message".
    [[nodiscard]] QString text() const;
};

} // namespace Korvex::Meridane::Designer
