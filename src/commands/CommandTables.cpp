#include "commands/CommandTables.h"

#include <array>

namespace kestrel::commands {

namespace {

template <auto member, auto... arguments>
void Call(CommandHandlers& handlers) {
    (handlers.*member)(arguments...);
}

// Rolling leaves the image as it is.
void Nothing(CommandHandlers& /*handlers*/) {}

constexpr auto kMenuBar = std::to_array<CommandRow>({
    {"mnuNew", Call<&CommandHandlers::mnuNew_Click>},
    {"mnuOpen", Call<&CommandHandlers::mnuOpen_Click>},
    {"mnuExtract", nullptr},
    {"mnuRecentFile1", Call<&CommandHandlers::mnuRecent_Click, 1>},
    {"mnuRecentFile2", Call<&CommandHandlers::mnuRecent_Click, 2>},
    {"mnuRecentFile3", Call<&CommandHandlers::mnuRecent_Click, 3>},
    {"mnuRecentFile4", Call<&CommandHandlers::mnuRecent_Click, 4>},
    {"mnuSave", Call<&CommandHandlers::mnuSave_Click>},
    {"mnuSaveAs", Call<&CommandHandlers::mnuSaveAs_Click>},
    {"mnuPrint", nullptr},
    {"mnuExit", Call<&CommandHandlers::mnuExit_Click>},
    {"mnuEditOpts0", Call<&CommandHandlers::mnuEditOpts_Click, 0>},
    {"mnuEditOpts1", Call<&CommandHandlers::mnuEditOpts_Click, 1>},
    {"mnuEditOpts3", Call<&CommandHandlers::mnuEditOpts_Click, 3>},
    {"mnuEditOpts4", Call<&CommandHandlers::mnuEditOpts_Click, 4>},
    {"mnuEditOpts5", Call<&CommandHandlers::mnuEditOpts_Click, 5>},
    {"mnuEditOpts6", Call<&CommandHandlers::mnuEditOpts_Click, 6>},
    {"mnuEditOpts7", Call<&CommandHandlers::mnuEditOpts_Click, 7>},
    {"mnuEditOpts9", Call<&CommandHandlers::mnuEditOpts_Click, 9>},
    {"mnuToolsOpts0", nullptr},
    {"mnuToolsOpts1", Call<&CommandHandlers::mnuToolsOpts_Click, 1>},
    {"mnuPaletteOpts0", Call<&CommandHandlers::mnuPaletteOpts_Click, 0>},
    {"mnuPaletteOpts1", Call<&CommandHandlers::mnuPaletteOpts_Click, 1>},
    {"mnuPaletteOpts3", Call<&CommandHandlers::ImgLoadPalette_Click>},
    {"mnuPaletteOpts4", Call<&CommandHandlers::ImgSavePalette_Click>},
    {"mnuToolsOpts3", nullptr},
    {"mnuToolsOpts4", nullptr},
    {"mnuToolsOpts5", Call<&CommandHandlers::StartSibling, Sibling::ScreenCapture>},
    {"mnuToolsOpts6", Call<&CommandHandlers::StartSibling, Sibling::IconBrowser>},
    {"mnuToolsOpts7", Call<&CommandHandlers::StartSibling, Sibling::ClipboardViewer>},
    {"mnuImage", Call<&CommandHandlers::mnuImage_Click>},
    {"mnuImageOpts0", Call<&CommandHandlers::AdjustColors>},
    {"mnuRollLeft", Nothing},
    {"mnuRollRight", Nothing},
    {"mnuRollUp", Nothing},
    {"mnuRollDown", Nothing},
    {"mnuLanguageOpts0", Call<&CommandHandlers::mnuLanguageOpts_Click, 0>},
    {"mnuLanguageOpts1", Call<&CommandHandlers::mnuLanguageOpts_Click, 1>},
    {"mnuHomePage", Call<&CommandHandlers::mnuHomePage_Click>},
    {"mnuHelp2", Call<&CommandHandlers::mnuHelp_Click>},
    {"mnuAbout", Call<&CommandHandlers::mnuAbout_Click>},
});

constexpr auto kPopup = std::to_array<CommandRow>({
    {"mnuPopup2Opts0", Call<&CommandHandlers::mnuEditOpts_Click, 3>},
    {"mnuPopup2Opts1", Call<&CommandHandlers::mnuEditOpts_Click, 4>},
    {"mnuPopup2Opts2", Call<&CommandHandlers::mnuEditOpts_Click, 5>},
    {"mnuPopup2Opts3", Call<&CommandHandlers::mnuEditOpts_Click, 7>},
    {"mnuPopup2Opts4", Call<&CommandHandlers::mnuEditOpts_Click, 9>},
    {"mnuRotate2Opts0", [](CommandHandlers& handlers) { handlers.Operate("mnuRotateOpts0"); }},
    {"mnuRotate2Opts1", [](CommandHandlers& handlers) { handlers.Operate("mnuRotateOpts1"); }},
    {"mnuFlip2Opts0", [](CommandHandlers& handlers) { handlers.Operate("mnuRotateOpts3"); }},
    {"mnuFlip2Opts1", [](CommandHandlers& handlers) { handlers.Operate("mnuRotateOpts4"); }},
});

constexpr auto kToolbar = std::to_array<CommandRow>({
    {"New", Call<&CommandHandlers::mnuNew_Click>},
    {"Open", Call<&CommandHandlers::mnuOpen_Click>},
    {"Extract", nullptr},
    {"Save", Call<&CommandHandlers::mnuSave_Click>},
    {"Undo", Call<&CommandHandlers::mnuEditOpts_Click, 0>},
    {"Redo", Call<&CommandHandlers::mnuEditOpts_Click, 1>},
    {"Cut", Call<&CommandHandlers::mnuEditOpts_Click, 3>},
    {"Copy", Call<&CommandHandlers::mnuEditOpts_Click, 4>},
    {"Paste", Call<&CommandHandlers::mnuEditOpts_Click, 5>},
    {"Delete", Call<&CommandHandlers::mnuEditOpts_Click, 7>},
    {"Capture", nullptr},
    {"ScreenZoom", nullptr},
    {"Help", Call<&CommandHandlers::mnuHelp_Click>},
});

}  // namespace

std::span<const CommandRow> MenuBarCommands() {
    return kMenuBar;
}

std::span<const CommandRow> PopupCommands() {
    return kPopup;
}

std::span<const CommandRow> ToolbarCommands() {
    return kToolbar;
}

}  // namespace kestrel::commands
