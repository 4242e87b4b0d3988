#pragma once

#include <string>

#include "commands/Dialogs.h"
#include "commands/ProgramFolders.h"
#include "platform/system/FileSystem.h"
#include "services/Application.h"
#include "services/HelpViewer.h"
#include "services/MessageBoxes.h"
#include "services/Shell.h"

namespace kestrel::commands {

// Programs of the same maker that the Tools menu starts.
enum class Sibling { ScreenCapture, IconBrowser, ClipboardViewer };

struct ShellServices {
    services::Application& application;
    services::MessageBoxes& boxes;
    services::HelpViewer& help;
    system::FileSystem& files;
    services::Shell& shell;
    system::Registry& registry;
};

// The commands that show or start what is not the editor itself. What cannot be shown or started
// is said in a message.
class ShellCommands {
  public:
    ShellCommands(const ShellServices& services, ProgramFolders folders, Dialogs& dialogs);

    // The help text in the language in force.
    void mnuHelp_Click();
    // Changes help that is being read to the language in force.
    void FollowLanguage();
    void mnuHomePage_Click();
    void StartSibling(Sibling program);
    void mnuAbout_Click();

  private:
    std::string HelpFile() const;

    ShellServices services_;
    ProgramFolders folders_;
    Dialogs& dialogs_;
    tools::SystemInformation information_;
};

}  // namespace kestrel::commands
