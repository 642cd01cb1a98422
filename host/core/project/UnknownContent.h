#pragma once

#include "host/core/project/Problem.h"

namespace Korvex::Meridane::Designer {

class Project;
class Screen;
class UnknownElement;

/// Finds what this version does not understand and only carries along: elements of unknown classes (errors: they cannot
/// be shown or exported), unknown keys and properties (warnings). Looks at what the objects hold now, not at files.
class UnknownContent
{
public:
    UnknownContent() = delete;

    /// Of project.json.
    [[nodiscard]] static QList<Problem> find(const Project* project);
    /// Of a screen that has been read.
    [[nodiscard]] static QList<Problem> find(const Screen* screen);
    /// Why \a element is nothing but its entry, and what to do, in sentences for the user.
    [[nodiscard]] static QString explain(const UnknownElement* element);
};

} // namespace Korvex::Meridane::Designer
