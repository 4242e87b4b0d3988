#pragma once

#include <string_view>

#include "commands/MainWindow.h"
#include "commands/ShellCommands.h"
#include "settings/Settings.h"

namespace kestrel::commands {

// Changes the language of everything that is shown, and keeps it for the next start.
class LanguageCommands {
  public:
    LanguageCommands(MainWindow& window, MainMenus& menus, settings::Settings& settings,
                     ShellCommands& shell)
        : window_(window), menus_(menus), settings_(settings), shell_(shell) {}

    void SwitchTo(std::string_view code);

  private:
    MainWindow& window_;
    MainMenus& menus_;
    settings::Settings& settings_;
    ShellCommands& shell_;
};

}  // namespace kestrel::commands
