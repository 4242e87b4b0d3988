#pragma once

#include <span>
#include <string_view>

#include "commands/CommandHandlers.h"

namespace kestrel::commands {

// What the item or button of a key does; null while the program lacks the command.
struct CommandRow {
    std::string_view key;
    void (*run)(CommandHandlers& handlers);
};

// Every key that stands for a command: of the menu bar without its filters, the editing pop-up and
// the toolbar.
std::span<const CommandRow> MenuBarCommands();
std::span<const CommandRow> PopupCommands();
std::span<const CommandRow> ToolbarCommands();

}  // namespace kestrel::commands
