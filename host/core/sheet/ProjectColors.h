#pragma once

#include "host/core/CoreExport.h"

#include <QColor>
#include <QList>

namespace Korvex::Meridane::Designer {

class Project;

/// The colours that the screens of \a project use, the most used first and at most \a most; colours that are used equally
/// often stand in the order of the tree. Screens that have not been read yet are left out. Made for being asked whenever
/// colours are offered: ten thousand elements take some milliseconds.
[[nodiscard]] MERIDANE_CORE_EXPORT QList<QColor> projectColors(const Project& project, int most);

} // namespace Korvex::Meridane::Designer
