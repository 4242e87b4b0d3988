#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "commands/CaptureCommands.h"
#include "commands/ClipboardCommands.h"
#include "commands/CommandTable.h"
#include "commands/DocumentCommands.h"
#include "commands/ExtractCommands.h"
#include "commands/ImageCommands.h"
#include "commands/LanguageCommands.h"
#include "commands/MainWindow.h"
#include "commands/ModRecent.h"
#include "commands/PaletteCommands.h"
#include "commands/PrintCommands.h"
#include "commands/Recovery.h"
#include "commands/ShellCommands.h"
#include "commands/TrayCommands.h"
#include "commands/WellCommands.h"
#include "commands/ZoomCommands.h"
#include "editing/Editor.h"
#include "services/Cdb.h"
#include "services/Printer.h"
#include "services/RecentDocuments.h"
#include "services/Screen.h"
#include "settings/Settings.h"

namespace kestrel::commands {

// What the main window is given; all of it outlives the window.
struct MainServices {
    services::Application& application;
    services::DesktopDialogs& dialogs;
    services::Clipboard& clipboard;
    services::MessageBoxes& boxes;
    services::HelpViewer& help;
    system::FileSystem& files;
    system::Registry& registry;
    services::Shell& shell;
    services::RecentDocuments& documents;
    services::Screen& screen;
    services::Printer& printer;
    services::Tray& tray;
    system::RandomNumbers& random;
    settings::Settings& settings;
    editing::EditingLog& log;
    const document::JournalFolder& journals;
    ProgramFolders folders;
    std::uint32_t systemLcid = 0;
};

// The objects behind the rows of the command table, and what all rows have in common.
struct Commands {
    Commands(editing::Editor& openEditor, const MainParts& mainParts, const MainServices& services);

    // What a click on an item or a button does: runs the row with this key among `rows`, if there
    // is one. Whoever calls it refreshes the states afterwards.
    void Click(std::span<const CommandRow> rows, std::string_view key);
    // Enables and marks items and buttons as they are now.
    void RefreshStates();

    editing::Editor& editor;
    MainParts parts;
    services::MessageBoxes& boxes;
    services::Cdb cdb;
    PaletteCommands palette;
    WellCommands wells;
    ClipboardCommands clipboard;
    ImageCommands images;
    ModRecent recent;
    DocumentCommands documents;
    ExtractCommands extract;
    PrintCommands prints;
    CaptureCommands capture;
    ShellCommands shell;
    ZoomCommands zoom;
    LanguageCommands language;
    Recovery recovery;
    TrayCommands tray;
};

}  // namespace kestrel::commands
