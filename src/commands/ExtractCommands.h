#pragma once

#include "commands/Dialogs.h"
#include "commands/DocumentCommands.h"
#include "commands/ProgramFolders.h"
#include "editing/Editor.h"
#include "tools/IconExtraction.h"

namespace kestrel::commands {

// What the extraction works with, besides the editor and its services.
struct ExtractParts {
    DocumentCommands& documents;
    Dialogs& dialogs;
    ProgramFolders folders;
};

// The command that makes an icon of a program, a library or an animated cursor the open one.
class ExtractCommands {
  public:
    ExtractCommands(editing::Editor& editor, const tools::ExtractionServices& services,
                    ExtractParts parts);

    // Begins with the icon library that came with the program. The icon has no file of its own and
    // is the oldest state of its history. One that cannot be read any more is told of and changes
    // nothing; one whose images are damaged is empty, as it was shown.
    void mnuExtract_Click();

  private:
    editing::Editor& editor_;
    tools::ExtractionServices services_;
    ExtractParts parts_;
};

}  // namespace kestrel::commands
