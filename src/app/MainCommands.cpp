#include "app/MainCommands.h"

#include <array>
#include <string>

#include "i18n/Language.h"

namespace kestrel::app {

MainCommands::MainCommands(editing::Editor& editor, MainWindow& window, MainMenus& menus,
                           const MainServices& services)
    : editor_(editor),
      window_(window),
      menus_(menus),
      settings_(services.settings),
      recent_(menus.SmartMenuXP1, services.registry, services.files, services.boxes,
              services.systemLcid),
      documents_(editor, window, recent_, services.cdb, services.boxes, services.files),
      shell_(window, {services.boxes, services.help, services.files, services.shell},
             services.folders) {}

void MainCommands::mnuRecent_Click(int slot) {
    const std::string pathToOpen = recent_.GetRecentFile(slot);
    if (!pathToOpen.empty()) documents_.OpenNamed(pathToOpen);
}

void MainCommands::mnuEdit_Click() {
    const struct {
        std::string_view item;
        std::string_view button;
        bool enabled;
    } commands[] = {{"mnuEditOpts0", "Undo", editor_.History().CanUndo()},
                    {"mnuEditOpts1", "Redo", editor_.History().CanRedo()}};
    for (const auto& command : commands) {
        menus_.SmartMenuXP1.SetEnabled(command.item, command.enabled);
        window_.EnableButton(command.button, command.enabled);
    }
}

void MainCommands::mnuEditOpts_Click(int index) {
    if (index == 0) editor_.PopUndoSnapshot();
    if (index == 1) editor_.PopRedoSnapshot();
}

void MainCommands::mnuLanguageOpts_Click(int index) {
    constexpr std::array kCodes{i18n::kChinese, i18n::kEnglish};
    if (index < 0 || index >= static_cast<int>(kCodes.size())) return;
    const std::string_view code = kCodes[static_cast<std::size_t>(index)];
    i18n::ApplyMainCaptions(code, window_);
    i18n::ApplyMenuCaptions(code, menus_.SmartMenuXP1, menus_.SmartMenuXP2);
    i18n::SetUiLanguage(code);
    SaveLanguage(settings_, code);
    shell_.FollowLanguage();
    window_.LanguageChanged();
}

}  // namespace kestrel::app
