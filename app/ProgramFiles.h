#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

/// Where the files are that come with the program: as they were installed, or in the sources of a build.
class ProgramFiles
{
public:
    ProgramFiles() = delete;

    enum class Kind
    {
        Examples, ///< a project in each folder
        Guide ///< the user guide
    };

    /// The absolute path of the folder; empty when it is not there.
    [[nodiscard]] static QString folder(Kind kind);
};

} // namespace Korvex::Meridane::Designer
