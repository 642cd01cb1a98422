#pragma once

namespace Korvex::Meridane::Designer {

/// Reads the command line, runs the command that it names and gives the exit status back.
class CommandLine
{
public:
    CommandLine() = delete;

    [[nodiscard]] static int run(int argc, char* argv[]);
};

} // namespace Korvex::Meridane::Designer
