#pragma once

#include <string>

#include "commands/ModRecent.h"
#include "editing/Editor.h"
#include "platform/system/FileSystem.h"
#include "services/Application.h"
#include "services/Cdb.h"
#include "services/MessageBoxes.h"

namespace kestrel::commands {

// Keeps the mouse off the grid while a file is opened.
class GridGuard {
  public:
    virtual ~GridGuard() = default;
    // A disabled grid ignores the mouse.
    virtual void EnableGrid(bool enabled) = 0;
    // Enables the grid a quarter of a second from now, when the clicks that chose the file are
    // over.
    virtual void StartTmr() = 0;
};

// What the document commands work with, besides the editor.
struct DocumentParts {
    GridGuard& grid;
    ModRecent& recent;
    services::Cdb& cdb;
    services::Application& application;
    services::MessageBoxes& boxes;
    system::FileSystem& files;
};

enum class SaveMode { Save, SaveAs };

// The commands that change which icon is open or where it is kept.
class DocumentCommands {
  public:
    DocumentCommands(editing::Editor& editor, const DocumentParts& parts);

    void mnuNew_Click();
    // Asks for the file with the open dialog.
    void mnuOpen_Click();
    // Opens a file named by the command line, a drop or the recent list.
    void OpenNamed(const std::string& pathToOpen);
    // Opens the recent file of this slot, 1 to 4.
    void mnuRecent_Click(int slot);
    void mnuSave_Click();
    void mnuSaveAs_Click();

    // Asks about unsaved changes; true when the caller may go on.
    bool PromptSaveChanges();
    void SaveDocument(SaveMode mode);

  private:
    void OpenChosenFile();
    Result<void> OpenFile(const std::string& path);
    void SaveUnderNewName();
    void SaveInPlace();
    bool ChangedOutside();
    void WriteIcoFile(const std::string& path);

    editing::Editor& editor_;
    document::IconDocument& document_;
    DocumentParts parts_;
};

}  // namespace kestrel::commands
