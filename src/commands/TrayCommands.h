#pragma once

#include <string>

#include "commands/CSysTray.h"
#include "commands/MainWindow.h"
#include "commands/ProgramFolders.h"

namespace kestrel::commands {

// Hides the main window in the desktop's tray and brings it back. Where no tray is, the window
// stays an ordinary one.
class TrayCommands {
  public:
    TrayCommands(const MainParts& parts, services::Tray& tray, system::FileSystem& files,
                 services::MessageBoxes& boxes, const ProgramFolders& folders);
    ~TrayCommands();
    TrayCommands(const TrayCommands&) = delete;
    TrayCommands& operator=(const TrayCommands&) = delete;

    // The window is on the screen for the first time: once a tray has answered it shows the icon,
    // and the task list drops the window.
    void WindowStands();
    void WindowMinimised();
    void mnuRestore_Click();
    void mnuClose_Click();
    void TitleChanged(const std::string& title);
    void LanguageChanged();
    void Unload();

  private:
    MainWindow& window_;
    TaskListWindow& taskWindow_;
    services::Tray& tray_;
    std::string trayImage_;
    CSysTray sysTray_;
};

}  // namespace kestrel::commands
