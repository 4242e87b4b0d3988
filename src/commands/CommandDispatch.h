#pragma once

#include <string_view>

#include "commands/CommandTables.h"
#include "editing/EditorWindow.h"

namespace kestrel::commands {

// Turns the key of a menu item or toolbar button into a call of its handler.
class CommandDispatch {
  public:
    CommandDispatch(CommandHandlers& handlers, editing::EditorWindow& window)
        : handlers_(handlers), window_(window) {}

    // Each runs the key's command, if it has one, and refreshes the Edit commands: for the menu
    // bar, the editing pop-up and the toolbar.
    void SmartMenuXP1_Click(std::string_view key);
    void SmartMenuXP2_Click(std::string_view key);
    void Toolbar1_ButtonClick(std::string_view key);

  private:
    void Run(std::span<const CommandRow> commands, std::string_view key);

    CommandHandlers& handlers_;
    editing::EditorWindow& window_;
};

}  // namespace kestrel::commands
