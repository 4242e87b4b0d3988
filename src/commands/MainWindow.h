#pragma once

#include <string_view>

#include "commands/ClipboardCommands.h"
#include "commands/DocumentCommands.h"
#include "commands/ModLanguage.h"
#include "services/Cdb.h"

namespace kestrel::commands {

// What the commands need of the main window.
class MainWindow : public DocumentWindow,
                   public CaptionedWindow,
                   public services::OwnerWindow,
                   public PasteDialog {
  public:
    // A button of the toolbar, by its key.
    virtual void EnableButton(std::string_view key, bool enabled) = 0;
    virtual void ShowAbout() = 0;
    // Whatever else the window shows as text is in another language from now on.
    virtual void LanguageChanged() = 0;
};

}  // namespace kestrel::commands
