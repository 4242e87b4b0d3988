#include "editing/PaletteCommands.h"

#include "editing/PaletteFile.h"
#include "i18n/Messages.h"
#include "platform/dialogs/GCommonDialog.h"

namespace kestrel::editing {

namespace {

constexpr const char* kDefaultExtension = "PAL";

}  // namespace

void PaletteCommands::PicPal_MouseUp(Button button, int x, int y) {
    cell_ = button == Button::None ? std::nullopt : Palette::CellAt(x, y);
    button_ = button;
    if (button == Button::None) return;
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

void PaletteCommands::mnuPaletteOpts_Click(int index) {
    if (index == 0) {
        palette_.DrawPalette(PaletteReload::Yes);
    } else if (index == 1) {
        palette_.DrawRandom(parts_.random);
    } else {
        return;
    }
    parts_.wells.ResetDefaultColors();
}

Result<void> PaletteCommands::ImgLoadPalette_Click() {
    dialogs::GCommonDialog dialog(parts_.desktop);
    std::string path;
    std::string title;
    std::string filter(i18n::kLoadPaletteFilter);
    int filterIndex = 1;
    bool readOnly = false;
    std::uint32_t flags = 0;
    if (!dialog.VBGetOpenFileName(path, title, true, false, readOnly, true, filter, filterIndex, {},
                                  {}, kDefaultExtension, parts_.owner.hWnd(), flags)) {
        return {};
    }
    return ReadPaletteFile(parts_.files, palette_, path);
}

Result<void> PaletteCommands::ImgSavePalette_Click() {
    dialogs::GCommonDialog dialog(parts_.desktop);
    std::string path;
    std::string title;
    std::string filter(i18n::kSavePaletteFilter);
    int filterIndex = 1;
    std::uint32_t flags = dialogs::kPathMustExist;
    if (!dialog.VBGetSaveFileName(path, title, true, filter, filterIndex, {}, {}, kDefaultExtension,
                                  parts_.owner.hWnd(), flags)) {
        return {};
    }
    return WritePaletteFile(parts_.files, palette_, path);
}

}  // namespace kestrel::editing
