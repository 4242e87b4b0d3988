#include <QMenu>
#include <algorithm>

#include "commands/CommandTable.h"
#include "commands/ModLanguage.h"
#include "i18n/Language.h"
#include "windows/FrmIcoEd.h"

namespace kestrel::windows {

namespace {

constexpr std::string_view kPopupRoot = "mnuEdit";
constexpr std::string_view kRestore = "mnuRestore";

// A drag ends at the grid's corner before a capture, and where it is before other commands.
constexpr std::string_view kCaptureKeys[] = {"mnuToolsOpts0", "Capture"};

}  // namespace

void FrmIcoEd::BuildMenus() {
    commands::BuildMenuBar(menus_);
    commands::ApplyMenuCaptions(i18n::UiLanguage(), menus_);
    menus_.SmartMenuXP1.onClick = [this](std::string_view key) {
        RunRow(commands::MenuBarRows(), key);
    };
    menus_.SmartMenuXP2.onClick = [this](std::string_view key) {
        RunRow(commands::PopupRows(), key);
    };
    barView_.FillBar(*menuBar_);
    tray_.onMenu = [this](std::string_view key) {
        // The window comes back also while a dialog waits; nothing else is done then.
        if (key == kRestore) return commands_.Click(commands::TrayRows(), key);
        RunRow(commands::TrayRows(), key);
    };
    // A dialog that waits would be left behind alone, and its window has to be found again.
    task_.onMinimised = [this] {
        if (runner_.IsRunning()) return task_.ShowInTaskList(true);
        commands_.tray.WindowMinimised();
    };
}

void FrmIcoEd::BuildToolbar() {
    for (const commands::CommandRow& button : commands::ToolbarRows()) {
        if (button.beginsGroup) toolbar1_->BeginGroup();
        toolbar1_->AddButton(button.key, button.picture);
        toolbar1_->SetEnabled(button.key, button.run != commands::kNotBuilt);
    }
    toolbar1_->onClick = [this](std::string_view key) { RunRow(commands::ToolbarRows(), key); };
    toolbar1_->onMouseMove = [this](int x) { Toolbar1_MouseMove(x); };
    toolbar1_->onLeave = [this] { statusBar_.SetStatusPanel(editing::StatusPanel::Hint, {}); };
}

void FrmIcoEd::RunRow(std::span<const commands::CommandRow> rows, std::string_view key) {
    if (!runner_.IsRunning() && std::ranges::find(kCaptureKeys, key) != std::end(kCaptureKeys))
        editor_.PicMain_MouseUp(editing::Button::Left, 0, 0);
    runner_.Run([&] { commands_.Click(rows, key); });
}

void FrmIcoEd::Toolbar1_MouseMove(int x) {
    const auto buttons = commands::ToolbarRows();
    const auto index = static_cast<std::size_t>(x / toolbar1_->ButtonWidth()) % buttons.size();
    statusBar_.SetStatusPanel(editing::StatusPanel::Hint, buttons[index].hint.Now());
}

QMenu* FrmIcoEd::EditingPopup() {
    return popupView_.Popup(kPopupRoot);
}

void FrmIcoEd::RefreshEditCommands() {
    commands_.RefreshStates();
}

}  // namespace kestrel::windows
