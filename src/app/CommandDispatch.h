#pragma once

#include <functional>
#include <map>
#include <string_view>

#include "app/DocumentCommands.h"
#include "editing/EditorWindow.h"

namespace kestrel::app {

// Turns the key of a menu item into a call of its handler.
class CommandDispatch {
  public:
    CommandDispatch(DocumentCommands& commands, editing::EditorWindow& window);

    // Runs the item's command, if it has one, and refreshes the Edit commands.
    void SmartMenuXP1_Click(std::string_view key);

  private:
    std::map<std::string_view, std::function<void()>> handlers_;
    editing::EditorWindow& window_;
};

}  // namespace kestrel::app
