#pragma once

#include "commands/Dialogs.h"
#include "commands/ProgramFolders.h"
#include "editing/Editor.h"
#include "platform/system/FileSystem.h"
#include "services/Application.h"
#include "services/Cdb.h"
#include "services/MessageBoxes.h"
#include "services/Printer.h"

namespace kestrel::commands {

// What the commands below work with, besides the editor.
struct PrintParts {
    services::Application& application;
    services::MessageBoxes& boxes;
    services::Printer& printer;
    system::FileSystem& files;
    services::Cdb& cdb;
    Dialogs& dialogs;
    ProgramFolders folders;
};

// The commands that show what a save would write. They leave the document as it is.
class PrintCommands {
  public:
    PrintCommands(editing::Editor& editor, PrintParts parts);

    // Prints the icon on the printer that the user chooses, as often as he says; a file once.
    void mnuPrint_Click();
    // Shows the icon in the states that desktops draw icons in.
    void TestIcon();

  private:
    Result<gdi::IconPlanes> SavedPicture(std::string_view fileName) const;
    void Print(const services::ChosenPrinter& chosen, const gdi::IconPlanes& picPrint) const;
    void ShowFailure(const Error& error) const;

    editing::Editor& editor_;
    PrintParts parts_;
};

}  // namespace kestrel::commands
