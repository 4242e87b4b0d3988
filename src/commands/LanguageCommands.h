#pragma once

#include <string_view>

#include "commands/MainWindow.h"
#include "commands/ShellCommands.h"
#include "settings/Settings.h"

namespace kestrel::commands {

// Changes the language of everything that is shown, and keeps it for the next start.
class LanguageCommands {
  public:
    LanguageCommands(const MainParts& parts, settings::Settings& settings, ShellCommands& shell)
        : parts_(parts), settings_(settings), shell_(shell) {}

    void SwitchTo(std::string_view code);

  private:
    MainParts parts_;
    settings::Settings& settings_;
    ShellCommands& shell_;
};

}  // namespace kestrel::commands
