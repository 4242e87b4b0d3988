#include "commands/PaletteCommands.h"

#include "commands/ErrorBox.h"
#include "formats/PaletteFile.h"
#include "i18n/Messages.h"
#include "services/GCommonDialog.h"

namespace kestrel::commands {

namespace {

constexpr const char* kDefaultExtension = "PAL";

// What a file dialog is asked with and answers in.
struct FileChoice {
    std::string filter;
    std::uint32_t flags = 0;
    std::string path{};
    std::string title{};
    int filterIndex = 1;
};

}  // namespace

void PaletteCommands::PicPal_MouseUp(editing::Button button, int x, int y) {
    cell_ = button == editing::Button::None ? std::nullopt : editing::Palette::CellAt(x, y);
    button_ = button;
    if (button == editing::Button::None) return;
    parts_.wells.SetOpaque(button);
    if (!cell_) return;
    parts_.wells.SetPenColor(button, palette_.Colors()[*cell_]);
    if (palette_.ChkPal()) PicPal_DblClick();
}

void PaletteCommands::PicPal_DblClick() {
    if (!cell_) return;
    const auto chosen = parts_.cdb.ShowColor(palette_.Colors()[*cell_]);
    if (!chosen) return;
    palette_.SetColor(*cell_, *chosen);
    parts_.wells.SetPenColor(button_, *chosen);
}

void PaletteCommands::UseDefaultPalette() {
    palette_.DrawPalette(editing::PaletteReload::Yes);
    parts_.wells.ResetDefaultColors();
}

void PaletteCommands::UseRandomPalette() {
    palette_.Randomize(parts_.random);
    parts_.wells.ResetDefaultColors();
}

void PaletteCommands::ImgLoadPalette_Click() {
    const Result<void> loaded = LoadChosenFile();
    if (!loaded) ShowError(parts_.boxes, i18n::CannotLoadPalette(loaded.error().description));
}

void PaletteCommands::ImgSavePalette_Click() {
    const Result<void> saved = SaveChosenFile();
    if (!saved) ShowError(parts_.boxes, i18n::CannotSavePalette(saved.error().description));
}

Result<void> PaletteCommands::LoadChosenFile() {
    services::GCommonDialog dialog(parts_.desktop);
    FileChoice file{.filter = std::string(i18n::kLoadPaletteFilter)};
    constexpr bool kMustExist = true;
    constexpr bool kSeveral = false;
    bool readOnly = false;
    constexpr bool kNoReadOnlyBox = true;
    if (!dialog.VBGetOpenFileName(file.path, file.title, kMustExist, kSeveral, readOnly,
                                  kNoReadOnlyBox, file.filter, file.filterIndex, {}, {},
                                  kDefaultExtension, parts_.owner.hWnd(), file.flags)) {
        return {};
    }
    gdi::PaletteColors colors = palette_.Colors();
    Result<void> read = formats::ReadPaletteFile(parts_.files, colors, file.path);
    // Also what was read before a failure.
    if (read || colors != palette_.Colors()) palette_.SetColors(colors);
    return read;
}

Result<void> PaletteCommands::SaveChosenFile() {
    services::GCommonDialog dialog(parts_.desktop);
    FileChoice file{.filter = std::string(i18n::kSavePaletteFilter),
                    .flags = services::kPathMustExist};
    constexpr bool kAskBeforeReplacing = true;
    if (!dialog.VBGetSaveFileName(file.path, file.title, kAskBeforeReplacing, file.filter,
                                  file.filterIndex, {}, {}, kDefaultExtension, parts_.owner.hWnd(),
                                  file.flags)) {
        return {};
    }
    return formats::WritePaletteFile(parts_.files, palette_.Colors(), file.path);
}

}  // namespace kestrel::commands
