#include "commands/CommandDispatch.h"

#include <algorithm>

#include "imaging/Operations.h"

namespace kestrel::commands {

void CommandDispatch::SmartMenuXP1_Click(std::string_view key) {
    // The operations stand in a table of their own.
    if (imaging::FindOperation(key) == nullptr) return Run(MenuBarCommands(), key);
    handlers_.Operate(key);
    window_.RefreshEditCommands();
}

void CommandDispatch::SmartMenuXP2_Click(std::string_view key) {
    Run(PopupCommands(), key);
}

void CommandDispatch::Toolbar1_ButtonClick(std::string_view key) {
    Run(ToolbarCommands(), key);
}

void CommandDispatch::Run(std::span<const CommandRow> commands, std::string_view key) {
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [key](const CommandRow& row) { return row.key == key; });
    if (command != commands.end() && command->run != nullptr) command->run(handlers_);
    window_.RefreshEditCommands();
}

}  // namespace kestrel::commands
