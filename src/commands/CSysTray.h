#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "commands/MainWindow.h"
#include "platform/system/FileSystem.h"
#include "services/MessageBoxes.h"
#include "services/Tray.h"

namespace kestrel::commands {

// An icon for a window in the desktop's tray, which hides that window and brings it back.
class CSysTray {
  public:
    // The most characters of a tooltip that are shown.
    static constexpr std::size_t kMaxToolTip = 63;

    CSysTray(TaskListWindow& sourceWindow, services::Tray& tray, system::FileSystem& files,
             services::MessageBoxes& boxes);
    ~CSysTray();
    CSysTray(const CSysTray&) = delete;
    CSysTray& operator=(const CSysTray&) = delete;

    void IconInSysTray();
    void RemoveFromSysTray();
    void MinToSysTray();
    // The icon goes, the window comes, also onto the task list.
    void Restore();
    // From an icon file, or from an animated cursor (a name that ends in "ani"): each call shows
    // its next step, after the last the first. A file that holds no icon leaves the place empty; an
    // animation that cannot be drawn is told to the user and changes nothing.
    void ChangeIcon(const std::string& file);
    void ChangeToolTip(const std::string& text);
    const std::string& ToolTip() const { return toolTip_; }

    // Whether a double click of the left button restores the window by itself.
    bool DefaultDblClk = true;

    // What was done to the icon. What is done while one of them runs is dropped.
    std::function<void()> LButtonDblClk;
    std::function<void()> LButtonDown;
    std::function<void()> LButtonUp;
    std::function<void()> RButtonDblClk;
    std::function<void()> RButtonDown;
    std::function<void()> RButtonUp;

  private:
    void Notify(services::TrayMessage message);
    void DoubleClick();
    bool ShowStep(const std::string& file);

    TaskListWindow& sourceWindow_;
    services::Tray& tray_;
    system::FileSystem& files_;
    services::MessageBoxes& boxes_;
    services::TrayIcon icon_;
    std::string toolTip_;
    bool busy_ = false;
    // The step of an animation that comes next.
    std::size_t frame_ = 0;
};

}  // namespace kestrel::commands
