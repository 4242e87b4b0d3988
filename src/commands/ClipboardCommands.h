#pragma once

#include <optional>

#include "editing/Editor.h"
#include "imaging/PasteFit.h"
#include "services/Clipboard.h"

namespace kestrel::commands {

// Asks how a picture on the clipboard is made to fit the icon; none: not at all.
class PasteDialog {
  public:
    virtual ~PasteDialog() = default;
    virtual std::optional<imaging::PasteFit> AskFit(imaging::PictureSize picture) = 0;
};

// The selection to the clipboard and back. Transparent pixels travel as white ones without alpha.
class ClipboardCommands {
  public:
    ClipboardCommands(editing::Editor& editor, services::Clipboard& clipboard, PasteDialog& dialog)
        : editor_(editor), clipboard_(clipboard), dialog_(dialog) {}

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
    PasteDialog& dialog_;
};

}  // namespace kestrel::commands
