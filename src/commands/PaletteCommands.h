#pragma once

#include "editing/ColorWells.h"
#include "editing/Palette.h"
#include "platform/system/FileSystem.h"
#include "services/Cdb.h"
#include "services/MessageBoxes.h"

namespace kestrel::commands {

// What the palette commands work with, besides the palette itself.
struct PaletteParts {
    editing::ColorWells& wells;
    services::Cdb& cdb;
    services::DesktopDialogs& desktop;
    const services::OwnerWindow& owner;
    services::MessageBoxes& boxes;
    system::FileSystem& files;
    system::RandomNumbers& random;
};

// What the mouse does on the palette, its menu and its two buttons.
class PaletteCommands {
  public:
    PaletteCommands(editing::Palette& palette, const PaletteParts& parts)
        : palette_(palette), parts_(parts) {}

    // A button came up at a point in pixels of PicPal, which may lie outside: its well takes the
    // cell's colour. While ChkPal is ticked the cell is changed, too.
    void PicPal_MouseUp(editing::Button button, int x, int y);
    // The user chooses the colour of the cell where the button came up last.
    void PicPal_DblClick();
    void UseDefaultPalette();
    void UseRandomPalette();
    // Ask for a palette file and load or save it. What fails is said in a message.
    void ImgLoadPalette_Click();
    void ImgSavePalette_Click();

  private:
    // Cancel is no failure.
    Result<void> LoadChosenFile();
    Result<void> SaveChosenFile();

    editing::Palette& palette_;
    PaletteParts parts_;
    // The cell and the button of the last click; none outside the cells.
    std::optional<std::size_t> cell_;
    editing::Button button_ = editing::Button::None;
};

}  // namespace kestrel::commands
