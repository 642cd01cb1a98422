#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

class Command;

/// The texts of --help and of wrong usage. They need no application object.
class UsageText
{
public:
    UsageText() = delete;

    /// All commands, a line each.
    [[nodiscard]] static QString ofProgram();
    /// One command with its options.
    [[nodiscard]] static QString ofCommand(const Command& command);
};

} // namespace Korvex::Meridane::Designer
