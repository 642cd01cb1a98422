#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace Korvex::Meridane::Designer {

class Command;

/// The commands that there are.
class CommandTable
{
public:
    CommandTable() = delete;

    /// All commands, in the order in which the usage lists them.
    [[nodiscard]] static std::vector<std::unique_ptr<Command>> all();
    /// The command called \a name, or null.
    [[nodiscard]] static std::unique_ptr<Command> find(const QString& name);
};

} // namespace Korvex::Meridane::Designer
