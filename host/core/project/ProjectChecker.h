#pragma once

#include "host/core/project/Problem.h"

namespace Korvex::Meridane::Designer {

class Project;

/// Finds what is wrong with a project: every validator, every link, values that do not convert, elements off their
/// screen, missing fonts and images, unknown classes and keys, unreadable screens.
class MERIDANE_CORE_EXPORT ProjectChecker
{
public:
    [[nodiscard]] static QList<Problem> check(Project* project);
};

} // namespace Korvex::Meridane::Designer
