#include "commands/MainCommands.h"

#include <array>
#include <string>

#include "commands/ErrorBox.h"
#include "i18n/Language.h"

namespace kestrel::commands {

MainCommands::MainCommands(editing::Editor& editor, const MainParts& parts,
                           const MainServices& services)
    : editor_(editor),
      parts_(parts),
      settings_(services.settings),
      boxes_(services.boxes),
      cdb_(services.dialogs, parts.owner),
      palette_(editor.ColorPalette(), {editor.Wells(), cdb_, services.dialogs, parts.owner,
                                       services.files, services.random}),
      wells_(editor.Wells(), services.application, cdb_),
      clipboard_(editor, services.clipboard, parts.dialogs),
      transforms_(editor),
      images_(editor, parts.dialogs, services.application),
      filters_(editor, parts.dialogs, services.application, services.random),
      recent_(parts.menus.SmartMenuXP1, services.registry, services.files, services.boxes,
              services.systemLcid),
      documents_(editor,
                 {parts.grid, recent_, cdb_, services.application, services.boxes, services.files}),
      shell_({services.application, services.boxes, services.help, services.files, services.shell},
             services.folders) {}

void MainCommands::mnuRecent_Click(int slot) {
    const std::string pathToOpen = recent_.GetRecentFile(slot);
    if (!pathToOpen.empty()) documents_.OpenNamed(pathToOpen);
}

void MainCommands::mnuEdit_Click() {
    const bool canPaste = clipboard_.CanPaste();
    const bool isSelected = editor_.Selected().Exists();
    // Keys of the menu bar, the pop-up and the toolbar; not all have all three.
    const struct {
        std::string_view item;
        std::string_view popupItem;
        std::string_view button;
        bool enabled;
    } commands[] = {{"mnuEditOpts0", {}, "Undo", editor_.CanUndo()},
                    {"mnuEditOpts1", {}, "Redo", editor_.CanRedo()},
                    {"mnuEditOpts3", "mnuPopup2Opts0", "Cut", isSelected},
                    {"mnuEditOpts4", "mnuPopup2Opts1", "Copy", isSelected},
                    {"mnuEditOpts5", "mnuPopup2Opts2", "Paste", canPaste},
                    {"mnuEditOpts6", {}, {}, canPaste},
                    {"mnuEditOpts7", "mnuPopup2Opts3", "Delete", isSelected}};
    for (const auto& [item, popupItem, button, enabled] : commands) {
        parts_.menus.SmartMenuXP1.SetEnabled(item, enabled);
        if (!popupItem.empty()) parts_.menus.SmartMenuXP2.SetEnabled(popupItem, enabled);
        if (!button.empty()) parts_.controls.EnableButton(button, enabled);
    }
}

void MainCommands::mnuEditOpts_Click(int index) {
    switch (index) {
        case 0:
            return editor_.PopUndoSnapshot();
        case 1:
            return editor_.PopRedoSnapshot();
        case 3:
            return clipboard_.Cut();
        case 4:
            return clipboard_.Copy();
        case 5:
            return Paste(imaging::PasteMode::Transparent);
        case 6:
            return Paste(imaging::PasteMode::Opaque);
        case 7:
            return editor_.Selected().Delete();
        case 9:
            return editor_.SelectAll();
        default:
            return;
    }
}

void MainCommands::Paste(imaging::PasteMode mode) {
    const Result<void> pasted = clipboard_.Paste(mode);
    if (!pasted && pasted.error().number != kDialogCancelled) {
        ShowError(boxes_, std::string(i18n::kCannotPaste.Now()));
    }
}

void MainCommands::mnuToolsOpts_Click(int index) {
    if (index == 1) images_.GradientBackground();
}

void MainCommands::mnuImage_Click() {
    controls::SmartMenuXP& menu = parts_.menus.SmartMenuXP1;
    for (const auto* item : {"mnuMirrorOpts0", "mnuMirrorOpts1"})
        menu.SetEnabled(item, transforms_.CanMirrorColumns());
    for (const auto* item : {"mnuMirrorOpts2", "mnuMirrorOpts3"})
        menu.SetEnabled(item, transforms_.CanMirrorRows());
}

void MainCommands::ImgLoadPalette_Click() {
    const Result<void> loaded = palette_.ImgLoadPalette_Click();
    if (!loaded) ShowError(boxes_, i18n::CannotLoadPalette(loaded.error().description));
}

void MainCommands::ImgSavePalette_Click() {
    const Result<void> saved = palette_.ImgSavePalette_Click();
    if (!saved) ShowError(boxes_, i18n::CannotSavePalette(saved.error().description));
}

void MainCommands::mnuLanguageOpts_Click(int index) {
    constexpr std::array kCodes{i18n::kChinese, i18n::kEnglish};
    if (index < 0 || index >= static_cast<int>(kCodes.size())) return;
    const std::string_view code = kCodes[static_cast<std::size_t>(index)];
    ApplyMainCaptions(code, parts_.controls);
    ApplyMenuCaptions(code, parts_.menus.SmartMenuXP1, parts_.menus.SmartMenuXP2);
    i18n::SetUiLanguage(code);
    settings::SaveLanguage(settings_, code);
    shell_.FollowLanguage();
    parts_.window.LanguageChanged();
}

}  // namespace kestrel::commands
