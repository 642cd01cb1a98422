#pragma once

namespace Korvex::Meridane::Designer {

/// What the program tells its caller when it ends.
enum class ExitStatus
{
    Done = 0, ///< the work is done
    Fault = 1, ///< the work found or met a fault; nothing half-written is left
    WrongUsage = 2, ///< the command line asks for nothing that there is
};

} // namespace Korvex::Meridane::Designer
