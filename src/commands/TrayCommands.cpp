#include "commands/TrayCommands.h"

#include <vector>

#include "commands/CommandTable.h"
#include "i18n/ClassicMenu.h"

namespace kestrel::commands {

TrayCommands::TrayCommands(const MainParts& parts, services::Tray& tray, system::FileSystem& files,
                           services::MessageBoxes& boxes, const ProgramFolders& folders)
    : window_(parts.window),
      taskWindow_(parts.taskWindow),
      tray_(tray),
      trayImage_(folders.windows + "/kestrel.ico"),
      sysTray_(taskWindow_, tray, files, boxes) {
    // A window that is shown keeps its place among the others.
    tray_.onHostGone = [this] {
        if (!taskWindow_.IsShown()) return sysTray_.Restore();
        taskWindow_.ShowInTaskList(true);
        sysTray_.RemoveFromSysTray();
    };
}

TrayCommands::~TrayCommands() {
    tray_.onHostGone = nullptr;
}

void TrayCommands::WindowStands() {
    LanguageChanged();
    sysTray_.ChangeIcon(trayImage_);
    tray_.FindHost([this] {
        sysTray_.IconInSysTray();
        taskWindow_.ShowInTaskList(false);
    });
}

void TrayCommands::WindowMinimised() {
    if (tray_.HasHost()) sysTray_.MinToSysTray();
}

void TrayCommands::mnuRestore_Click() {
    sysTray_.Restore();
}

void TrayCommands::mnuClose_Click() {
    window_.Unload();
}

void TrayCommands::TitleChanged(const std::string& title) {
    sysTray_.ChangeToolTip(title);
}

void TrayCommands::LanguageChanged() {
    std::vector<services::TrayMenuItem> items;
    for (const CommandRow& row : TrayRows())
        items.push_back({row.key, std::string(i18n::ClassicCaption(row.key).Now())});
    tray_.SetMenu(items);
}

void TrayCommands::Unload() {
    sysTray_.RemoveFromSysTray();
}

}  // namespace kestrel::commands
