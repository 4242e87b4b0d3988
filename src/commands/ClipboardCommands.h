#pragma once

#include "commands/Dialogs.h"
#include "editing/Editor.h"
#include "imaging/PasteFit.h"
#include "services/Clipboard.h"

namespace kestrel::commands {

// The selection to the clipboard and back. Transparent pixels travel as white ones without alpha.
class ClipboardCommands {
  public:
    ClipboardCommands(editing::Editor& editor, services::Clipboard& clipboard, Dialogs& dialogs)
        : editor_(editor), clipboard_(clipboard), dialogs_(dialogs) {}

    bool CanPaste() const { return clipboard_.HasImage(); }

    // Without a selection nothing happens.
    void Copy();
    void Cut();
    // The picture becomes a floating selection. Fails with nothing changed when the clipboard has
    // none that can be read, and with kDialogCancelled when the user does not want it.
    Result<void> Paste(imaging::PasteMode mode);

  private:
    editing::Editor& editor_;
    services::Clipboard& clipboard_;
    Dialogs& dialogs_;
};

}  // namespace kestrel::commands
