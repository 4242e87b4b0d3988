#pragma once

#include <string_view>

#include "commands/Dialogs.h"
#include "commands/DocumentCommands.h"
#include "commands/MagnifierWindow.h"
#include "commands/ModLanguage.h"
#include "services/DesktopDialogs.h"

namespace kestrel::commands {

// What the commands need of the main window.
class MainWindow {
  public:
    virtual ~MainWindow() = default;
    // Asks the window to close, which runs its unload handler.
    virtual void Unload() = 0;
    // Whatever else the window shows as text is in another language from now on.
    virtual void LanguageChanged() = 0;
    // Where it is with its frame, in the screen's pixels.
    virtual gdi::Rect ScreenArea() const = 0;
    // Hides it, and shows it again where it was, with the keyboard.
    virtual void LeaveScreen() = 0;
    virtual void ComeBack() = 0;
};

// The controls of the main window.
class MainControls : public CaptionedWindow {
  public:
    // A button of the toolbar, by its key.
    virtual void EnableButton(std::string_view key, bool enabled) = 0;
};

// A window that the desktop's task list offers, and that its tray can stand for.
class TaskListWindow {
  public:
    virtual ~TaskListWindow() = default;
    virtual bool IsShown() const = 0;
    virtual void Hide() = 0;
    // In its normal state, not minimised.
    virtual void ShowNormal() = 0;
    virtual void ShowInTaskList(bool shown) = 0;
};

// What the commands work with, besides the editor and the services.
struct MainParts {
    MainWindow& window;
    MainControls& controls;
    GridGuard& grid;
    const services::OwnerWindow& owner;
    MainMenus& menus;
    Dialogs& dialogs;
    MagnifierWindow& magnifier;
    TaskListWindow& taskWindow;
};

}  // namespace kestrel::commands
