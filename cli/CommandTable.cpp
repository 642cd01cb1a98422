#include "cli/CommandTable.h"

#include "cli/ApplyCommand.h"
#include "cli/CheckCommand.h"
#include "cli/DescribeCommand.h"
#include "cli/ExportCommand.h"
#include "cli/FindCommand.h"
#include "cli/NewCommand.h"
#include "cli/PreviewCommand.h"
#include "cli/RenderCommand.h"

namespace Korvex::Meridane::Designer {

std::vector<std::unique_ptr<Command>> CommandTable::all()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<NewCommand>());
    commands.push_back(std::make_unique<ExportCommand>());
    commands.push_back(std::make_unique<RenderCommand>());
    commands.push_back(std::make_unique<CheckCommand>());
    commands.push_back(std::make_unique<FindCommand>());
    commands.push_back(std::make_unique<DescribeCommand>());
    commands.push_back(std::make_unique<ApplyCommand>());
    commands.push_back(std::make_unique<PreviewCommand>());
    return commands;
}

std::unique_ptr<Command> CommandTable::find(const QString& name)
{
    std::vector<std::unique_ptr<Command>> commands = all();
    for (std::unique_ptr<Command>& command : commands) {
        if (command->name() == name)
            return std::move(command);
    }
    return nullptr;
}

} // namespace Korvex::Meridane::Designer
