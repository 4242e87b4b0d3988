#pragma once

#include <cstdint>
#include <string_view>

#include "commands/ClipboardCommands.h"
#include "commands/CommandHandlers.h"
#include "commands/DocumentCommands.h"
#include "commands/FilterCommands.h"
#include "commands/ImageCommands.h"
#include "commands/ModLanguage.h"
#include "commands/ModRecent.h"
#include "commands/PaletteCommands.h"
#include "commands/ShellCommands.h"
#include "commands/TransformCommands.h"
#include "commands/WellCommands.h"
#include "editing/Editor.h"
#include "platform/controls/SmartMenuXP.h"
#include "services/Cdb.h"
#include "settings/Settings.h"

namespace kestrel::commands {

// The main window as its commands see it.
class MainWindow {
  public:
    virtual ~MainWindow() = default;
    // Asks the window to close, which runs its unload handler.
    virtual void Unload() = 0;
    // Whatever else the window shows as text is in another language from now on.
    virtual void LanguageChanged() = 0;
};

// The controls of the main window.
class MainControls : public CaptionedWindow {
  public:
    // A button of the toolbar, by its key.
    virtual void EnableButton(std::string_view key, bool enabled) = 0;
};

// What the main window is given; all of it outlives the window.
struct MainServices {
    services::Application& application;
    services::DesktopDialogs& dialogs;
    services::Clipboard& clipboard;
    services::MessageBoxes& boxes;
    services::HelpViewer& help;
    system::FileSystem& files;
    system::Registry& registry;
    system::Shell& shell;
    system::RandomNumbers& random;
    settings::Settings& settings;
    ProgramFolders folders;
    std::uint32_t systemLcid = 0;
};

// The main window's menus: the bar and the editing pop-up.
struct MainMenus {
    controls::SmartMenuXP SmartMenuXP1;
    controls::SmartMenuXP SmartMenuXP2;
};

// What the commands work with, besides the editor and the services.
struct MainParts {
    MainWindow& window;
    MainControls& controls;
    GridGuard& grid;
    const services::OwnerWindow& owner;
    MainMenus& menus;
    Dialogs& dialogs;
};

// The handlers of all commands, each handed to the object whose business it is.
class MainCommands : public CommandHandlers {
  public:
    MainCommands(editing::Editor& editor, const MainParts& parts, const MainServices& services);

    DocumentCommands& Documents() { return documents_; }
    ModRecent& Recent() { return recent_; }
    PaletteCommands& PaletteHandlers() { return palette_; }
    WellCommands& WellHandlers() { return wells_; }
    // Enables the Edit commands that can do something now.
    void mnuEdit_Click();

    void mnuNew_Click() override { documents_.mnuNew_Click(); }
    void mnuOpen_Click() override { documents_.mnuOpen_Click(); }
    void mnuSave_Click() override { documents_.mnuSave_Click(); }
    void mnuSaveAs_Click() override { documents_.mnuSaveAs_Click(); }
    void mnuRecent_Click(int slot) override;
    void mnuExit_Click() override { parts_.window.Unload(); }
    void mnuEditOpts_Click(int index) override;
    void mnuToolsOpts_Click(int index) override;
    // Enables the mirror commands that suit the size of the selection.
    void mnuImage_Click() override;
    void mnuImageOpts_Click(int index) override { images_.mnuImageOpts_Click(index); }
    void mnuMirrorOpts_Click(int index) override { transforms_.mnuMirrorOpts_Click(index); }
    void mnuRotateOpts_Click(int index) override { transforms_.mnuRotateOpts_Click(index); }
    void RunFilterCommand(std::string_view key) override { filters_.Run(key); }
    void mnuPaletteOpts_Click(int index) override { palette_.mnuPaletteOpts_Click(index); }
    void ImgLoadPalette_Click() override;
    void ImgSavePalette_Click() override;
    void StartSibling(Sibling program) override { shell_.StartSibling(program); }
    // Changes the language of everything and keeps it for the next start.
    void mnuLanguageOpts_Click(int index) override;
    void mnuHomePage_Click() override { shell_.mnuHomePage_Click(); }
    void mnuHelp_Click() override { shell_.mnuHelp_Click(); }
    void mnuAbout_Click() override { parts_.dialogs.ShowAbout(); }

  private:
    void Paste(imaging::PasteMode mode);

    editing::Editor& editor_;
    MainParts parts_;
    settings::Settings& settings_;
    services::MessageBoxes& boxes_;
    services::Cdb cdb_;
    PaletteCommands palette_;
    WellCommands wells_;
    ClipboardCommands clipboard_;
    TransformCommands transforms_;
    ImageCommands images_;
    FilterCommands filters_;
    ModRecent recent_;
    DocumentCommands documents_;
    ShellCommands shell_;
};

}  // namespace kestrel::commands
