#pragma once

#include <string_view>

namespace kestrel::commands {

// Programs of the same maker that the Tools menu starts.
enum class Sibling { ScreenCapture, IconBrowser, ClipboardViewer };

// Every command that a menu, the toolbar or a key can give.
class CommandHandlers {
  public:
    virtual ~CommandHandlers() = default;
    virtual void mnuNew_Click() = 0;
    virtual void mnuOpen_Click() = 0;
    virtual void mnuSave_Click() = 0;
    virtual void mnuSaveAs_Click() = 0;
    // Opens the recent file of this slot, 1 to 4.
    virtual void mnuRecent_Click(int slot) = 0;
    virtual void mnuExit_Click() = 0;
    // The index is that of the Edit menu's item.
    virtual void mnuEditOpts_Click(int index) = 0;
    // Of the Tools menu: 1 is the gradient; others are none yet.
    virtual void mnuToolsOpts_Click(int index) = 0;
    // The Image menu is being opened.
    virtual void mnuImage_Click() = 0;
    // An operation of the Image or Effect menu, by its key.
    virtual void Operate(std::string_view key) = 0;
    virtual void AdjustColors() = 0;
    // 0 is the default palette, 1 a random one.
    virtual void mnuPaletteOpts_Click(int index) = 0;
    virtual void ImgLoadPalette_Click() = 0;
    virtual void ImgSavePalette_Click() = 0;
    virtual void StartSibling(Sibling program) = 0;
    // 0 is Chinese, 1 English; others are none.
    virtual void mnuLanguageOpts_Click(int index) = 0;
    virtual void mnuHomePage_Click() = 0;
    virtual void mnuHelp_Click() = 0;
    virtual void mnuAbout_Click() = 0;
};

}  // namespace kestrel::commands
